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

// Sets of one number of each list, by their place in the order in which the lists enumerate them.
class SetPlayer {
 public:
  explicit SetPlayer(std::span<const NumberList> lists) : m_lists(lists) {
    for (std::size_t l = 0; l < lists.size(); ++l) {
      std::uint8_t place = 0;
      for (const std::uint8_t n : lists[l]) m_place[l][n] = ++place;
    }
  }

  void play(int draw, int wheel, const std::uint8_t* drawn) {
    m_draw = draw;
    m_wheel = wheel;
    m_drawn = drawn;
    // Only an entry by hand can bring a number in twice, and it then counts twice.
    const bool anySet = repeatsANumber(drawn);
    for (std::size_t l = 0; l < m_lists.size(); ++l) {
      m_tried[l].clear();
      if (anySet) {
        for (const std::uint8_t n : m_lists[l]) m_tried[l].push_back(n);
      } else {
        for (int k = 0; k < kPositions; ++k)
          if (drawn[k] != 0 && m_place[l][drawn[k]] != 0) m_tried[l].push_back(drawn[k]);
      }
      if (m_tried[l].empty()) return;
    }
    tryAll();
  }

  // In the order of the sets; the hits of one set in that in which they were played.
  Hits hits() {
    std::stable_sort(m_found.begin(), m_found.end(), [](const Found& a, const Found& b) { return a.set < b.set; });
    Hits hits;
    hits.reserve(m_found.size());
    for (std::size_t i = 0; i < m_found.size(); ++i) {
      hits.push_back(m_found[i].hit);
      hits.back().repeat = i > 0 && m_found[i].set == m_found[i - 1].set;
    }
    return hits;
  }

 private:
  struct Found {
    int set;  // its place
    Hit hit;
  };

  static bool repeatsANumber(const std::uint8_t* drawn) {
    for (int a = 0; a < kPositions; ++a)
      for (int b = a + 1; b < kPositions; ++b)
        if (drawn[a] != 0 && drawn[a] == drawn[b]) return true;
    return false;
  }

  // Every set of the numbers tried, like the figures of a counter whose last wheel turns fastest.
  void tryAll() {
    std::array<std::size_t, kMostLists> at{};
    const std::size_t lists = std::min(m_lists.size(), kMostLists);
    for (std::size_t turned = 0; turned < lists;) {
      int set = 0;
      for (std::size_t l = 0; l < lists; ++l) {
        m_set[l] = m_tried[l][at[l]];
        set = set * m_lists[l].size() + m_place[l][m_set[l]] - 1;
      }
      test(set);
      for (turned = 0; turned < lists; ++turned) {
        const std::size_t l = lists - 1 - turned;
        if (++at[l] < m_tried[l].size()) break;
        at[l] = 0;
      }
    }
  }

  void test(int set) {
    unsigned matched = 0;
    for (unsigned k = 0; k < kPositions; ++k)
      for (std::size_t l = 0; l < m_lists.size(); ++l)
        if (m_drawn[k] != 0 && m_drawn[k] == m_set[l]) matched |= 1U << k;
    const int size = static_cast<int>(m_lists.size());
    if (quantity(matched) >= size)
      m_found.push_back({set, {m_draw, m_wheel, m_set, size, matched, quantity(matched), false}});
  }

  static constexpr std::size_t kMostLists = 3;
  std::span<const NumberList> m_lists;
  std::array<std::array<std::uint8_t, 91>, kMostLists> m_place{};  // in its list, from 1; 0: not in it
  std::array<std::vector<std::uint8_t>, kMostLists> m_tried;       // of each list, what this wheel may hit
  std::array<std::uint8_t, 5> m_set{};
  int m_draw = 0, m_wheel = 0;
  const std::uint8_t* m_drawn = nullptr;
  std::vector<Found> m_found;
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
  SetPlayer player(lists);
  forEachWheel(outcomes, caseDraw, window,
               [&](int draw, int wheel, const std::uint8_t* drawn) { player.play(draw, wheel, drawn); });
  return player.hits();
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

int countOfAll(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const NumberFlags& inPlay,
               int wanted) {
  int hits = 0;
  forEachWheel(outcomes, caseDraw, window, [&](int, int, const std::uint8_t* drawn) {
    int matched = 0;
    for (int k = 0; k < kPositions; ++k) matched += drawn[k] != 0 && inPlay[drawn[k]];
    hits += matched > 0 && matched >= wanted;
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
