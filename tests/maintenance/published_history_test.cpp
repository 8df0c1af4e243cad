#include "maintenance/formats/published_history.h"

#include <gtest/gtest.h>

#include <random>

#include "maintenance/draw_days.h"

namespace trv5 {
namespace {

using Numbers = std::array<std::uint8_t, 5>;

// The one fault of a text, which must be at `line`.
std::string faultAt(int line, const std::string& text) {
  const PublishedHistory history = readPublishedHistory(text);
  if (history.faults.size() != 1) return "faults: " + std::to_string(history.faults.size());
  EXPECT_EQ(history.faults[0].line, line);
  return history.faults[0].reason;
}

TEST(PublishedHistory, ReadsOneLineAWheel) {
  const PublishedHistory history = readPublishedHistory(
      "1939/01/07\tBA\t58\t22\t47\t49\t69\n"
      "1939/01/07\tRM\t1\t2\t3\t4\t90\n"
      "2005/05/04\tRN\t07\t08\t9\t10\t11\n");
  EXPECT_TRUE(history.faults.empty());
  ASSERT_EQ(history.draws.size(), 2U);
  EXPECT_EQ(dateText(history.draws[0].day), "07/01/1939");
  EXPECT_EQ(history.draws[0].numbers[0], (Numbers{58, 22, 47, 49, 69}));
  EXPECT_EQ(history.draws[0].numbers[7], (Numbers{1, 2, 3, 4, 90})) << "RM is Roma";
  EXPECT_FALSE(history.draws[0].drawn(1)) << "a wheel without a line wasn't drawn";
  EXPECT_EQ(history.draws[1].numbers[10], (Numbers{7, 8, 9, 10, 11})) << "RN is the national wheel";
}

TEST(PublishedHistory, KnowsTheElevenWheels) {
  std::string text;
  const char* const codes[] = {"BA", "CA", "FI", "GE", "MI", "NA", "PA", "RM", "TO", "VE", "RN"};
  for (int w = 0; w < kWheels; ++w)
    text += "2020/01/02\t" + std::string(codes[w]) + "\t" + std::to_string(w + 1) + "\t80\t81\t82\t83\n";
  const PublishedHistory history = readPublishedHistory(text);
  EXPECT_TRUE(history.faults.empty());
  ASSERT_EQ(history.draws.size(), 1U);
  for (std::size_t w = 0; w < kWheels; ++w) EXPECT_EQ(history.draws[0].numbers[w][0], w + 1);
}

TEST(PublishedHistory, PutsTheDrawsInOrderOfDate) {
  const PublishedHistory history = readPublishedHistory(
      "2020/01/04\tBA\t1\t2\t3\t4\t5\n"
      "2019/12/31\tBA\t1\t2\t3\t4\t5\n"
      "2020/01/04\tCA\t6\t7\t8\t9\t10\n"
      "2020/01/02\tBA\t1\t2\t3\t4\t5\n");
  ASSERT_EQ(history.draws.size(), 3U);
  EXPECT_EQ(dateText(history.draws[0].day), "31/12/2019");
  EXPECT_EQ(dateText(history.draws[1].day), "02/01/2020");
  EXPECT_EQ(dateText(history.draws[2].day), "04/01/2020");
  EXPECT_TRUE(history.draws[2].drawn(0) && history.draws[2].drawn(1));
}

TEST(PublishedHistory, TakesEitherLineEndAByteOrderMarkBlankLinesAndAMissingLastLineEnd) {
  const std::string a = "2020/01/02\tBA\t1\t2\t3\t4\t5", b = "2020/01/02\tCA\t1\t2\t3\t4\t5";
  const PublishedHistory plain = readPublishedHistory(a + "\n" + b + "\n");
  ASSERT_TRUE(plain.faults.empty());
  for (const std::string& text : {a + "\r\n" + b + "\r\n", a + "\n" + b, a + "\r\n" + b + "\r",
                                  "\xEF\xBB\xBF" + a + "\n\n \t\r\n" + b + "\n\n", b + "\n" + a + "\r\n"}) {
    const PublishedHistory history = readPublishedHistory(text);
    EXPECT_TRUE(history.faults.empty()) << text;
    EXPECT_EQ(history.draws, plain.draws) << text;
  }
}

TEST(PublishedHistory, IsEmptyForAnEmptyText) {
  for (const char* text : {"", "\n\r\n", "\xEF\xBB\xBF"}) {
    EXPECT_TRUE(readPublishedHistory(text).draws.empty());
    EXPECT_TRUE(readPublishedHistory(text).faults.empty());
  }
}

TEST(PublishedHistory, ReportsADateThatIsNone) {
  for (const char* date : {"2020/02/30", "2019/02/29", "2020/13/01", "2020/00/10", "2020/01/00", "0000/01/01",
                           "02/01/2020", "2020-01-02", "2020/1/2", "20200102", "", "2020/01/02 ", "2020/0a/02"})
    EXPECT_NE(faultAt(1, std::string(date) + "\tBA\t1\t2\t3\t4\t5\n").find("data"), std::string::npos) << date;
  EXPECT_TRUE(readPublishedHistory("2020/02/29\tBA\t1\t2\t3\t4\t5\n").faults.empty());
}

TEST(PublishedHistory, ReportsAnUnknownWheel) {
  for (const char* wheel : {"XX", "RO", "NZ", "ba", "", "BAR", " BA"})
    EXPECT_EQ(faultAt(1, "2020/01/02\t" + std::string(wheel) + "\t1\t2\t3\t4\t5\n"),
              "la ruota \"" + std::string(wheel) + "\" non esiste");
}

TEST(PublishedHistory, ReportsANumberOutsideOneToNinetyOrNone) {
  for (const char* number : {"0", "91", "100", "-1", "+1", "1.5", "x", "", " 5", "007"})
    EXPECT_EQ(faultAt(1, "2020/01/02\tBA\t1\t2\t" + std::string(number) + "\t4\t5\n"),
              "\"" + std::string(number) + "\" non è un numero da 1 a 90");
}

TEST(PublishedHistory, ReportsARepeatedNumber) {
  EXPECT_EQ(faultAt(1, "2020/01/02\tBA\t1\t2\t3\t4\t01\n"), "il numero 1 è ripetuto");
}

TEST(PublishedHistory, ReportsTooFewOrTooManyFields) {
  EXPECT_EQ(faultAt(1, "2020/01/02\tBA\t1\t2\t3\t4\n"), "i campi sono 6 invece di 7");
  EXPECT_EQ(faultAt(1, "2020/01/02\tBA\t1\t2\t3\t4\t5\t6\n"), "i campi sono 8 invece di 7");
  EXPECT_EQ(faultAt(1, "2020/01/02 BA 1 2 3 4 5\n"), "i campi sono 1 invece di 7");
}

TEST(PublishedHistory, ReportsTwoLinesOfAWheelWithOtherNumbers) {
  EXPECT_EQ(faultAt(3,
                    "2020/01/02\tBA\t1\t2\t3\t4\t5\n"
                    "2020/01/04\tBA\t1\t2\t3\t4\t5\n"
                    "2020/01/02\tBA\t1\t2\t3\t5\t4\n"),
            "la ruota BA ha altri numeri alla riga 1, per la stessa data");
}

TEST(PublishedHistory, AcceptsALineThatIsRepeatedAsItStands) {
  const PublishedHistory history = readPublishedHistory(
      "2020/01/02\tBA\t1\t2\t3\t4\t5\n"
      "2020/01/02\tBA\t01\t02\t03\t04\t05\r\n");
  EXPECT_TRUE(history.faults.empty());
  EXPECT_EQ(history.draws.size(), 1U);
}

TEST(PublishedHistory, ReportsEveryBadLineWithItsNumber) {
  const PublishedHistory history = readPublishedHistory(
      "2020/01/02\tBA\t1\t2\t3\t4\t5\n"
      "\n"
      "2020/01/02\tXX\t1\t2\t3\t4\t5\r\n"
      "2020/01/02\tCA\t1\t2\t3\t4\t91\n"
      "2020/01/02\tFI\t1\t2\t3\t4\t5\n"
      "garbage");
  ASSERT_EQ(history.faults.size(), 3U);
  EXPECT_EQ(history.faults[0].line, 3);
  EXPECT_EQ(history.faults[1].line, 4);
  EXPECT_EQ(history.faults[2].line, 6);
}

TEST(PublishedHistory, QuotesStrangeBytesHarmlessly) {
  EXPECT_EQ(faultAt(1, std::string("2020/01/02\t\x1B[2J\xFF\t1\t2\t3\t4\t5\n")), "la ruota \"?[2J?\" non esiste");
  EXPECT_EQ(faultAt(1, "2020/01/02\t" + std::string(1000, 'A') + "\t1\t2\t3\t4\t5\n"),
            "la ruota \"" + std::string(20, 'A') + "...\" non esiste");
}

TEST(PublishedHistory, GivesBackRandomDrawsWhateverTheOrderOfTheLines) {
  const char* const codes[] = {"BA", "CA", "FI", "GE", "MI", "NA", "PA", "RM", "TO", "VE", "RN"};
  const std::vector<Day> days = drawDays();
  for (unsigned seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    std::vector<Draw> draws;
    std::vector<std::string> lines;
    for (std::size_t i = rng() % 50; i < days.size() && draws.size() < 60; i += 1 + rng() % 40) {
      Draw draw{days[i], {}};
      for (std::size_t w = 0; w < kWheels; ++w) {
        if (w > 0 && rng() % 5 == 0) continue;
        const std::string date = isoText(days[i]);
        std::string line = date.substr(0, 4) + "/" + date.substr(5, 2) + "/" + date.substr(8) + "\t" + codes[w];
        for (std::size_t p = 0; p < 5; ++p) {
          const unsigned number = static_cast<unsigned>(p) * 18 + 1 + static_cast<unsigned>(rng() % 18);
          draw.numbers[w][p] = static_cast<std::uint8_t>(number);
          line += (number < 10 && rng() % 2 ? "\t0" : "\t") + std::to_string(number);
        }
        lines.push_back(line + (rng() % 2 ? "\n" : "\r\n"));
      }
      draws.push_back(draw);
    }
    std::shuffle(lines.begin(), lines.end(), rng);
    std::string text;
    for (const std::string& line : lines) text += line;
    const PublishedHistory history = readPublishedHistory(text);
    EXPECT_TRUE(history.faults.empty());
    EXPECT_EQ(history.draws, draws);
  }
}

TEST(PublishedHistory, ReadsOrReportsWhateverBytesALineHolds) {
  const std::string good = "2020/01/02\tBA\t1\t22\t33\t44\t90\n";
  const std::string bytes("\0\t\n\r /0129BARM-\xEF\xFF", 18);
  for (unsigned seed = 1; seed <= 3000; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    std::string text = good + good;
    for (unsigned change = 1 + static_cast<unsigned>(rng() % 4); change > 0; --change)
      text[rng() % text.size()] = bytes[rng() % bytes.size()];
    const PublishedHistory history = readPublishedHistory(text);
    const auto lines = 1 + std::count(text.begin(), text.end(), '\n');
    int before = 0;
    for (const LineFault& fault : history.faults) {
      EXPECT_GT(fault.line, before);
      EXPECT_LE(fault.line, lines);
      EXPECT_FALSE(fault.reason.empty());
      before = fault.line;
    }
    for (const Draw& draw : history.draws)
      for (const auto& wheel : draw.numbers)
        for (const int number : wheel) EXPECT_LE(number, 90);
  }
}

}  // namespace
}  // namespace trv5
