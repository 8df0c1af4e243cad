#include <gtest/gtest.h>

#include <set>

#include "search_setups.h"

namespace trv5 {
namespace {

void compareAmbate(Shape shape, unsigned firstSeed) {
  compareOnSeeds(firstSeed, 100, 20, [shape](std::mt19937& rng, const Archive& archive, int setting) {
    const PlainFormula formula = randomFormula(rng, shape);
    AmbataRequest request = randomAmbataRequest(rng, archive);
    request.wheelSets = {randomWheelSet(rng)};
    request.formula = formulaInput(formula);
    if (shape == Shape::TwoTwoWheels && setting % 4 != 0)
      request.cases.resize(std::min<std::size_t>(request.cases.size(), 3));
    ASSERT_EQ(searchAmbate(request), plainSearchAmbate(formula, request));
  });
}

TEST(AmbataSearch, OfOneNumberAgreesWithThePlainCount) {
  compareAmbate(Shape::OneNumber, 1000);
}

TEST(AmbataSearch, OfTwoNumbersOnOneWheelAgreesWithThePlainCount) {
  compareAmbate(Shape::TwoOneWheel, 2000);
}

TEST(AmbataSearch, OfThreeNumbersOnOneWheelAgreesWithThePlainCount) {
  compareAmbate(Shape::ThreeOneWheel, 3000);
}

TEST(AmbataSearch, OfTwoNumbersOnTwoWheelsAgreesWithThePlainCount) {
  compareAmbate(Shape::TwoTwoWheels, 4000);
}

AmbataRequest onBari(const Archive& archive) {
  return oneCase(archive, {1U});
}

TEST(AmbataSearch, CountsACaseOnceHoweverOftenItHits) {
  const Archive archive = archiveOf({kCase, {{"BA", {25, 1, 2, 3, 4}}}, {{"BA", {5, 6, 25, 7, 8}}}});
  const Candidate row = rowOf(searchAmbate(onBari(archive)), 15);
  EXPECT_EQ(row.cc, 1);
  EXPECT_EQ(row.pres, 2);
}

TEST(AmbataSearch, CountsANumberOnTwoWheelsOfPlayAsOneCaseAndTwoPresences) {
  const Archive archive = archiveOf({kCase, {{"BA", {25, 1, 2, 3, 4}}, {"CA", {5, 6, 25, 7, 8}}}});
  AmbataRequest request = onBari(archive);
  request.wheelSets = {3U};
  const Candidate row = rowOf(searchAmbate(request), 15);
  EXPECT_EQ(row.cc, 1);
  EXPECT_EQ(row.pres, 2);
}

TEST(AmbataSearch, TakesAWheelNotDrawnAndNinetyForTwoNumbersOfOneFix) {
  const Archive archive = archiveOf({kCase, {{"BA", {90, 1, 2, 3, 4}}}, {{"CA", {1, 2, 3, 4, 5}}}});
  const Candidate row = rowOf(searchAmbate(onBari(archive)), 80);  // 10 + 80; the third draw has no BA
  EXPECT_EQ(row.cc, 2);
  EXPECT_EQ(row.pres, 6);
}

TEST(AmbataSearch, WithoutFixFindsOnlyTheNumberItself) {
  const Archive archive = archiveOf({kCase, {{"BA", {10, 1, 2, 3, 4}}}});
  AmbataRequest request = onBari(archive);
  request.withFix = false;
  request.wheelSets = {1U};
  std::set<int> fixes;
  for (const Candidate& row : searchAmbate(request)) fixes.insert(row.fix);
  EXPECT_EQ(fixes, std::set<int>{90});
  EXPECT_EQ(rowOf(searchAmbate(request), 90).cc, 1);
}

TEST(AmbataSearch, FindsOnlyAllowedFixes) {
  const Archive archive = archiveOf({kCase, {{"BA", {25, 1, 2, 3, 4}}}});
  AmbataRequest request = onBari(archive);
  request.allowedFix.fill(false);
  request.allowedFix[15] = true;
  for (const Candidate& row : searchAmbate(request)) EXPECT_EQ(row.fix, 15);
  EXPECT_EQ(rowOf(searchAmbate(request), 15).cc, 1);
}

TEST(AmbataSearch, FindsNothingWithoutAWheelOfPlay) {
  const Archive archive = archiveOf({kCase, {{"BA", {25, 1, 2, 3, 4}}}});
  AmbataRequest request = onBari(archive);
  request.wheelSets = {0U};
  EXPECT_TRUE(searchAmbate(request).empty());
}

TEST(AmbataSearch, FindsNothingWithoutACountingCase) {
  const Archive archive = archiveOf({kCase, {{"BA", {25, 1, 2, 3, 4}}}});
  AmbataRequest request = onBari(archive);
  request.cases.clear();
  EXPECT_TRUE(searchAmbate(request).empty());
}

TEST(AmbataSearch, KeepsTheEarlierOfTwoFormulasThatCoverAsManyCases) {
  // 10 + 15 comes once, 11 + 14 (the same 25) too; fix 14 is met first, whatever its presences.
  const Archive archive = archiveOf({kCase, {{"BA", {25, 1, 2, 3, 4}}}, {{"BA", {25, 1, 2, 3, 4}}}});
  AmbataRequest request = onBari(archive);
  request.allowedFix.fill(false);
  request.allowedFix[14] = request.allowedFix[15] = true;
  request.keep = 1;
  const std::vector<Candidate> rows = searchAmbate(request);
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows.front(), (Candidate{{{0, 0, 0}, {2, 0, 0}}, 14, 1, 2, 0}));
}

TEST(AmbataSearch, SeesNoDrawBehindTheReferenceDraw) {
  const Archive archive = archiveOf({kCase, {{"BA", {25, 1, 2, 3, 4}}}, {{"BA", {35, 5, 6, 7, 8}}}});
  AmbataRequest request = onBari(archive);
  request.lastDraw = 2;
  EXPECT_EQ(rowOf(searchAmbate(request), 15).cc, 1);
  EXPECT_EQ(rowOf(searchAmbate(request), 25).cc, 0);
  request.lastDraw = 1;
  EXPECT_TRUE(searchAmbate(request).empty());
}

TEST(AmbataSearch, ReachesAsFarAsTheColpi) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 2, 3, 4, 5}}}, {{"BA", {25, 6, 7, 8, 9}}}});
  AmbataRequest request = onBari(archive);
  request.colpi = 2;
  EXPECT_EQ(rowOf(searchAmbate(request), 15).cc, 1);
  request.colpi = 1;
  EXPECT_EQ(rowOf(searchAmbate(request), 15).cc, 0);
}

TEST(AmbataSearch, KeepsNothingInARankingOfNoRows) {
  const Archive archive = archiveOf({kCase, {{"BA", {25, 1, 2, 3, 4}}}});
  AmbataRequest request = onBari(archive);
  request.keep = 0;
  EXPECT_TRUE(searchAmbate(request).empty());
}

TEST(AmbataSearch, CountsAllDrawsOfALongArchiveWithoutOverflow) {
  // Every wheel shows the same five numbers in 9,998 draws: 55 presences a draw of each fix.
  const std::string numbers = wheelText({1, 2, 3, 4, 5});
  DrawRow row;
  row.wheels.fill(numbers);
  Archive archive;
  archive.loadNumbers(std::vector<DrawRow>(Archive::kMaxDraws, row));
  AmbataRequest request = onBari(archive);
  request.cases.assign(50, 1);
  request.colpi = 32767;
  request.wheelSets = {(1U << kWheels) - 1U};
  const Candidate best = searchAmbate(request).front();
  EXPECT_EQ(best.cc, 50);
  EXPECT_EQ(best.pres, 50 * 9998 * kWheels);
}

}  // namespace
}  // namespace trv5
