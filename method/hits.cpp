#include "method/hits.h"

#include <algorithm>

namespace trv5 {
namespace {

template <class Visit>
void forEachWheel(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, Visit visit) {
  const int last = std::min(caseDraw + window.colpi, window.lastDraw);
  for (int draw = caseDraw + 1; draw <= last; ++draw)
    for (int wheel = 0; wheel < kWheels; ++wheel)
      if (holds(window.wheels, wheel)) visit(draw, wheel, outcomes.wheelOf(draw, wheel));
}

// Positions (bits) of the drawn numbers in play.
unsigned matchedPositions(const std::uint8_t* drawn, const NumberFlags& inPlay) {
  unsigned matched = 0;
  for (unsigned k = 0; k < kPositions; ++k)
    if (drawn[k] != 0 && inPlay[drawn[k]]) matched |= 1U << k;
  return matched;
}

int quantity(unsigned matched) {
  return __builtin_popcount(matched);
}

class SetPlayer {
 public:
  SetPlayer(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, std::span<const NumberList> lists)
      : m_outcomes(outcomes), m_case(caseDraw), m_window(window), m_lists(lists) {}

  Hits run() {
    choose(0);
    return std::move(m_hits);
  }

 private:
  void choose(std::size_t depth) {
    if (depth == m_lists.size()) return play();
    for (const std::uint8_t n : m_lists[depth]) {
      m_set[depth] = n;
      choose(depth + 1);
    }
  }

  void play() {
    NumberFlags inSet{};
    for (std::size_t i = 0; i < m_lists.size(); ++i) inSet[m_set[i]] = true;
    int hitsOfSet = 0;
    forEachWheel(m_outcomes, m_case, m_window, [&](int draw, int wheel, const std::uint8_t* drawn) {
      const unsigned matched = matchedPositions(drawn, inSet);
      if (quantity(matched) < static_cast<int>(m_lists.size())) return;
      const int size = static_cast<int>(m_lists.size());
      m_hits.push_back({draw, wheel, m_set, size, matched, quantity(matched), ++hitsOfSet > 1});
    });
  }

  Outcomes m_outcomes;
  int m_case;
  const PlayWindow& m_window;
  std::span<const NumberList> m_lists;
  std::array<std::uint8_t, 5> m_set{};
  Hits m_hits;
};

}  // namespace

Hits hitsOfNumbers(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const NumberFlags& inPlay) {
  Hits hits;
  forEachWheel(outcomes, caseDraw, window, [&](int draw, int wheel, const std::uint8_t* drawn) {
    for (unsigned k = 0; k < kPositions; ++k)
      if (drawn[k] != 0 && inPlay[drawn[k]]) hits.push_back({draw, wheel, {drawn[k]}, 1, 1U << k, 1, !hits.empty()});
  });
  return hits;
}

Hits hitsOfSets(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, std::span<const NumberList> lists) {
  return SetPlayer(outcomes, caseDraw, window, lists).run();
}

Hits hitsOfAll(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const NumberFlags& inPlay,
               int wanted) {
  Hits hits;
  forEachWheel(outcomes, caseDraw, window, [&](int draw, int wheel, const std::uint8_t* drawn) {
    const unsigned matched = matchedPositions(drawn, inPlay);
    if (matched == 0 || quantity(matched) < wanted) return;
    Hit hit{draw, wheel, {}, 0, matched, quantity(matched), !hits.empty()};
    for (unsigned k = 0; k < kPositions; ++k)
      if ((matched >> k & 1U) != 0) hit.numbers[static_cast<std::size_t>(hit.named++)] = drawn[k];
    hits.push_back(hit);
  });
  return hits;
}

int matchesOnLastWheel(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const NumberFlags& inPlay) {
  const int last = std::min(caseDraw + window.colpi, window.lastDraw);
  if (last <= caseDraw) return 0;
  for (int wheel = kWheels - 1; wheel >= 0; --wheel)
    if (holds(window.wheels, wheel)) return quantity(matchedPositions(outcomes.wheelOf(last, wheel), inPlay));
  return 0;
}

}  // namespace trv5
