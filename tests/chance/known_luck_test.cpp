#include <gtest/gtest.h>

#include "chance/search_luck.h"
#include "chance_world.h"
#include "support/random_runs.h"

// What the best formula of a search covers by luck, as worked out beforehand by other means.

namespace trv5 {
namespace {

LuckFigures luckOf(const AmbataRequest& request, int replicas) {
  SearchLuck luck(repeatAmbate(request), 1);
  luck.draw(replicas);
  return luck.figures();
}

TEST(KnownLuck, OfOneNumberOnFifteenSeparateCases) {
  std::mt19937 rng(1);
  const Archive archive = fullArchive(rng, 200);
  const LuckFigures luck = luckOf(searchOn(archive, 15, 10, 9, Shape::OneNumber), randomRuns(10000));
  EXPECT_NEAR(luck.mean, 12.9, 0.1);
}

TEST(KnownLuck, OfTwoNumbersOnThirtySeparateCases) {
  std::mt19937 rng(2);
  const Archive archive = fullArchive(rng, 400);
  const LuckFigures luck = luckOf(searchOn(archive, 30, 10, 9), randomRuns(10000));
  EXPECT_NEAR(luck.mean, 22.4, 0.1);
  EXPECT_NEAR(static_cast<double>(luck.reached(24)) / luck.replicas, 0.095, 0.01);
}

TEST(KnownLuck, OfTwoWheelsPlayed) {
  std::mt19937 rng(3);
  const Archive archive = fullArchive(rng, 400);
  AmbataRequest request = searchOn(archive, 30, 10, 9, Shape::TwoTwoWheels);
  request.wheelSets = {0b11U};
  EXPECT_NEAR(luckOf(request, randomRuns(2000)).mean, 29.2, 0.1);
}

// Cases that share most of their colpi and formulas that share nine values: what independent formulas would reach on
// 0.6 of 100 archives. It hangs on the elements of the archive, so it is the mean of many.
TEST(KnownLuck, OfNineValuesOnConsecutiveCases) {
  constexpr int kArchives = 100;
  const int replicas = randomRuns(500);
  double share = 0;
  for (unsigned seed = 1; seed <= kArchives; ++seed) {
    std::mt19937 rng(seed);
    const Archive archive = fullArchive(rng, 60);
    AmbataRequest request = searchOn(archive, 15, 1, 9, Shape::OneNumber);
    request.formula = formulaInput({Shape::OneNumber, 7, {}, 0, ascendingTriples()});
    share += static_cast<double>(luckOf(request, replicas).reached(15)) / replicas / kArchives;
  }
  EXPECT_NEAR(share, 0.195, replicas == 500 ? 0.01 : 0.03);
}

}  // namespace
}  // namespace trv5
