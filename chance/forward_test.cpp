#include "chance/forward_test.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "chance/expected_cover.h"
#include "chance/hypergeometric.h"
#include "chance/repeated_search.h"

namespace trv5 {
namespace {

constexpr double kOf95 = 1.959964;  // standard deviations to each side

int firstHit(const Archive& archive, int number, int draw, const PlayWindow& window) {
  for (int colpo = 1; colpo <= window.colpi; ++colpo)
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      const std::uint8_t* const drawn = archive.wheelOf(draw + colpo, wheel);
      if (holds(window.wheels, wheel) && std::find(drawn, drawn + kPositions, number) != drawn + kPositions)
        return colpo;
    }
  return 0;
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

ForwardWalk::ForwardWalk(ForwardRequest request) : m_request(std::move(request)) {
  m_request.learnt = std::max(m_request.learnt, 1);
  const std::vector<bool>& passed = m_request.passedOver;
  for (std::size_t i = 0; i < m_request.cases.size(); ++i)
    if (i >= passed.size() || !passed[i]) m_learnable.push_back(m_request.cases[i]);
  plan();
  m_made.resize(m_planned.size());
}

void ForwardWalk::plan() {
  const int colpi = m_request.search.colpi;
  std::size_t known = 0;
  for (const int draw : m_request.cases) {
    if (draw + colpi > m_request.search.lastDraw) break;
    if (!m_planned.empty() && draw <= m_planned.back().draw + colpi) continue;
    while (known < m_learnable.size() && m_learnable[known] + colpi < draw) ++known;
    if (known >= static_cast<std::size_t>(m_request.learnt)) m_planned.push_back({draw, known});
  }
}

std::optional<ForwardTest> ForwardWalk::makeTest(const Planned& planned) const {
  AmbataRequest search = m_request.search;
  const auto end = m_learnable.begin() + static_cast<std::ptrdiff_t>(planned.known);
  search.cases.assign(end - m_request.learnt, end);
  // As the list of cases has them, the most recent first.
  std::reverse(search.cases.begin(), search.cases.end());
  search.lastDraw = planned.draw;
  search.keep = 1;
  const std::vector<Candidate> ranking = searchAmbate(search);
  if (ranking.empty()) return std::nullopt;

  const Archive& archive = *search.archive;
  ForwardTest test{.draw = planned.draw, .formula = ranking.front()};
  const PlayWindow window{.colpi = search.colpi,
                          .lastDraw = m_request.search.lastDraw,
                          .wheels = search.wheelSets[static_cast<std::size_t>(test.formula.wheelSet)]};
  test.chance = chanceOfDraws(chanceOfSet(1), wheelDraws(archive, test.draw, window));
  if (test.chance <= 0) return std::nullopt;
  test.number = numberOf(archive, search.formula, test.formula.elements, test.formula.fix, test.draw);
  test.colpo = firstHit(archive, test.number, test.draw, window);
  return test;
}

void ForwardWalk::advance(int cases, const Workers& workers) {
  const int first = m_done;
  m_done += doAll(std::min(cases, planned() - first), workers, [&]() -> Work {
    return [&](int index) {
      const auto i = static_cast<std::size_t>(first + index);
      m_made[i] = makeTest(m_planned[i]);
    };
  });
}

void ForwardWalk::advance(std::chrono::milliseconds time, const Workers& workers) {
  using Clock = std::chrono::steady_clock;
  constexpr auto kShort = std::chrono::milliseconds(4), kLong = std::chrono::milliseconds(10);
  const auto end = Clock::now() + time;
  for (auto before = Clock::now(); !over() && !workers.stop.stop_requested();) {
    advance(m_batch, workers);
    const auto after = Clock::now();
    if (after - before < kShort) m_batch *= 2;
    if (after - before > kLong) m_batch = std::max(1, m_batch / 2);
    if (after >= end) return;
    before = after;
  }
}

ForwardFigures ForwardWalk::figures() const {
  ForwardFigures figures{.tests = {}, .share = {}};
  PoissonBinomial luck;
  for (std::size_t i = 0; i < static_cast<std::size_t>(m_done); ++i) {
    if (!m_made[i]) continue;
    ForwardTest test = *m_made[i];
    figures.covered += test.colpo > 0;
    luck.add(test.chance);
    test.ahead = figures.covered - luck.mean();
    // By the normal distribution: whole counts would make a saw of it.
    test.high = kOf95 * std::sqrt(luck.variance());
    test.low = -test.high;
    figures.tests.push_back(test);
  }
  figures.expected = luck.mean();
  figures.atLeast = luck.atLeast(figures.covered);
  figures.share = wilson(figures.covered, luck.trials());
  return figures;
}

ForwardFigures testForward(const ForwardRequest& request, const Workers& workers) {
  ForwardWalk walk(request);
  walk.advance(walk.planned(), workers);
  return walk.over() ? walk.figures() : ForwardFigures{.tests = {}, .share = {}};
}

}  // namespace trv5
