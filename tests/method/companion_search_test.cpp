#include <gtest/gtest.h>

#include <limits>

#include "search_setups.h"

namespace trv5 {
namespace {

void compareCompanions(Shape shape, unsigned firstSeed) {
  // Ambo, terno and lunghetta take turns at random.
  compareOnSeeds(firstSeed, 100, 30, [shape](std::mt19937& rng, const Archive& archive, int) {
    const PlainFormula formula = randomFormula(rng, shape);
    CompanionRequest request = randomCompanionRequest(rng, archive);
    request.formula = formulaInput(formula);
    ASSERT_EQ(searchCompanions(request), plainSearchCompanions(formula, request));
  });
}

TEST(CompanionSearch, OfOneNumberAgreesWithThePlainCount) {
  compareCompanions(Shape::OneNumber, 11000);
}

TEST(CompanionSearch, OfTwoNumbersOnOneWheelAgreesWithThePlainCount) {
  compareCompanions(Shape::TwoOneWheel, 12000);
}

TEST(CompanionSearch, OfThreeNumbersOnOneWheelAgreesWithThePlainCount) {
  compareCompanions(Shape::ThreeOneWheel, 13000);
}

TEST(CompanionSearch, OfTwoNumbersOnTwoWheelsAgreesWithThePlainCount) {
  compareCompanions(Shape::TwoTwoWheels, 14000);
}

constexpr WheelSet kBariAndCagliari = 3U;

CompanionRequest onRows(const Archive& archive, std::vector<CompanionRow> rows) {
  auto request = requestOn<CompanionRequest>(archive);
  request.rows = std::move(rows);
  request.wheels = kBariAndCagliari;
  return request;
}

// The row of BA's first number with the fix that makes `number` of it. Without fix a formula finds the companion
// itself, so the number 20 is that of fix 10.
Candidate rowOf(const CompanionRequest& request, int number) {
  return rowOf(searchCompanions(request), fold90(number - 10));
}

TEST(CompanionSearch, CountsTheFourNumbersThatCameOutWithTheAmbata) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 20, 30, 40, 50}}, {"CA", {2, 3, 4, 5, 6}}}});
  const CompanionRequest request = onRows(archive, {{1, 2, {1}}});
  for (const int companion : {20, 30, 40, 50}) EXPECT_EQ(rowOf(request, companion).cc, 1);
  EXPECT_EQ(rowOf(request, 1).cc, 0);
  EXPECT_EQ(rowOf(request, 2).cc, 0);
}

TEST(CompanionSearch, WithoutFixFindsTheCompanionThatTheFormulaGivesItself) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 10, 30, 40, 50}}}});
  CompanionRequest request = onRows(archive, {{1, 2, {1}}});
  request.withFix = false;
  const std::vector<Candidate> rows = searchCompanions(request);
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(rows.front(), (Candidate{{{0, 0, 0}, {1, 0, 0}}, 90, 1, 1, 0}));
}

TEST(CompanionSearch, CountsTheSameHitOnTwoWheelsOnBoth) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 20, 30, 40, 50}}, {"CA", {20, 1, 4, 5, 6}}}});
  const Candidate row = rowOf(onRows(archive, {{1, 2, {1}}}), 20);
  EXPECT_EQ(row.cc, 2);
  EXPECT_EQ(row.pres, 2);
}

TEST(CompanionSearch, CountsEveryRowOfARepeatedHitDrawWithoutGuard) {
  const Archive archive = archiveOf({kCase, kCase, {{"BA", {1, 20, 30, 40, 50}}}});
  EXPECT_EQ(rowOf(onRows(archive, {{1, 3, {1}}, {2, 3, {1}}}), 20).cc, 2);
}

TEST(CompanionSearch, OfTernoNeedsTheWholeAmboOnOneWheel) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 20, 30, 40, 50}}, {"CA", {1, 2, 25, 5, 6}}}});
  CompanionRequest request = onRows(archive, {{1, 2, {1, 2}}});
  request.least = request.most = 2;
  request.guarded = true;
  EXPECT_EQ(rowOf(request, 25).cc, 1);
  EXPECT_EQ(rowOf(request, 20).cc, 0);
}

TEST(CompanionSearch, OfTernoAddsNothingForAnAmboOfTwoEqualNumbers) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 20, 30, 40, 50}}}});
  CompanionRequest request = onRows(archive, {{1, 2, {1, 1}}});
  request.least = request.most = 2;
  EXPECT_TRUE(searchCompanions(request).empty());
}

TEST(CompanionSearch, OfTernoDropsTheSecondRowOfAHitDrawOnlyWithGuard) {
  const Archive archive = archiveOf({kCase, kCase, {{"BA", {1, 2, 20, 40, 50}}}});
  CompanionRequest request = onRows(archive, {{1, 3, {1, 2}}, {2, 3, {1, 2}}});
  request.least = request.most = 2;
  EXPECT_EQ(rowOf(request, 20).cc, 2);
  request.guarded = true;
  EXPECT_EQ(rowOf(request, 20).cc, 1);
}

TEST(CompanionSearch, OfTernoKeepsAHitDrawFreeUntilARowFindsItsAmboThere) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 2, 20, 40, 50}}}});
  CompanionRequest request = onRows(archive, {{1, 2, {1, 7}}, {1, 2, {1, 2}}});
  request.least = request.most = 2;
  request.guarded = true;
  EXPECT_EQ(rowOf(request, 20).cc, 1);
}

TEST(CompanionSearch, OfTernoCountsACompanionOnTwoWheelsAsOneCaseAndTwoPresences) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 2, 20, 40, 50}}, {"CA", {20, 1, 2, 5, 6}}}});
  CompanionRequest request = onRows(archive, {{1, 2, {1, 2}}});
  request.least = request.most = 2;
  request.guarded = true;
  EXPECT_EQ(rowOf(request, 20).cc, 1);
  EXPECT_EQ(rowOf(request, 20).pres, 2);
  request.guarded = false;
  EXPECT_EQ(rowOf(request, 20).cc, 2);
}

TEST(CompanionSearch, OfLunghettaTakesWheelsWithAtLeastTheNumbersAskedFor) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 20, 30, 40, 50}}, {"CA", {1, 2, 3, 25, 6}}}});
  CompanionRequest request = onRows(archive, {{1, 2, {1, 2, 3}}});
  request.least = 2;
  EXPECT_EQ(rowOf(request, 25).cc, 1);
  EXPECT_EQ(rowOf(request, 20).cc, 0);
  request.least = 1;
  EXPECT_EQ(rowOf(request, 20).cc, 1);
}

TEST(CompanionSearch, RanksEqualFormulasOfTwoWheelsElementByElement) {
  const Archive archive = archiveOf({{{"BA", {1, 2, 3, 4, 5}}, {"CA", {6, 7, 8, 9, 15}}, {"FI", {16, 20, 21, 22, 23}}},
                                     {{"BA", {60, 17, 70, 71, 72}}}});
  CompanionRequest request = onRows(archive, {{1, 2, {60}}});
  request.formula = formulaInput({Shape::TwoTwoWheels});
  request.withFix = false;
  std::vector<ElementSet> found;
  for (const Candidate& row : searchCompanions(request))
    if (row.elements.wheels[1] < 3) found.push_back(row.elements);
  // Both give 17: the first number of BA comes before the second, though FI stands behind CA.
  const std::vector<ElementSet> expected = {{{0, 2, 0}, {1, 1, 0}}, {{0, 1, 0}, {2, 5, 0}}};
  EXPECT_EQ(found, expected);
}

TEST(CompanionSearch, CountsPastTwoHundredFiftyFive) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 20, 30, 40, 50}}, {"CA", {20, 1, 4, 5, 6}}}});
  const CompanionRequest request = onRows(archive, std::vector<CompanionRow>(300, {1, 2, {1}}));
  EXPECT_EQ(rowOf(request, 20).cc, 600);
}

TEST(CompanionSearch, TakesADrawThatCannotBeForOneWithoutNumbers) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 20, 30, 40, 50}}}});
  std::vector<CompanionRow> rows = {{1, 2, {1}}};
  for (const int draw : {std::numeric_limits<int>::min(), -1, Archive::kMaxDraws, Archive::kMaxDraws + 1,
                         std::numeric_limits<int>::max()}) {
    rows.push_back({1, draw, {1}});
    rows.push_back({draw, 2, {1}});
  }
  const CompanionRequest request = onRows(archive, rows);
  // A case without numbers gives the fix itself, 10.
  EXPECT_EQ(rowOf(request, 20).cc, 1);
}

TEST(CompanionSearch, TakesTheLastDrawThatAnArchiveCanHold) {
  std::vector<WheelNumbers> draws(Archive::kMaxDraws, WheelNumbers{{"BA", {10, 2, 3, 4, 5}}});
  draws.back() = {{"BA", {1, 20, 30, 40, 50}}};
  const Archive archive = archiveOf(draws);
  const CompanionRequest request = onRows(archive, {{Archive::kMaxDraws - 1, Archive::kMaxDraws, {1}}});
  EXPECT_EQ(rowOf(request, 20).cc, 1);
}

TEST(CompanionSearch, TakesForInPlayWhatTheLottoHas) {
  const Archive archive = archiveOf({kCase, {{"BA", {1, 20, 30, 40, 95}}}});
  CompanionRequest request = onRows(archive, {{1, 2, {-3, 1, 95, 1000}}});
  request.least = request.most = 1;
  for (const int companion : {20, 30, 40}) EXPECT_EQ(rowOf(request, companion).cc, 1);
  EXPECT_EQ(rowOf(request, 1).cc, 0);
}

}  // namespace
}  // namespace trv5
