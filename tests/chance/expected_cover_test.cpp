#include "chance/expected_cover.h"

#include <gtest/gtest.h>

#include <cmath>

#include "chance/fair_draws.h"
#include "chance/hypergeometric.h"
#include "method/verification.h"
#include "support/archive_builder.h"
#include "support/random_runs.h"

namespace trv5 {
namespace {

CaseNumbers inPlay(std::initializer_list<int> ambate, std::initializer_list<int> ambi = {},
                   std::initializer_list<int> terni = {}, std::initializer_list<int> lunghetta = {}) {
  CaseNumbers numbers;
  std::size_t table = 0;
  for (const auto& list : {ambate, ambi, terni, lunghetta}) {
    for (const int n : list) numbers[table].add(n);
    ++table;
  }
  return numbers;
}

TEST(ExpectedCover, CountsTheWheelsThatWereReallyDrawn) {
  const WheelNumbers both = {{"BA", {1, 2, 3, 4, 5}}, {"CA", {1, 2, 3, 4, 5}}}, one = {{"CA", {1, 2, 3, 4, 5}}};
  const Archive archive = archiveOf({both, both, one, {}, both});
  EXPECT_EQ(wheelDraws(archive, 1, {.colpi = 2, .lastDraw = 5, .wheels = 0b11U}), 3);
  EXPECT_EQ(wheelDraws(archive, 1, {.colpi = 9, .lastDraw = 5, .wheels = 0b11U}), 5);
  EXPECT_EQ(wheelDraws(archive, 1, {.colpi = 9, .lastDraw = 3, .wheels = 0b11U}), 3);
  EXPECT_EQ(wheelDraws(archive, 1, {.colpi = 9, .lastDraw = 5, .wheels = 0b01U}), 2);
  EXPECT_EQ(wheelDraws(archive, 5, {.colpi = 9, .lastDraw = 5, .wheels = 0b11U}), 0);
}

TEST(ExpectedCover, KnowsTheForecastsOfTheTables) {
  EXPECT_DOUBLE_EQ(chanceOnWheel(Table::Ambate, inPlay({7, 12}), 0), chanceOfNumbers(2));
  EXPECT_NEAR(chanceOnWheel(Table::Ambi, inPlay({7}, {8}), 0), chanceOfSet(2), 1e-15);
  EXPECT_NEAR(chanceOnWheel(Table::Ambi, inPlay({7}, {8, 9, 10}), 0), chanceOfPivot(3), 1e-15);
  EXPECT_NEAR(chanceOnWheel(Table::Terni, inPlay({7}, {8}, {9}), 0), chanceOfSet(3), 1e-15);
  EXPECT_DOUBLE_EQ(chanceOnWheel(Table::Lunghetta, inPlay({}, {}, {}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}), 2),
                   chanceOfLunghetta(10, 2));
  // The same number in both lists makes no ambo of itself; an ambo written twice is one.
  EXPECT_EQ(chanceOnWheel(Table::Ambi, inPlay({7}, {7}), 0), 0);
  EXPECT_NEAR(chanceOnWheel(Table::Ambi, inPlay({7, 8}, {7, 8}), 0), chanceOfSet(2), 1e-15);
  EXPECT_NEAR(chanceOnWheel(Table::Terni, inPlay({7, 8, 9}, {7, 8, 9}, {7, 8, 9}), 0), chanceOfSet(3), 1e-15);
  EXPECT_EQ(chanceOnWheel(Table::Terni, inPlay({7}, {8}), 0), 0);
  // A wheel not drawn put a 0 in play, which never comes.
  EXPECT_DOUBLE_EQ(chanceOnWheel(Table::Ambate, inPlay({0, 12}), 0), chanceOfNumbers(1));
}

TEST(ExpectedCover, LeavesOutTheCasesThatArentPlayed) {
  const Archive archive = archiveOf({{}, {{"BA", {1, 2, 3, 4, 5}}}, {{"BA", {1, 2, 3, 4, 5}}}});
  const PlayWindow window{.colpi = 5, .lastDraw = 3, .wheels = 1U};
  const std::vector<CaseNumbers> numbers(3, inPlay({7}));
  const ExpectedCover expected = expectedCover(archive, Table::Ambate, numbers, {1, 2, 3}, window, 0, {false, true});
  EXPECT_NEAR(expected.chances[0], 1 - 17.0 * 17 / 18 / 18, 1e-15);
  EXPECT_EQ(expected.chances[1], 0);
  EXPECT_EQ(expected.chances[2], 0);
  EXPECT_EQ(expected.covered.trials(), 2);
  EXPECT_NEAR(expected.covered.mean(), expected.chances[0], 1e-15);
}

// Cases apart from each other on wheels that are missing here and there; the numbers stay from case to case.
TEST(ExpectedCover, OfEachTableAgreesWithFairDraws) {
  const int replicas = randomRuns(20000);
  const std::vector<int> cases = {10, 30, 50, 70, 88};
  for (const auto& [table, numbers] : {std::pair(Table::Ambate, inPlay({7, 50, 90})),
                                       {Table::Ambi, inPlay({7, 50, 90, 12, 1}, {50, 60, 61, 62, 1})},
                                       {Table::Terni, inPlay({1, 2, 3, 4, 5}, {4, 5, 6, 7, 8}, {8, 9, 10, 1, 2})},
                                       {Table::Lunghetta, inPlay({}, {}, {}, {1, 2, 3, 4, 5, 6, 7, 8})}}) {
    SCOPED_TRACE(traitsOf(table).section);
    std::mt19937 rng(4);
    const Archive archive = randomArchive(rng, 90);
    Method method;
    method.wheels = 0b11111111111U;
    method.colpi = 8;
    method.reference = 90;
    method.sorte = 2;
    const std::vector<CaseNumbers> all(cases.size(), numbers);
    const ExpectedCover expected = expectedCover(archive, table, all, cases, method.window(), method.sorte);
    const Redraw redraw = redrawAfter(archive, cases, method.colpi, method.reference, method.wheels);
    FairDraws draws(redraw);
    double sum = 0;
    for (int replica = 0; replica < replicas; ++replica)
      sum += play(draws.replica(1, static_cast<std::uint64_t>(replica)), method, table, cases, {}, all).totals.cases;
    EXPECT_NEAR(sum / replicas, expected.covered.mean(), 3 * std::sqrt(expected.covered.variance() / replicas));
  }
}

}  // namespace
}  // namespace trv5
