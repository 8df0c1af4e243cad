#include <gtest/gtest.h>

#include <cmath>

#include "chance/forward_test.h"
#include "chance/search_luck.h"
#include "chance_world.h"
#include "support/random_runs.h"

// Whether the figures keep their word over many archives: what calls one archive in twenty remarkable has to do so on
// one fair archive in twenty, and to find a rule that is really there.

namespace trv5 {
namespace {

constexpr int kColpi = 9, kStep = 12, kCases = 34, kDraws = 430;

// Cases are every twelve draws; BA and CA alone are drawn, which is all that the searches look at.
Archive twoWheels(std::mt19937& rng, int draws) {
  std::vector<DrawRow> rows(static_cast<std::size_t>(draws));
  for (std::size_t draw = 0; draw < rows.size(); ++draw) {
    rows[draw].date = dateOfDraw(static_cast<int>(draw) + 1);
    rows[draw].wheels[0] = wheelText(randomWheel(rng));
    rows[draw].wheels[1] = wheelText(randomWheel(rng));
  }
  return archiveOfRows(rows);
}

// The same where in nine cases of ten the sum of the first two of BA, more 15, comes on BA in one of the colpi.
Archive plantedArchive(std::mt19937& rng, int draws, const std::vector<int>& cases) {
  const Archive fair = twoWheels(rng, draws);
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= draws; ++draw) {
    DrawRow& row = rows.emplace_back();
    row.date = fair.DateEstrazioni(draw);
    for (int wheel = 0; wheel < 2; ++wheel) {
      std::array<int, 5> numbers{};
      for (int k = 0; k < 5; ++k) numbers[static_cast<std::size_t>(k)] = fair.number(draw, wheel, k + 1);
      row.wheels[static_cast<std::size_t>(wheel)] = wheelText(numbers);
    }
  }
  for (const int draw : cases) {
    if (rng() % 10 == 0) continue;
    const int number = (fair.number(draw, 0, 1) + fair.number(draw, 0, 2) + 15 + 89) % 90 + 1;
    const auto colpo = static_cast<int>(1 + rng() % kColpi);
    std::array<int, 5> numbers{};
    bool there = false;
    for (int k = 0; k < 5; ++k) {
      numbers[static_cast<std::size_t>(k)] = fair.number(draw + colpo, 0, k + 1);
      there = there || numbers[static_cast<std::size_t>(k)] == number;
    }
    if (!there) numbers[rng() % 5] = number;
    rows[static_cast<std::size_t>(draw + colpo - 1)].wheels[0] = wheelText(numbers);
  }
  return archiveOfRows(rows);
}

// The chance that luck brings the best count of a search on this archive.
double chanceOfSearch(const Archive& archive, unsigned seed, int replicas) {
  SearchLuck luck(repeatAmbate(searchOn(archive, kCases, kStep, kColpi)), seed);
  luck.draw(replicas);
  return luck.figures().counts.front().p;
}

// On how many fair archives the chance is at most so much.
int fairArchivesBelow(double chance, int archives, int replicas) {
  int below = 0;
  for (int i = 0; i < archives; ++i) {
    const unsigned seed = static_cast<unsigned>(i) + 1;
    std::mt19937 rng(seed);
    below += chanceOfSearch(twoWheels(rng, kDraws), seed, replicas) <= chance;
  }
  return below;
}

// Of this search 26 cases or more are found on 3.5 of 100 archives, 25 or more on 14, 24 or more on 46: the chance is
// at most 0.05 on the first, at most 0.5 on the last.
TEST(Calibration, OfTheSimulatedMaximumCallsOneFairArchiveInTwentyRemarkableAtMost) {
  const int archives = randomRuns(2000);
  const int below = fairArchivesBelow(0.05, archives, 99);
  RecordProperty("Archives", below);
  // A share of the archives says as much only within its own error.
  EXPECT_LE(below, 0.05 * archives + (archives == 2000 ? 0 : 3 * std::sqrt(0.05 * 0.95 * archives)));
}

TEST(Calibration, OfTheSimulatedMaximumIsAsOftenLowAsHigh) {
  const int archives = randomRuns(400);
  const int below = fairArchivesBelow(0.5, archives, 499);
  RecordProperty("Archives", below);
  const double error = archives == 400 ? 0 : 3 * std::sqrt(0.25 * archives);
  EXPECT_GE(below, 0.40 * archives - error);
  EXPECT_LE(below, 0.55 * archives + error);
}

TEST(Calibration, OfTheSimulatedMaximumFindsAPlantedRule) {
  const int archives = randomRuns(200);
  int found = 0;
  for (int i = 0; i < archives; ++i) {
    std::mt19937 rng(static_cast<unsigned>(i) + 10001);
    std::vector<int> cases;
    for (int k = 0; k < kCases; ++k) cases.push_back(kDraws - kColpi - k * kStep);
    found += chanceOfSearch(plantedArchive(rng, kDraws, cases), static_cast<unsigned>(i) + 1, 99) <= 0.05;
  }
  RecordProperty("Found", found);
  EXPECT_GE(found, 0.97 * archives);
}

ForwardFigures forwardOn(const Archive& archive, const std::vector<int>& cases) {
  ForwardRequest request{.search = searchOn(archive, 1, 1, kColpi), .cases = cases, .learnt = 20};
  return testForward(request);
}

std::vector<int> everyTwelfth(int draws) {
  std::vector<int> cases;
  for (int draw = 1; draw + kColpi <= draws; draw += kStep) cases.push_back(draw);
  return cases;
}

TEST(Calibration, OfTheTestForwardHoldsOnFairArchives) {
  constexpr int kLongDraws = 620;
  const int archives = randomRuns(500);
  double covered = 0, expected = 0, variance = 0;
  int tenths[11] = {};
  for (int i = 0; i < archives; ++i) {
    std::mt19937 rng(static_cast<unsigned>(i) + 20001);
    const ForwardFigures figures = forwardOn(twoWheels(rng, kLongDraws), everyTwelfth(kLongDraws));
    covered += figures.covered;
    expected += figures.expected;
    for (const ForwardTest& test : figures.tests) variance += test.chance * (1 - test.chance);
    for (int tenth = 1; tenth <= 10; ++tenth) tenths[tenth] += figures.atLeast <= tenth / 10.0;
  }
  EXPECT_NEAR(covered, expected, 3 * std::sqrt(variance));
  // Not more often below a chance than that chance says, and not rarer than by the weight of one count, 0.15.
  for (int tenth = 1; tenth <= 10; ++tenth) {
    const double share = static_cast<double>(tenths[tenth]) / archives, chance = tenth / 10.0;
    const double error = 3 * std::sqrt(chance * (1 - chance) / archives);
    EXPECT_LE(share, chance + error) << chance;
    EXPECT_GE(share, chance - 0.15 - error) << chance;
  }
}

TEST(Calibration, OfTheTestForwardFindsAPlantedRule) {
  constexpr int kLongDraws = 620;
  for (unsigned seed = 30001; seed < 30001 + static_cast<unsigned>(randomRuns(20)); ++seed) {
    std::mt19937 rng(seed);
    const ForwardFigures figures =
        forwardOn(plantedArchive(rng, kLongDraws, everyTwelfth(kLongDraws)), everyTwelfth(kLongDraws));
    ASSERT_GT(figures.tests.size(), 25U);
    EXPECT_LT(figures.atLeast, 0.001) << seed;
    EXPECT_GT(figures.share.low, figures.expected / static_cast<double>(figures.tests.size())) << seed;
  }
}

}  // namespace
}  // namespace trv5
