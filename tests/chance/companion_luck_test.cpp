#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "chance/search_luck.h"
#include "chance_world.h"
#include "method/method.h"
#include "method/verification.h"
#include "support/random_runs.h"
#include "support/random_search.h"
#include "support/whole_method.h"

namespace trv5 {
namespace {

// Cases apart from each other, ambate and ambi of the method, and the hits that a search of companions starts from.
struct World {
  Archive archive;
  PlainFormula formula;
  CompanionRequest search;
  CandidateRequest verification;

  World(unsigned seed, Table table) {
    std::mt19937 rng(seed);
    archive = fullArchive(rng, 150);
    verification.archive = &archive;
    verification.table = table;
    verification.caseDraws = {140, 128, 110, 95, 80, 64, 50, 33, 20};
    Method& method = verification.method;
    method.wheels = randomWheelSet(rng) | 0b11U;
    method.colpi = 9;
    method.reference = archive.NumEstrazioni();
    method.sorte = 2;
    for (const int n : {7, 35, 61}) method.of(Table::Ambate).push_back(fixedNumber(n));
    if (table == Table::Terni) {
      for (const int n : {8, 22, 44, 63, 71}) method.of(Table::Ambi).push_back(fixedNumber(n));
    }
    if (table == Table::Lunghetta) {
      for (const int n : {7, 35, 61, 80}) method.of(Table::Lunghetta).push_back(fixedNumber(n));
    }
    formula = randomFormula(rng, Shape::OneNumber);
    search.archive = &archive;
    search.formula = formulaInput(formula);
    search.wheels = method.wheels;
    if (table == Table::Terni) search.least = search.most = 2;
    search.guarded = seed % 2 == 0;
    search.allowedFix = everyFix();
    search.withFix = true;
    search.keep = 30;
    ParametriFormula carry;
    const Table hits = table == Table::Terni ? Table::Ambi : table == Table::Ambi ? Table::Ambate : table;
    Method played = method;
    played.sorte = 1;
    search.rows =
        companionRows(verify(archive, played, hits, verification.caseDraws, {}, carry).hits, verification.caseDraws);
  }
  World(const World&) = delete;

  static FormulaRow fixedNumber(int number) {
    FormulaRow row;
    row.fix = number;
    row.fixGiven = true;
    return row;
  }
};

// The best count on each simulated archive, built anew: of the search, or of its candidates each verified for itself.
std::vector<int> plainBests(const World& world, const RepeatedSearch& search, unsigned seed, int replicas,
                            bool verified) {
  FairDraws draws(search.redraw());
  std::vector<int> bests(200);
  for (int replica = 0; replica < replicas; ++replica) {
    const Archive simulated = archiveOfOutcomes(draws.replica(seed, static_cast<std::uint64_t>(replica)), 150);
    CompanionRequest request = world.search;
    request.archive = &simulated;
    int best = 0;
    for (const Candidate& row : plainSearchCompanions(world.formula, request)) {
      int count = row.cc;
      if (verified) {
        Method method = world.verification.method;
        std::vector<CaseNumbers> numbers;
        ParametriFormula carry;
        numbers = numbersInPlay(world.archive, method.formulas, world.verification.caseDraws, carry);
        for (std::size_t i = 0; i < numbers.size(); ++i)
          numbers[i][indexOf(world.verification.table)].add(
              numberOf(world.archive, world.search.formula, row.elements, row.fix, world.verification.caseDraws[i]));
        count =
            play(simulated, method, world.verification.table, world.verification.caseDraws, {}, numbers).totals.cases;
      }
      best = std::max(best, count);
    }
    ++bests[static_cast<std::size_t>(best)];
  }
  return bests;
}

TEST(CompanionLuck, AgreesWithPlainSearchesOnArchivesBuiltAnew) {
  constexpr int kReplicas = 6;
  for (const Table table : {Table::Ambi, Table::Terni, Table::Lunghetta})
    for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(10)); ++seed)
      for (const bool verified : {false, true}) {
        SCOPED_TRACE(std::string(traitsOf(table).section) + " " + std::to_string(seed) + (verified ? " verified" : ""));
        const World world(seed, table);
        ASSERT_FALSE(world.search.rows.empty());
        const auto search =
            verified ? repeatCompanions(world.search, world.verification) : repeatCompanions(world.search);
        SearchLuck luck(search, seed);
        luck.draw(kReplicas);
        std::vector<int> fast = luck.figures().replicasByBest;
        fast.resize(200);
        ASSERT_EQ(fast, plainBests(world, *search, seed, kReplicas, verified));
      }
}

TEST(CompanionLuck, KeepsTheHitsThatTheSearchStartsFrom) {
  const World world(3, Table::Ambi);
  const auto search = repeatCompanions(world.search, world.verification);
  FairDraws draws(search->redraw());
  ParametriFormula carry;
  const Verification own =
      verify(world.archive, world.verification.method, Table::Ambate, world.verification.caseDraws, {}, carry);
  for (std::uint64_t replica = 0; replica < 20; ++replica) {
    const Verification simulated = play(draws.replica(1, replica), world.verification.method, Table::Ambate,
                                        world.verification.caseDraws, {}, own.numbers);
    ASSERT_EQ(simulated.totals, own.totals);
  }
}

// The search on the archive itself beside its replicas: with nothing planted one archive in twenty at most is
// remarkable.
TEST(CompanionLuck, HoldsOnFairArchives) {
  const int archives = randomRuns(300);
  int five = 0;
  for (int i = 0; i < archives; ++i) {
    const World world(static_cast<unsigned>(i) + 1, Table::Ambi);
    SearchLuck luck(repeatCompanions(world.search, world.verification), 1);
    luck.draw(99);
    const LuckFigures figures = luck.figures();
    five += !figures.counts.empty() && figures.counts.front().p <= 0.05;
  }
  EXPECT_LE(five, 0.05 * archives + 3 * std::sqrt(0.05 * 0.95 * archives));
}

}  // namespace
}  // namespace trv5
