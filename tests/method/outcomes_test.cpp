#include "method/outcomes.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "method/search.h"
#include "support/archive_builder.h"
#include "support/print_candidate.h"
#include "support/random_runs.h"
#include "support/random_search.h"
#include "support/whole_method.h"

namespace trv5 {
namespace {

// An archive of the draws of one up to `last` and of those of another behind it.
Archive spliced(const Archive& first, const Archive& then, int last) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= std::max(last, then.NumEstrazioni()); ++draw) {
    DrawRow& row = rows.emplace_back();
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      const std::uint8_t* numbers = (draw <= last ? first : then).wheelOf(draw, wheel);
      if (std::any_of(numbers, numbers + kPositions, [](std::uint8_t n) { return n != 0; }))
        row.wheels[static_cast<std::size_t>(wheel)] =
            wheelText({numbers[0], numbers[1], numbers[2], numbers[3], numbers[4]});
    }
  }
  return archiveOfRows(rows);
}

TEST(Outcomes, OfABlockOfDrawsCountFromItsFirstDraw) {
  std::vector<std::uint8_t> bytes(2 * Archive::kDrawBytes);
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i % 91);
  const Outcomes outcomes(bytes.data(), 40);
  EXPECT_EQ(outcomes.wheelOf(40, 0), bytes.data());
  EXPECT_EQ(outcomes.wheelOf(41, 2), bytes.data() + Archive::kDrawBytes + 2 * kPositions);
}

// A search evaluated once on one archive and run on other outcomes finds what a search finds on an archive that holds
// the draws of the cases and those outcomes.
TEST(Outcomes, OfAnotherArchiveServeASearchThatWasWorkedOutBefore) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(600)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomSearchArchive(rng), other = randomSearchArchive(rng);
    AmbataRequest request = randomAmbataRequest(rng, archive);
    request.wheelSets = {randomWheelSet(rng), randomWheelSet(rng)};
    request.wheelSets.resize(static_cast<std::size_t>(1 + below(rng, 2)));
    request.formula = formulaInput(randomFormula(rng, static_cast<Shape>(below(rng, 4))));
    int last = 0;
    for (const int draw : request.cases) last = std::max(last, draw);
    const Archive both = spliced(archive, other, last);
    AmbataRequest onBoth = request;
    onBoth.archive = &both;
    const AmbataSearch search(request);
    EXPECT_EQ(search.run(archive), searchAmbate(request));
    EXPECT_EQ(search.run(both), searchAmbate(onBoth));
    EXPECT_EQ(search.run(archive), searchAmbate(request));
  }
}

TEST(Outcomes, ReplaceTheDrawsOfAVerificationAndNotItsElements) {
  std::mt19937 rng(7);
  const Archive archive = randomArchive(rng, 200), other = randomArchive(rng, 200);
  Method method = randomSituation(rng, archive);
  method.wheels = (1U << kWheels) - 1U;
  const WholeMethod whole = playWholeMethod(archive, method);
  ASSERT_FALSE(whole.cases.empty());
  const Verification& own = whole.verified[indexOf(Table::Ambate)];
  const Verification played = play(other, whole.method, Table::Ambate, whole.cases, {}, own.numbers);
  EXPECT_EQ(played.numbers[0][0].flags(), own.numbers[0][0].flags());
  for (std::size_t i = 0; i < played.hits.size(); ++i)
    for (const Hit& hit : played.hits[i])
      EXPECT_EQ(other.wheelOf(hit.draw, hit.wheel)[__builtin_ctz(hit.matched)], hit.numbers[0]);
  EXPECT_EQ(play(archive, whole.method, Table::Ambate, whole.cases, {}, own.numbers).totals, own.totals);
}

TEST(WholeMethod, RunsOnPlainDataAndCountsWhatItLists) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomArchive(rng, 150);
    const WholeMethod whole = playWholeMethod(archive, randomSituation(rng, archive));
    EXPECT_LE(static_cast<int>(whole.cases.size()), whole.method.situation.maxCases);
    for (const Verification& verified : whole.verified) {
      Totals counted;
      for (const Hits& hits : verified.hits) counted.add(static_cast<int>(hits.size()));
      EXPECT_EQ(counted, verified.totals);
    }
    int rows = 0;
    for (const SummaryRow& row : whole.summary.rows) rows += row.hit >= 0;
    EXPECT_EQ(rows, whole.summary.positive);
  }
}

}  // namespace
}  // namespace trv5
