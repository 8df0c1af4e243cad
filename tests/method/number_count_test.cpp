#include <gtest/gtest.h>

#include "support/archive_builder.h"
#include "support/print_candidate.h"
#include "support/random_runs.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

TEST(NumberCount, AfterCasesAgreesWithThePlainCount) {
  for (unsigned seed = 31000; seed < 31000 + static_cast<unsigned>(randomRuns(200)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomSearchArchive(rng);
    for (int setting = 0; setting < 5; ++setting) {
      const AmbataRequest random = randomAmbataRequest(rng, archive);
      const int wheels = below(rng, 4);
      const std::vector<WheelSet> sets =
          wheels == 0 ? std::vector<WheelSet>{randomWheelSet(rng)} : plainWheelSets(wheels);
      ASSERT_EQ(countNumbers(archive, random.cases, random.colpi, random.lastDraw, sets),
                plainCountNumbers(archive, random.cases, random.colpi, random.lastDraw, sets));
    }
  }
}

TEST(NumberCount, AtHitsAgreesWithThePlainCount) {
  for (unsigned seed = 32000; seed < 32000 + static_cast<unsigned>(randomRuns(200)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomSearchArchive(rng);
    for (int setting = 0; setting < 5; ++setting) {
      const CompanionRequest random = randomCompanionRequest(rng, archive);
      std::vector<PureNumberRow> rows;
      for (const CompanionRow& row : random.rows) rows.push_back({1 + below(rng, 50), row.hitDraw, row.numbers});
      ASSERT_EQ(countNumbersAtHits(archive, rows, random.wheels),
                plainCountNumbersAtHits(archive, rows, random.wheels));
    }
  }
}

TEST(NumberCount, ANumberOnTwoWheelsOfPlayInTheSameHitDrawIsOneCaseAndTwoPresences) {
  const Archive archive = archiveOf({{{"BA", {1, 2, 3, 4, 5}}, {"CA", {2, 6, 7, 8, 9}}}});
  const NumberCounts counts = countNumbersAtHits(archive, {{1, 1, {1}}}, 3U);
  EXPECT_EQ(counts[2], (NumberCount{1, 2}));
}

TEST(NumberCount, LeavesOutTheNumberInPlayAlsoOnAnotherWheel) {
  const Archive archive = archiveOf({{{"BA", {1, 2, 3, 4, 5}}, {"CA", {1, 6, 7, 8, 9}}}});
  const NumberCounts counts = countNumbersAtHits(archive, {{1, 1, {1}}}, 3U);
  EXPECT_EQ(counts[1], (NumberCount{0, 0}));
  EXPECT_EQ(counts[6], (NumberCount{1, 1}));
}

TEST(NumberCount, PassesOverNumbersInPlayThatTheLottoDoesNotHave) {
  const Archive archive = archiveOf({{{"BA", {1, 2, 3, 4, 5}}}});
  const NumberCounts counts = countNumbersAtHits(archive, {{1, 1, {-5, 1, 91, 1000000}}}, 1U);
  EXPECT_EQ(counts[1], (NumberCount{0, 0}));
  EXPECT_EQ(counts[2], (NumberCount{1, 1}));
}

TEST(NumberCount, TakesTwoHitsOfACaseForOneCase) {
  const Archive archive = archiveOf({{{"BA", {1, 2, 3, 4, 5}}}, {{"BA", {1, 2, 6, 7, 8}}}});
  const NumberCounts counts = countNumbersAtHits(archive, {{4, 1, {1}}, {4, 2, {1}}}, 1U);
  EXPECT_EQ(counts[2], (NumberCount{1, 2}));
}

}  // namespace
}  // namespace trv5
