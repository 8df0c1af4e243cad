// The rules of the follow-up on plain data.
#include <gtest/gtest.h>

#include "followup/convergences.h"
#include "followup/delays.h"
#include "followup/forecasts.h"
#include "support/archive_builder.h"

namespace trv5 {
namespace {

std::vector<std::vector<int>> numbersOf(const std::vector<Forecast>& forecasts) {
  std::vector<std::vector<int>> numbers;
  for (const Forecast& forecast : forecasts) numbers.push_back(forecast.numbers);
  return numbers;
}

TEST(Forecasts, AreTheAmbateThePairsTheTriplesAndTheLunghetta) {
  const std::vector<std::vector<int>> expected = {
      {3}, {20}, {3, 7}, {3, 9}, {20, 7}, {20, 9}, {3, 7, 50}, {3, 9, 50}, {20, 7, 50}, {20, 9, 50}, {1, 2, 80, 90}};
  EXPECT_EQ(numbersOf(forecastsOf({{{20, 3}, {9, 7}, {50}, {80, 2, 90, 1}}})), expected);
}

TEST(Forecasts, HaveNoPairsWithoutAmbate) {
  EXPECT_TRUE(forecastsOf({{{}, {9, 7}, {50}, {}}}).empty());
}

TEST(Forecasts, HaveNoTriplesWithoutAmbi) {
  EXPECT_EQ(numbersOf(forecastsOf({{{4}, {}, {50}, {}}})), (std::vector<std::vector<int>>{{4}}));
}

TEST(Forecasts, ShowTheTenLowestNumbersOfALongLunghetta) {
  const std::vector<Forecast> forecasts = forecastsOf({{{}, {}, {}, {12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1}}});
  EXPECT_EQ(numbersOf(forecasts), (std::vector<std::vector<int>>{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}));
}

TEST(Forecasts, ComeOutOnAWheelOfPlayWithinTheColpi) {
  const Archive archive = archiveOf({{}, {{"BA", {1, 2, 3, 4, 5}}}, {{"CA", {1, 2, 30, 40, 50}}}});
  EXPECT_TRUE(hasComeOut(archive, 1, {1, 3, 0b01}, {1, 2}, 2));
  EXPECT_FALSE(hasComeOut(archive, 1, {1, 3, 0b10}, {1, 2}, 2)) << "two colpi are needed on CA";
  EXPECT_TRUE(hasComeOut(archive, 1, {2, 3, 0b10}, {1, 2}, 2));
  EXPECT_FALSE(hasComeOut(archive, 1, {2, 2, 0b10}, {1, 2}, 2)) << "beyond the last draw";
  EXPECT_FALSE(hasComeOut(archive, 1, {9, 3, 0b11}, {1, 90}, 2));
}

TEST(Forecasts, OfAnEmptyCellAreHitByNoDraw) {
  const Archive archive = archiveOf({{}, {{"BA", {0, 2, 3, 4, 5}}}});
  EXPECT_FALSE(hasComeOut(archive, 1, {1, 2, 1}, {0, 0}, 1));
}

TEST(Convergences, CountANumberOnEachWheelOfItsForecast) {
  const std::vector<GroupedForecast> forecasts = {{"uno", 2, {7, 8, 0}, 0b101}, {"due", 2, {8, 9, 0}, 0b100}};
  const Convergences counts = convergencesOf(forecasts, 2);
  EXPECT_EQ(counts[8][2], 2);
  EXPECT_EQ(counts[8][0], 1);
  EXPECT_EQ(counts[7][2], 1);
  EXPECT_EQ(counts[7][1], 0);
  EXPECT_EQ(configurationsBehind(forecasts, 2, 8, 2), (std::vector<std::string>{"uno", "due"}));
  EXPECT_EQ(configurationsBehind(forecasts, 2, 8, 0), (std::vector<std::string>{"uno"}));
}

TEST(Convergences, OfTheAmbateTakeALunghettaOfSorteOneWithItsFirstNumberAlone) {
  const Convergences counts = convergencesOf({{"L", 1, {7, 8, 9}, 1}}, 1);
  EXPECT_EQ(counts[7][0], 1);
  EXPECT_EQ(counts[8][0], 0);
}

TEST(Convergences, PassOverWhatIsNoNumber) {
  EXPECT_TRUE(countedNumbers({"x", 2, {0, 91, 5, 0}, 1}, 2) == std::vector<int>{5});
  EXPECT_TRUE(countedNumbers({"x", 1, {0, 5}, 1}, 1).empty());
  EXPECT_TRUE(countedNumbers({"x", 3, {5}, 1}, 2).empty());
}

TEST(Delays, AreTheSameNoughtForTheReferenceDrawAndForANumberNeverDrawn) {
  const Archive archive = archiveOf({{{"BA", {9, 8, 7, 6, 5}}}, {}, {{"BA", {1, 2, 3, 4, 5}}}});
  const NumbersByWheel values = delays(archive, 3);
  EXPECT_EQ(values[1][0], 0);
  EXPECT_EQ(values[77][0], 0);
  EXPECT_EQ(values[9][0], 2);
  EXPECT_EQ(values[5][0], 0) << "the last time counts";
  EXPECT_EQ(delays(archive, 2)[9][0], 1);
  EXPECT_EQ(delays(archive, 2)[1][0], 0) << "a draw behind the reference draw doesn't count";
}

TEST(Presences, DoNotReadBeforeTheFirstDraw) {
  const Archive archive = archiveOf({{{"BA", {9, 8, 7, 6, 5}}}, {{"BA", {9, 2, 3, 4, 5}}}});
  EXPECT_EQ(presences(archive, 2, 720)[9][0], 2);
  EXPECT_EQ(presences(archive, 2, 1)[9][0], 1);
  EXPECT_EQ(presences(archive, 1, 720)[2][0], 0);
}

TEST(Presences, InTheColpiOfTwoCasesCountTwiceAndStopAtTheReferenceDraw) {
  const Archive archive = archiveOf({{}, {}, {{"NZ", {9, 8, 7, 6, 5}}}, {{"NZ", {9, 1, 2, 3, 4}}}});
  const NumbersByWheel counts = presencesInColpi(archive, {1, 2}, {2, 3, 0});
  EXPECT_EQ(counts[9][10], 2) << "on all wheels, of play or not";
  EXPECT_EQ(counts[1][10], 0);
}

TEST(Coverage, CountsCasesAndInTheLastColumnOnlyTheWheelsOfPlay) {
  const Archive archive =
      archiveOf({{}, {{"BA", {9, 8, 7, 6, 5}}, {"CA", {1, 8, 7, 6, 5}}}, {{"BA", {9, 8, 7, 6, 5}}}});
  const Coverage covered = coverage(archive, {1}, {2, 3, 0b01});
  EXPECT_EQ(covered.cases[9][0], 1) << "a repeat within the case counts once";
  EXPECT_EQ(covered.cases[1][1], 1);
  EXPECT_EQ(covered.onAnyWheel[9], 1);
  EXPECT_EQ(covered.onAnyWheel[1], 0) << "CA isn't played";
}

TEST(CloseDelays, AreThoseExactlyTheDistanceApart) {
  NumbersByWheel values{};
  values[5] = {30, 31, 33, 100, 200, 300, 400, 500, 600, 700, 800};
  EXPECT_EQ(closeDelays(values, 2, 1)[5], 0b011U);
  EXPECT_EQ(closeDelays(values, 2, 2)[5], 0b110U);
  EXPECT_EQ(closeDelays(values, 2, 0)[5], 0U);
  EXPECT_EQ(closeDelays(values, 3, 3)[5], 0b111U);
  EXPECT_EQ(closeDelays(values, 3, 2)[5], 0U) << "equal, not at most";
  EXPECT_EQ(closeDelays(values, 2, 0)[6], 0x7FFU) << "all the zeros of a new archive";
}

}  // namespace
}  // namespace trv5
