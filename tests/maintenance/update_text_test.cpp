#include "maintenance/formats/update_text.h"

#include <gtest/gtest.h>

#include <random>

#include "maintenance/update_samples.h"

namespace trv5 {
namespace {

const std::string kLine = updateLine(
    {"02/01/2024",
     {"01-02-03-04-05", "11-12-13-14-15", "21-22-23-24-25", "31-32-33-34-35", "41-42-43-44-45", "51-52-53-54-55",
      "61-62-63-64-65", "71-72-73-74-75", "81-82-83-84-85", "86-87-88-89-90", "06-07-08-09-10"}});

TEST(UpdateText, ReadsTheDateAndTheElevenWheelsByTheirColumns) {
  ASSERT_EQ(kLine.size(), 178U);
  const std::vector<DrawRow> rows = readUpdateText(kLine);
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows[0].date, "02/01/2024");
  EXPECT_EQ(rows[0].wheels[0], "01-02-03-04-05");
  EXPECT_EQ(rows[0].wheels[5], "51-52-53-54-55");
  EXPECT_EQ(rows[0].wheels[10], "06-07-08-09-10");
}

TEST(UpdateText, LooksAtNoSeparatorAndNotAtTheEndOfALine) {
  std::string odd = kLine;
  for (std::size_t column : {10U, 25U, 40U, 55U, 175U, 176U, 177U}) odd[column] = '#';
  EXPECT_TRUE(sameDraws(readUpdateText(odd + "behind"), readUpdateText(kLine)));
}

TEST(UpdateText, FillsTheCellsOfALineCutAnywhereWithWhatItHas) {
  for (std::size_t length = 1; length <= kLine.size(); ++length) {
    SCOPED_TRACE(length);
    const std::string line = kLine.substr(0, length);
    const std::vector<DrawRow> rows = readUpdateText(line + "\r\n");
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_TRUE(sameDraws(rows, plainUpdateRows(line)));
  }
}

TEST(UpdateText, DropsBlankLinesWhereverTheyStandAndKeepsBlanksAroundACell) {
  const std::string padded = "02/01/2024  1-02-03-04-05";
  const auto rows = readUpdateText("\n  \r\n" + kLine + "\n\n\t \n" + padded + "\n" + std::string(200, ' ') + "\n\n");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1].wheels[0], " 1-02-03-04-05");
  EXPECT_EQ(rows[1].wheels[1], "");
}

TEST(UpdateText, ReadsEveryLineEndAlike) {
  const auto expected = readUpdateText(kLine + "\n" + kLine + "\n");
  ASSERT_EQ(expected.size(), 2U);
  for (const char* first : {"\n", "\r\n"})
    for (const char* last : {"", "\n", "\r\n"})
      EXPECT_TRUE(sameDraws(readUpdateText(kLine + first + kLine + last), expected));
  EXPECT_TRUE(readUpdateText("").empty());
  EXPECT_TRUE(readUpdateText("\r\n").empty());
}

TEST(UpdateText, ItsFormIsThatOfTheFirstLineAlone) {
  EXPECT_TRUE(hasUpdateForm(kLine));
  EXPECT_TRUE(hasUpdateForm(kLine + "\r\nanything"));
  EXPECT_TRUE(hasUpdateForm(std::string(176, 'x') + "pr\n")) << "whatever else it holds";
  EXPECT_FALSE(hasUpdateForm(std::string(175, 'x') + "pr\n")) << "177 characters";
  EXPECT_FALSE(hasUpdateForm(std::string(177, 'x') + "pr\n")) << "179 characters";
  EXPECT_FALSE(hasUpdateForm(std::string(176, 'x') + "PR\n"));
  EXPECT_FALSE(hasUpdateForm(std::string(178, 'x')));
  EXPECT_FALSE(hasUpdateForm(""));
  EXPECT_FALSE(hasUpdateForm("\n" + kLine)) << "a blank first line is a first line";
}

TEST(UpdateText, CountsCharactersNotBytes) {
  std::string line = kLine;
  line.replace(11, 1, "\xC3\xA8");
  EXPECT_TRUE(hasUpdateForm(line));
  const auto rows = readUpdateText(line);
  EXPECT_EQ(rows[0].wheels[0],
            "\xC3\xA8"
            "1-02-03-04-05");
  EXPECT_EQ(rows[0].wheels[10], "06-07-08-09-10");
}

TEST(UpdateText, DecodesMarksAndOtherEncodings) {
  EXPECT_EQ(decodedText("\xEF\xBB\xBF" + kLine), kLine);
  std::string low = "\xFF\xFE", high = "\xFE\xFF";
  for (const char c : kLine) {
    low += std::string{c, '\0'};
    high += std::string{'\0', c};
  }
  EXPECT_EQ(decodedText(low), kLine);
  EXPECT_EQ(decodedText(high), kLine);
  EXPECT_EQ(decodedText("caff\xE8"), "caff\xC3\xA8") << "a byte that is no UTF-8 is a character";
  EXPECT_EQ(decodedText("caff\xC3\xA8"), "caff\xC3\xA8");
  EXPECT_EQ(decodedText(std::string("\xFF\xFE\x3D\xD8\x00\xDE", 6)), "\xF0\x9F\x98\x80");
  EXPECT_EQ(decodedText(std::string("\xFF\xFE\x3D\xD8", 4)), "\xEF\xBF\xBD") << "half a pair";
  EXPECT_EQ(decodedText("\xED\xA0\x80"), "\xC3\xAD\xC2\xA0\xC2\x80") << "half a pair is no UTF-8";
}

TEST(UpdateText, GivesValidTextForAnyBytes) {
  for (unsigned seed = 1; seed <= 2000; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    std::string bytes = kLine + "\r\n" + kLine;
    for (unsigned change = 1 + static_cast<unsigned>(rng() % 6); change > 0; --change)
      bytes[rng() % (rng() % 4 == 0 ? 3 : bytes.size())] = static_cast<char>(rng() % 256);
    const std::string text = decodedText(bytes);
    EXPECT_EQ(decodedText("\xEF\xBB\xBF" + text), text) << "decoded once it is UTF-8";
    EXPECT_TRUE(sameDraws(readUpdateText(text), plainUpdateRows(text)));
  }
}

}  // namespace
}  // namespace trv5
