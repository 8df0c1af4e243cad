#include "chance/forward_test.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "chance/expected_cover.h"
#include "chance/hypergeometric.h"
#include "chance/repeated_search.h"

namespace trv5 {
namespace {

// A test before it is made: the case, and where the cases end that its search may know, in the list of all.
struct Planned {
  int draw = 0;
  std::size_t knownEnd = 0;
};

std::vector<Planned> planTests(const ForwardRequest& request) {
  const int colpi = request.search.colpi;
  std::vector<Planned> planned;
  std::size_t knownEnd = 0;
  for (const int draw : request.cases) {
    if (draw + colpi > request.search.lastDraw) break;
    if (!planned.empty() && draw <= planned.back().draw + colpi) continue;
    while (request.cases[knownEnd] + colpi < draw) ++knownEnd;
    if (knownEnd >= static_cast<std::size_t>(std::max(request.learnt, 1))) planned.push_back({draw, knownEnd});
  }
  return planned;
}

int firstHit(const Archive& archive, int number, int draw, const PlayWindow& window) {
  for (int colpo = 1; colpo <= window.colpi; ++colpo)
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      const std::uint8_t* const drawn = archive.wheelOf(draw + colpo, wheel);
      if (holds(window.wheels, wheel) && std::find(drawn, drawn + kPositions, number) != drawn + kPositions)
        return colpo;
    }
  return 0;
}

std::optional<ForwardTest> makeTest(const ForwardRequest& request, const Planned& planned) {
  AmbataRequest search = request.search;
  const auto end = request.cases.begin() + static_cast<std::ptrdiff_t>(planned.knownEnd);
  search.cases.assign(end - std::max(request.learnt, 1), end);
  // As the list of cases has them, the most recent first.
  std::reverse(search.cases.begin(), search.cases.end());
  search.lastDraw = planned.draw;
  search.keep = 1;
  const std::vector<Candidate> ranking = searchAmbate(search);
  if (ranking.empty()) return std::nullopt;

  const Archive& archive = *search.archive;
  ForwardTest test{.draw = planned.draw, .formula = ranking.front()};
  const PlayWindow window{.colpi = search.colpi,
                          .lastDraw = request.search.lastDraw,
                          .wheels = search.wheelSets[static_cast<std::size_t>(test.formula.wheelSet)]};
  test.chance = chanceOfDraws(chanceOfSet(1), wheelDraws(archive, test.draw, window));
  if (test.chance <= 0) return std::nullopt;
  test.number = numberOf(archive, search.formula, test.formula.elements, test.formula.fix, test.draw);
  test.colpo = firstHit(archive, test.number, test.draw, window);
  return test;
}

}  // namespace

std::vector<int> allCases(const Archive& archive, Situation situation) {
  situation.maxCases = std::numeric_limits<int>::max();
  PositionFlags struck{};
  std::vector<int> draws;
  for (const FoundCase& found : detectCases(archive, situation, struck)) draws.push_back(found.first.draw);
  std::reverse(draws.begin(), draws.end());
  return draws;
}

ForwardFigures testForward(const ForwardRequest& request, const Workers& workers) {
  const std::vector<Planned> planned = planTests(request);
  std::vector<std::optional<ForwardTest>> made(planned.size());
  const int count = static_cast<int>(planned.size());
  const int done = doAll(count, workers, [&]() -> Work {
    return [&](int index) {
      const auto i = static_cast<std::size_t>(index);
      made[i] = makeTest(request, planned[i]);
    };
  });
  ForwardFigures figures{.tests = {}, .share = {}};
  if (done < count) return figures;

  PoissonBinomial luck;
  for (std::optional<ForwardTest>& test : made) {
    if (!test) continue;
    figures.covered += test->colpo > 0;
    luck.add(test->chance);
    test->ahead = figures.covered - luck.mean();
    test->low = luck.quantile(0.025) - luck.mean();
    test->high = luck.quantile(0.975) - luck.mean();
    figures.tests.push_back(*test);
  }
  figures.expected = luck.mean();
  figures.atLeast = luck.atLeast(figures.covered);
  figures.share = wilson(figures.covered, luck.trials());
  return figures;
}

}  // namespace trv5
