#include <gtest/gtest.h>

#include "search_setups.h"

namespace trv5 {
namespace {

// What compares both searches on these passes: all of them in one setting of a seed, a few, which is much quicker, in
// the others.
auto passes(Shape shape, const std::vector<WheelSet>& wheelSets) {
  return [shape, &wheelSets](std::mt19937& rng, const Archive& archive, int setting) {
    const PlainFormula formula = randomFormula(rng, shape);
    AmbataRequest request = randomAmbataRequest(rng, archive);
    request.cases.resize(std::min<std::size_t>(request.cases.size(), 6));
    request.colpi = below(rng, 4);
    request.wheelSets = wheelSets;
    if (setting > 0) {
      const auto skip = below(rng, static_cast<int>(wheelSets.size()));
      request.wheelSets.erase(request.wheelSets.begin(), request.wheelSets.begin() + skip);
      request.wheelSets.resize(std::min<std::size_t>(request.wheelSets.size(), 1U + rng() % 4));
    }
    request.repeatsAtZeroGetLost = shape == Shape::OneNumber;
    request.formula = formulaInput(formula);
    ASSERT_EQ(searchAmbate(request), plainSearchAmbate(formula, request));
  };
}

void compareBestWheels(Shape shape, const std::vector<WheelSet>& wheelSets, unsigned firstSeed) {
  compareOnSeeds(firstSeed, 25, 40, passes(shape, wheelSets));
}

TEST(BestWheelSearch, OfOneNumberOnOneWheelAgreesWithThePlainCount) {
  compareBestWheels(Shape::OneNumber, plainWheelSets(1), 21000);
}

TEST(BestWheelSearch, OfOneNumberOnTwoWheelsAgreesWithThePlainCount) {
  compareBestWheels(Shape::OneNumber, plainWheelSets(2), 22000);
}

TEST(BestWheelSearch, OfOneNumberOnThreeWheelsAgreesWithThePlainCount) {
  compareBestWheels(Shape::OneNumber, plainWheelSets(3), 23000);
}

TEST(BestWheelSearch, OfTwoNumbersOnOneWheelAgreesWithThePlainCount) {
  compareBestWheels(Shape::TwoOneWheel, plainWheelSets(1), 24000);
  compareBestWheels(Shape::TwoOneWheel, plainWheelSets(2), 25000);
  compareBestWheels(Shape::TwoOneWheel, plainWheelSets(3), 26000);
}

TEST(BestWheelSearch, OfTwoNumbersOnTwoWheelsAgreesWithThePlainCount) {
  compareBestWheels(Shape::TwoTwoWheels, plainWheelSets(1), 27000);
}

TEST(BestWheelSearch, OfTwoNumbersOnTwoWheelsOnPairsOfWheelsAgreesWithThePlainCount) {
  compareBestWheels(Shape::TwoTwoWheels, plainWheelSets(2), 28000);
}

TEST(BestWheelSearch, TakesAnyNumberOfAnySetsOfWheels) {
  for (unsigned seed = 29000; seed < 29000 + static_cast<unsigned>(randomRuns(200)); ++seed) {
    std::mt19937 rng(seed);
    std::vector<WheelSet> wheelSets(static_cast<std::size_t>(2 + below(rng, 40)));
    for (WheelSet& set : wheelSets) set = randomWheelSet(rng);
    compareOnSeed(seed, 1, passes(below(rng, 2) == 0 ? Shape::OneNumber : Shape::TwoOneWheel, wheelSets));
    if (testing::Test::HasFatalFailure()) return;
  }
}

AmbataRequest onEachWheel(const Archive& archive) {
  AmbataRequest request = oneCase(archive, plainWheelSets(1));
  request.repeatsAtZeroGetLost = true;
  return request;
}

TEST(BestWheelSearch, RanksTheSameFormulaOnceForEachWheelSet) {
  const Archive archive = archiveOf({kCase, {{"CA", {25, 1, 2, 3, 4}}, {"FI", {25, 1, 2, 3, 4}}}});
  const std::vector<Candidate> rows = rowsOf(searchAmbate(onEachWheel(archive)), 15);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].wheelSet, 1);
  EXPECT_EQ(rows[1].wheelSet, 2);
}

TEST(BestWheelSearch, KeepsTheEarlierWheelSetAmongEquals) {
  const Archive archive = archiveOf({kCase, {{"CA", {25, 1, 2, 3, 4}}, {"FI", {25, 1, 2, 3, 4}}}});
  AmbataRequest request = onEachWheel(archive);
  request.allowedFix.fill(false);
  request.allowedFix[15] = true;
  request.keep = 1;
  const std::vector<Candidate> rows = searchAmbate(request);
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows.front().wheelSet, 1);
}

TEST(BestWheelSearch, OfOneNumberLosesTheRepeatsOfTheFormulaWithoutFix) {
  const Archive archive = archiveOf({kCase, {{"CA", {10, 1, 2, 3, 4}}}, {{"CA", {5, 10, 6, 7, 8}}}});
  AmbataRequest request = onEachWheel(archive);
  const std::vector<Candidate> lost = rowsOf(searchAmbate(request), 90);
  ASSERT_EQ(lost.size(), 1U);
  EXPECT_EQ(lost.front().cc, 1);
  EXPECT_EQ(lost.front().pres, 1);
  request.repeatsAtZeroGetLost = false;
  EXPECT_EQ(rowsOf(searchAmbate(request), 90).front().pres, 2);
}

TEST(BestWheelSearch, OfOneNumberKeepsTheRepeatsOfOtherFixes) {
  const Archive archive = archiveOf({kCase, {{"CA", {25, 1, 2, 3, 4}}}, {{"CA", {5, 25, 6, 7, 8}}}});
  EXPECT_EQ(rowsOf(searchAmbate(onEachWheel(archive)), 15).front().pres, 2);
}

TEST(BestWheelSearch, AddsThePresencesOfTheWheelsOfASet) {
  const Archive archive = archiveOf({kCase, {{"CA", {25, 1, 2, 3, 4}}, {"FI", {25, 1, 2, 3, 4}}}});
  AmbataRequest request = onEachWheel(archive);
  request.wheelSets = plainWheelSets(2);
  const Candidate best = rowsOf(searchAmbate(request), 15).front();
  EXPECT_EQ(best.cc, 1);
  EXPECT_EQ(best.wheelSet, 0);  // BA and CA come before CA and FI
  int most = 0;
  for (const Candidate& row : rowsOf(searchAmbate(request), 15)) most = std::max(most, row.pres);
  EXPECT_EQ(most, 2);
}

}  // namespace
}  // namespace trv5
