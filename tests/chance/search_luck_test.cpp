#include "chance/search_luck.h"

#include <gtest/gtest.h>

#include <map>
#include <thread>

#include "chance_world.h"
#include "support/random_runs.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

using FormulaCounts = std::map<std::tuple<int, int, std::vector<int>>, int>;

// Every formula of a search with the cases that it covers, its elements read from one archive, its hits from another.
// A wheel not drawn counts as a hit of number 90, beside 90 itself, as in the search.
FormulaCounts countsOf(const PlainFormula& formula, const AmbataRequest& request, const Archive& outcomes) {
  FormulaCounts counts;
  const FormulaInput input = formulaInput(formula);
  for (const int draw : request.cases)
    for (std::size_t set = 0; set < request.wheelSets.size(); ++set) {
      std::array<bool, 91> drawn{};
      for (int d = draw + 1; d <= std::min(draw + request.colpi, request.lastDraw); ++d)
        for (int w = 0; w < kWheels; ++w)
          for (int k = 1; k <= 5; ++k)
            if (holds(request.wheelSets[set], w)) drawn[static_cast<std::size_t>(outcomes.number(d, w, k))] = true;
      for (const ElementSet& elements : elementSets(formula.shape, SetOrder::WheelsFirst, formula.triples))
        for (int fix = 1; fix <= 90; ++fix) {
          if (request.withFix ? !request.allowedFix[static_cast<std::size_t>(fix)] : fix != 90) continue;
          const int number = numberOf(*request.archive, input, elements, fix, draw);
          std::vector<int> places(elements.wheels.begin(), elements.wheels.end());
          places.insert(places.end(), elements.positions.begin(), elements.positions.end());
          counts[{static_cast<int>(set), fix, places}] +=
              drawn[static_cast<std::size_t>(number)] + (number == 90 && drawn[0]);
        }
    }
  return counts;
}

// The figures as they are told: each simulated archive is built, the search run on it, and for each count of the own
// ranking the best of the formulas looked up that cover no more than that.
LuckFigures plainLuck(const PlainFormula& formula, const AmbataRequest& request, std::uint64_t seed, int replicas) {
  const std::vector<Candidate> ranking = plainSearchAmbate(formula, request);
  const FormulaCounts own = countsOf(formula, request, *request.archive);
  WheelSet wheels = 0;
  for (const WheelSet set : request.wheelSets) wheels |= set;
  const Redraw redraw = redrawAfter(*request.archive, request.cases, request.colpi, request.lastDraw, wheels);
  FairDraws draws(redraw);
  LuckFigures figures{.replicas = replicas, .replicasByBest = std::vector<int>(400), .counts = {}};
  for (const Candidate& row : ranking) {
    if (figures.counts.empty() || figures.counts.back().count != row.cc) figures.counts.push_back({.count = row.cc});
    ++figures.counts.back().own;
  }
  for (std::size_t i = 1; i < figures.counts.size(); ++i) figures.counts[i].own += figures.counts[i - 1].own;
  for (int replica = 0; replica < replicas; ++replica) {
    const Archive simulated =
        archiveOfOutcomes(draws.replica(seed, static_cast<std::uint64_t>(replica)), request.archive->NumEstrazioni());
    const FormulaCounts luck = countsOf(formula, request, simulated);
    int best = 0;
    std::vector<int> bestOfOthers(figures.counts.size());
    for (const auto& [key, count] : luck) {
      best = std::max(best, count);
      const auto it = own.find(key);
      for (std::size_t level = 0; level < figures.counts.size(); ++level)
        if (it == own.end() || it->second <= figures.counts[level].count)
          bestOfOthers[level] = std::max(bestOfOthers[level], count);
    }
    ++figures.replicasByBest[static_cast<std::size_t>(best)];
    figures.mean += static_cast<double>(best) / replicas;
    for (std::size_t level = 0; level < figures.counts.size(); ++level) {
      figures.counts[level].reached += best >= figures.counts[level].count;
      figures.counts[level].reachedByOthers += bestOfOthers[level] >= figures.counts[level].count;
    }
  }
  return figures;
}

void expectSame(LuckFigures fast, LuckFigures plain) {
  fast.replicasByBest.resize(plain.replicasByBest.size());
  EXPECT_EQ(fast.replicasByBest, plain.replicasByBest);
  EXPECT_NEAR(fast.mean, plain.mean, 1e-9);
  ASSERT_EQ(fast.counts.size(), plain.counts.size());
  for (std::size_t i = 0; i < plain.counts.size(); ++i) {
    EXPECT_EQ(fast.counts[i].count, plain.counts[i].count);
    EXPECT_EQ(fast.counts[i].own, plain.counts[i].own);
    EXPECT_EQ(fast.counts[i].reached, plain.counts[i].reached);
    EXPECT_EQ(fast.counts[i].reachedByOthers, plain.counts[i].reachedByOthers);
  }
}

// Where no case falls into the colpi of another a simulated archive keeps all their draws, and the plain search of the
// button can be run on it as it is.
TEST(SearchLuck, AgreesWithThePlainSearchOfEachSimulatedArchive) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(8)); ++seed) {
    std::mt19937 rng(seed);
    const Archive archive = fullArchive(rng, 100);
    const PlainFormula formula = randomFormula(rng, Shape::TwoOneWheel);
    AmbataRequest request = searchOn(archive, 8, 10, 9);
    request.formula = formulaInput(formula);
    request.wheelSets = {randomWheelSet(rng)};
    const auto search = repeatAmbate(request);
    FairDraws draws(search->redraw());
    std::vector<int> bests(20);
    for (std::uint64_t replica = 0; replica < 8; ++replica) {
      const Archive simulated = archiveOfOutcomes(draws.replica(seed, replica), 100);
      AmbataRequest plain = request;
      plain.archive = &simulated;
      plain.keep = 1;
      const std::vector<Candidate> ranking = plainSearchAmbate(formula, plain);
      ++bests[static_cast<std::size_t>(ranking.empty() ? 0 : ranking.front().cc)];
    }
    SearchLuck luck(search, seed);
    luck.draw(8);
    std::vector<int> fast = luck.figures().replicasByBest;
    fast.resize(bests.size());
    ASSERT_EQ(fast, bests) << seed;
  }
}

TEST(SearchLuck, AgreesWithPlainCountsOnArchivesBuiltAnew) {
  constexpr int kReplicas = 6;
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(40)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Archive archive = randomSearchArchive(rng);
    const PlainFormula formula = randomFormula(rng, seed % 2 == 0 ? Shape::OneNumber : Shape::TwoOneWheel);
    AmbataRequest request = randomAmbataRequest(rng, archive);
    request.cases.resize(std::min<std::size_t>(request.cases.size(), 4));
    request.wheelSets = {randomWheelSet(rng)};
    if (seed % 4 == 0) request.wheelSets.push_back(randomWheelSet(rng));
    request.keep = 1 + below(rng, 60);
    request.formula = formulaInput(formula);
    SearchLuck luck(repeatAmbate(request), seed);
    luck.draw(kReplicas);
    expectSame(luck.figures(), plainLuck(formula, request, seed, kReplicas));
    if (testing::Test::HasFailure()) return;
  }
}

TEST(SearchLuck, IsTheSameForAnyNumberOfThreadsAndInOneGoOrInTwo) {
  std::mt19937 rng(5);
  const Archive archive = fullArchive(rng, 300);
  const auto search = repeatAmbate(searchOn(archive, 20, 12, 9));
  const auto told = [](const SearchLuck& luck) {
    const LuckFigures figures = luck.figures();
    std::vector<int> values = figures.replicasByBest;
    for (const LuckOfCount& count : figures.counts) values.insert(values.end(), {count.reached, count.reachedByOthers});
    return values;
  };
  SearchLuck one(search, 11), eight(search, 11), stopped(search, 11), other(search, 12);
  one.draw(300, {.threads = 1});
  other.draw(300, {.threads = 1});
  std::stop_source stop;
  std::jthread half([&] { stopped.draw(300, {.threads = 2, .stop = stop.get_token()}); });
  eight.draw(300, {.threads = 8});
  stop.request_stop();
  half.join();
  EXPECT_EQ(told(one), told(eight));
  EXPECT_NE(told(one), told(other));
  EXPECT_LE(stopped.replicas(), 300);
  EXPECT_EQ(stopped.figures().replicas, stopped.replicas());
  stopped.draw(300, {.threads = 3});
  EXPECT_EQ(told(one), told(stopped));
}

// Seconds from the wish to stop to the end of a long run.
double secondsToStop(SearchLuck& luck) {
  std::stop_source stop;
  std::chrono::steady_clock::time_point asked;
  std::jthread user([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    asked = std::chrono::steady_clock::now();
    stop.request_stop();
  });
  luck.draw(1000000, {.stop = stop.get_token()});
  const auto ended = std::chrono::steady_clock::now();
  user.join();
  return std::chrono::duration<double>(ended - asked).count();
}

TEST(SearchLuck, StopsWithinFiftyMilliseconds) {
  std::mt19937 rng(6);
  const Archive archive = fullArchive(rng, 700);
  AmbataRequest request = searchOn(archive, 50, 12, 10, Shape::TwoTwoWheels);
  request.wheelSets = plainWheelSets(2);
  SearchLuck luck(repeatAmbate(request), 1);
  // On a busy machine some of several goes may wait for a core; sanitizers make everything twenty times as slow.
  double seconds = 1;
  for (int i = 0; i < 5; ++i) seconds = std::min(seconds, secondsToStop(luck));
  EXPECT_LT(luck.replicas(), 1000000);
  EXPECT_LT(seconds, randomRuns(100) == 100 ? 0.05 : 1.0);
}

TEST(SearchLuck, OfASearchThatFindsNothingTellsOnlyTheReplicas) {
  const Archive archive = archiveOf({{{"BA", {10, 11, 12, 13, 14}}}, {{"BA", {1, 2, 3, 4, 5}}}});
  AmbataRequest request = searchOn(archive, 1, 1, 1);
  request.lastDraw = 1;  // the colpi lie behind the reference draw
  SearchLuck luck(repeatAmbate(request), 1);
  luck.draw(10);
  EXPECT_EQ(luck.figures().best, 0);
  EXPECT_EQ(luck.figures().mean, 0);
  EXPECT_TRUE(luck.figures().counts.empty());
  EXPECT_EQ(luck.figures().reached(0), 10);
}

TEST(SearchLuck, CountsTheOwnArchiveAsAReplica) {
  std::mt19937 rng(7);
  const Archive archive = fullArchive(rng, 200);
  SearchLuck luck(repeatAmbate(searchOn(archive, 10, 12, 9)), 1);
  EXPECT_EQ(luck.figures().counts.front().p, 1);
  luck.draw(99);
  const LuckFigures figures = luck.figures();
  EXPECT_DOUBLE_EQ(figures.counts.front().p, (1.0 + figures.reached(figures.best)) / 100);
  EXPECT_LE(figures.counts.front().bounds.low, figures.counts.front().p);
  EXPECT_GE(figures.counts.front().bounds.high, figures.counts.front().p);
  for (std::size_t i = 1; i < figures.counts.size(); ++i) {
    EXPECT_GE(figures.counts[i].p, figures.counts[i - 1].p);
    EXPECT_LE(figures.counts[i].reachedByOthers, figures.counts[i].reached);
  }
}

TEST(SearchLuck, OfPureNumbersCountsEachNumber) {
  std::mt19937 rng(8);
  const Archive archive = fullArchive(rng, 200);
  const std::vector<int> cases = {20, 60, 100, 140};
  const auto search = repeatPureNumbers(archive, cases, 9, 200, plainWheelSets(2), 30);
  const auto rows = search->run(archive, 30);
  ASSERT_EQ(rows.size(), 30U);
  const auto plain = plainCountNumbers(archive, cases, 9, 200, plainWheelSets(2));
  int best = 0;
  for (const NumberCounts& counts : plain)
    for (std::size_t n = 1; n <= 90; ++n) best = std::max(best, counts[n].cc);
  EXPECT_EQ(rows.front().count, best);
  SearchLuck luck(search, 1);
  luck.draw(100);
  EXPECT_EQ(luck.figures().reached(best), luck.figures().counts.front().reached);
}

}  // namespace
}  // namespace trv5
