#include "chance/formula_tally.h"

#include <gtest/gtest.h>

#include <cmath>

#include "chance/hypergeometric.h"
#include "chance/poisson_binomial.h"
#include "chance/search_luck.h"
#include "chance_world.h"
#include "support/random_runs.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

// How many rows the whole ranking has of each count.
std::vector<std::int64_t> countedRows(const AmbataRequest& request, int least) {
  AmbataRequest all = request;
  all.keep = 1000000;
  std::vector<std::int64_t> formulas;
  for (const Candidate& row : searchAmbate(all)) {
    if (row.cc < least) continue;
    formulas.resize(std::max(formulas.size(), static_cast<std::size_t>(row.cc) + 1));
    ++formulas[static_cast<std::size_t>(row.cc)];
  }
  return formulas;
}

TEST(FormulaTally, CountsTheRowsOfTheWholeRanking) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(300)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomSearchArchive(rng);
    constexpr Shape kShapes[] = {Shape::OneNumber, Shape::TwoOneWheel, Shape::ThreeOneWheel, Shape::TwoTwoWheels};
    AmbataRequest request = randomAmbataRequest(rng, archive);
    request.formula = formulaInput(randomFormula(rng, kShapes[seed % 4]));
    request.wheelSets.resize(seed % 3 == 0 ? 1U + rng() % 7 : 1U);
    for (WheelSet& set : request.wheelSets) set = randomWheelSet(rng);
    const int least = 1 + below(rng, 4);
    std::vector<std::int64_t> fast = AmbataSearch(request).tally(archive, least), plain = countedRows(request, least);
    ASSERT_GE(fast.size(), plain.size());
    plain.resize(fast.size());
    ASSERT_EQ(fast, plain);
  }
}

TEST(FormulaTally, OfLuckAgreesWithTheChanceOfEachFormula) {
  std::mt19937 rng(1);
  const Archive archive = fullArchive(rng, 250);
  const AmbataRequest request = searchOn(archive, 20, 12, 9);
  const auto search = repeatAmbate(request);
  const int replicas = randomRuns(2000);
  const std::vector<TallyOfCount> rows = tallyLuck(*search, 1, replicas, 10);
  ASSERT_GT(rows.size(), 6U);
  const PoissonBinomial luck(std::vector<double>(20, chanceOfDraws(chanceOfSet(1), 9)));
  std::vector<std::int64_t> own = countedRows(request, 10);
  std::int64_t sum = 0;
  for (const TallyOfCount& row : rows) {
    if (static_cast<std::size_t>(row.count) < own.size()) sum += own[static_cast<std::size_t>(row.count)];
    EXPECT_EQ(row.own, sum);
    if (row.count > 15) continue;
    const double expected = 110 * 90 * luck.atLeast(row.count);
    EXPECT_NEAR(row.byLuck / expected, 1, 0.5 / std::sqrt(replicas / 20.0)) << row.count;
  }
  EXPECT_EQ(rows.back().count, 10);
}

TEST(FormulaTally, IsTheSameForAnyNumberOfThreadsAndStops) {
  std::mt19937 rng(2);
  const Archive archive = fullArchive(rng, 250);
  const auto search = repeatAmbate(searchOn(archive, 20, 12, 9));
  const auto one = tallyLuck(*search, 1, 100, 8, {.threads = 1}), eight = tallyLuck(*search, 1, 100, 8, {.threads = 8});
  ASSERT_EQ(one.size(), eight.size());
  for (std::size_t i = 0; i < one.size(); ++i) EXPECT_EQ(one[i].byLuck, eight[i].byLuck);
  std::stop_source stop;
  stop.request_stop();
  EXPECT_TRUE(tallyLuck(*search, 1, 100, 8, {.stop = stop.get_token()}).empty());
}

TEST(FormulaTally, GoesOnPieceByPieceToTheSameFigures) {
  std::mt19937 rng(2);
  const Archive archive = fullArchive(rng, 250);
  const auto search = repeatAmbate(searchOn(archive, 20, 12, 9));
  FormulaTally tally(search, 1, 1);
  std::stop_source stop;
  stop.request_stop();
  for (const int replicas : {7, 8, 60, 40, 100}) {
    tally.draw(replicas, {.stop = stop.get_token()});
    tally.draw(replicas, {.threads = 1 + replicas % 3});
  }
  EXPECT_EQ(tally.replicas(), 100);
  const auto whole = tallyLuck(*search, 1, 100, 1), pieces = tally.rows();
  ASSERT_EQ(pieces.size(), whole.size());
  for (std::size_t i = 0; i < whole.size(); ++i) {
    EXPECT_EQ(pieces[i].own, whole[i].own);
    EXPECT_EQ(pieces[i].byLuck, whole[i].byLuck);
  }
}

TEST(FormulaTally, KnowsTheBestOfEachReplicaAsTheSimulatedMaximumDoes) {
  std::mt19937 rng(4);
  const Archive archive = fullArchive(rng, 250);
  const auto search = repeatAmbate(searchOn(archive, 20, 12, 9));
  FormulaTally tally(search, 3, 1);
  tally.draw(100);
  SearchLuck luck(search, 3);
  luck.draw(100);
  EXPECT_EQ(tally.replicasByBest(), luck.figures().replicasByBest);
  EXPECT_EQ(tally.best(), luck.figures().best);
  EXPECT_DOUBLE_EQ(tally.mean(), luck.figures().mean);
}

TEST(FormulaTally, OfOtherSearchesCountsTheirRows) {
  std::mt19937 rng(3);
  const Archive archive = fullArchive(rng, 200);
  const auto search = repeatPureNumbers(archive, {20, 60, 100, 140}, 9, 200, plainWheelSets(2), 5000);
  std::int64_t rows = 0;
  for (const CountedRow& row : search->run(archive, 5000)) rows += row.count >= 3;
  const std::vector<TallyOfCount> tally = tallyLuck(*search, 1, 10, 3);
  ASSERT_FALSE(tally.empty());
  EXPECT_EQ(tally.back().count, 3);
  EXPECT_EQ(tally.back().own, rows);
}

}  // namespace
}  // namespace trv5
