#include "core/archive.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

#include "support/archive_builder.h"

namespace trv5 {
namespace {

TEST(Archive, IsEmptyAtFirst) {
  const Archive archive;
  EXPECT_EQ(archive.NumEstrazioni(), 0);
  EXPECT_EQ(archive.UltimaEstrazione(), 0);
  EXPECT_EQ(archive.NumModello(), 0);
  EXPECT_EQ(archive.NumeriEstratti(0, 0, 1), 0);
  EXPECT_EQ(archive.NumeriEstratti(Archive::kMaxDraws, 10, 5), 0);
  EXPECT_EQ(archive.DateEstrazioni(0), "");
}

TEST(Archive, ReadsTheDigitsByPositionAndNotTheSeparators) {
  DrawRow row = drawOf("07/01/1939", {});
  row.wheels[0] = "05-71-13-90-02";
  row.wheels[1] = "05x71 13/90.02";
  row.wheels[2] = "0571139002";  // every third character is skipped
  const Archive archive = archiveOfRows({row});
  const auto wheel = [&](int w) {
    std::vector<int> numbers;
    for (int p = 1; p <= 5; ++p) numbers.push_back(archive.NumeriEstratti(1, w, p));
    return numbers;
  };
  EXPECT_EQ(wheel(0), (std::vector<int>{5, 71, 13, 90, 2}));
  EXPECT_EQ(wheel(1), wheel(0));
  EXPECT_EQ(wheel(2), (std::vector<int>{5, 11, 90, 2, 0}));
}

TEST(Archive, ReadsWhatItCanOfLettersAndShortTextsAndTheRestIs0) {
  DrawRow row = drawOf("07/01/1939", {});
  row.wheels[0] = "5x-x7-  -90";
  row.wheels[1] = "1";
  const Archive archive = archiveOfRows({row});
  EXPECT_EQ(archive.NumeriEstratti(1, 0, 1), 5);
  EXPECT_EQ(archive.NumeriEstratti(1, 0, 2), 0);
  EXPECT_EQ(archive.NumeriEstratti(1, 0, 3), 0);
  EXPECT_EQ(archive.NumeriEstratti(1, 0, 4), 90);
  EXPECT_EQ(archive.NumeriEstratti(1, 0, 5), 0);
  EXPECT_EQ(archive.NumeriEstratti(1, 1, 1), 1);
}

TEST(Archive, AnEmptyTextGivesFiveZeros) {
  const Archive archive = archiveOf({{{"BA", {1, 2, 3, 4, 5}}}});
  for (int position = 1; position <= 5; ++position) EXPECT_EQ(archive.NumeriEstratti(1, kNational, position), 0);
}

TEST(Archive, Numbers91To99AreShownAsReadAndCountAs0) {
  const Archive archive = archiveOf({{{"BA", {99, 91, 90, 0, 1}}}});
  EXPECT_EQ(archive.NumeriEstratti(1, 0, 1), 99);
  EXPECT_EQ(archive.NumeriEstratti(1, 0, 2), 91);
  EXPECT_EQ(archive.number(1, 0, 1), 0);
  EXPECT_EQ(archive.number(1, 0, 2), 0);
  EXPECT_EQ(archive.number(1, 0, 3), 90);
  EXPECT_EQ(archive.wheelOf(1, 0)[4], 1);
}

TEST(Archive, CountsProgressivesWithinMonthAndYear) {
  const Archive archive = archiveOfRows({drawOf("30/12/1939", {}), drawOf("31/12/1939", {}), drawOf("01/01/1940", {}),
                                         drawOf("02/01/1940", {}), drawOf("01/02/1940", {})});
  std::vector<int> months, years;
  for (int draw = 1; draw <= 5; ++draw) {
    months.push_back(archive.ProgMese(draw));
    years.push_back(archive.ProgAnno(draw));
  }
  EXPECT_EQ(months, (std::vector<int>{1, 2, 1, 2, 1}));
  EXPECT_EQ(years, (std::vector<int>{1, 2, 1, 2, 3}));
  EXPECT_EQ(archive.ProgMese(0), 0);
  EXPECT_EQ(archive.ProgMese(6), 0);
}

TEST(Archive, AGapOfExactlyTwelveMonthsRunsTheProgressiveOfTheMonthOn) {
  const Archive archive = archiveOfRows({drawOf("10/03/1944", {}), drawOf("10/03/1945", {}), drawOf("10/04/1946", {})});
  EXPECT_EQ(archive.ProgMese(2), 2);
  EXPECT_EQ(archive.ProgAnno(2), 1);
  EXPECT_EQ(archive.ProgMese(3), 1);
}

TEST(Archive, TheModelRunsFromItsFirstDrawToTheLast) {
  Archive archive = archiveOf({{}, {}, {}});
  archive.setModelFrom(2);
  EXPECT_EQ(archive.NumModello(), 2);
  EXPECT_EQ(archive.IndiciModello(1), 2);
  EXPECT_EQ(archive.IndiciModello(2), 3);
  archive.setModelFrom(0);
  EXPECT_EQ(archive.NumModello(), 4);
  EXPECT_EQ(archive.IndiciModello(1), 0);
  EXPECT_EQ(archive.DateEstrazioni(archive.IndiciModello(1)), "");
  EXPECT_THROW(archive.setModelFrom(4), std::out_of_range);
  EXPECT_THROW(archive.setModelFrom(-1), std::out_of_range);
  EXPECT_THROW(archive.IndiciModello(0), std::out_of_range);
  EXPECT_THROW(archive.IndiciModello(5), std::out_of_range);
  EXPECT_THROW(Archive().setModelFrom(0), std::out_of_range);
}

TEST(Archive, TooManyDrawsLeaveItAsItWas) {
  Archive archive = archiveOf({{{"BA", {1, 2, 3, 4, 5}}}});
  std::vector<DrawRow> rows(Archive::kMaxDraws + 1);
  EXPECT_THROW(archive.loadNumbers(rows), std::length_error);
  EXPECT_EQ(archive.NumEstrazioni(), 1);
  EXPECT_EQ(archive.NumeriEstratti(1, 0, 5), 5);
  rows.pop_back();
  archive.loadNumbers(rows);
  EXPECT_EQ(archive.NumEstrazioni(), Archive::kMaxDraws);
}

TEST(Archive, HasADigestThatDiffersFromTheFirstDrawThatDoes) {
  const std::vector<DrawRow> rows = {
      {"07/01/1939", {"01 02 03 04 05"}}, {"14/01/1939", {"11 12 13 14 15"}}, {"21/01/1939", {"21 22 23 24 25"}}};
  Archive archive, other;
  EXPECT_EQ(archive.digest(0), other.digest(3));
  archive.loadNumbers(rows);
  other.loadNumbers(rows);
  for (int last = 0; last <= 3; ++last) EXPECT_EQ(archive.digest(last), other.digest(last));
  EXPECT_EQ(archive.digest(4), archive.digest(3));
  EXPECT_NE(archive.digest(3), archive.digest(2));
  std::vector<DrawRow> date = rows, number = rows, shorter = rows;
  date[1].date = "15/01/1939";
  number[1].wheels[0] = "11 12 13 14 16";
  shorter.erase(shorter.begin() + 1);
  for (const std::vector<DrawRow>& changed : {date, number, shorter}) {
    other.loadNumbers(changed);
    EXPECT_EQ(other.digest(1), archive.digest(1));
    for (int last = 2; last <= 3; ++last) EXPECT_NE(other.digest(last), archive.digest(last));
  }
}

TEST(Archive, AShorterArchiveLeavesNothingOfTheLongerOne) {
  std::mt19937 rng(3);
  Archive archive = randomArchive(rng, 50);
  archive.loadNumbers({drawOf("07/01/1939", {{"BA", {1, 2, 3, 4, 5}}})});
  archive.countProgressives();
  for (int draw = 2; draw <= 50; ++draw) {
    EXPECT_EQ(archive.DateEstrazioni(draw), "");
    EXPECT_EQ(archive.ProgMese(draw), 0);
    for (int wheel = 0; wheel < kWheels; ++wheel)
      for (int position = 1; position <= 5; ++position) EXPECT_EQ(archive.NumeriEstratti(draw, wheel, position), 0);
  }
}

TEST(Archive, GivesBackEveryNumberOfRandomRows) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const std::vector<DrawRow> rows = randomRows(rng, 60);
    const Archive archive = archiveOfRows(rows);
    for (int draw = 1; draw <= 60; ++draw)
      for (int wheel = 0; wheel < kWheels; ++wheel) {
        const std::string& text = rows[static_cast<std::size_t>(draw - 1)].wheels[static_cast<std::size_t>(wheel)];
        std::array<int, 5> numbers{};
        for (int position = 1; position <= 5; ++position)
          numbers[static_cast<std::size_t>(position - 1)] = archive.NumeriEstratti(draw, wheel, position);
        EXPECT_EQ(wheelText(numbers), text.empty() ? "00-00-00-00-00" : text);
      }
  }
}

TEST(Archive, CountsThePlacesOfAWheelInCharactersNotInBytes) {
  Archive archive;
  DrawRow row;
  row.date = "07/01/1939";
  row.wheels[0] = "05·71·13·90·02";
  archive.loadNumbers({row});
  const std::array<int, 5> wanted = {5, 71, 13, 90, 2};
  for (int p = 1; p <= 5; ++p) EXPECT_EQ(archive.NumeriEstratti(1, 0, p), wanted[static_cast<std::size_t>(p - 1)]) << p;
}

}  // namespace
}  // namespace trv5
