#include "chance/expected_cover.h"

#include <algorithm>
#include <array>

#include "chance/hypergeometric.h"
#include "method/drawn_numbers.h"

namespace trv5 {
namespace {

constexpr std::size_t kMostLists = 3;
constexpr std::size_t kKinds = 1U << kMostLists;  // of numbers, by the lists that hold them

// The chance that the numbers drawn make a set of one number of each list, all different. What matters of a drawn
// number is in which lists it stands, so it goes through how many of each kind are drawn.
class SetChance {
 public:
  SetChance(const CaseNumbers& numbers, int lists) : m_lists(static_cast<unsigned>(lists)) {
    for (std::size_t n = 1; n <= kMostNumber; ++n) {
      std::size_t kind = 0;
      for (std::size_t l = 0; l < m_lists; ++l)
        if (numbers[l].flags()[n]) kind |= std::size_t{1} << l;
      ++m_of[kind];
    }
  }

  double chance() { return from(kKinds - 1, kPositions, 1) / combinations(kNumbersInUrn, kPositions); }

 private:
  // Ways to draw `left` numbers of the kinds up to `kind` that make a set with those counted already.
  double from(std::size_t kind, int left, double ways) {
    if (kind == 0) return makesSet(0, m_drawn) ? ways * combinations(m_of[0], left) : 0;
    double sum = 0;
    for (int count = 0; count <= std::min(left, m_of[kind]); ++count) {
      m_drawn[kind] = count;
      sum += from(kind - 1, left - count, ways * combinations(m_of[kind], count));
    }
    m_drawn[kind] = 0;
    return sum;
  }

  // A number for each list from `list` on, none taken twice.
  bool makesSet(std::size_t list, std::array<int, kKinds> drawn) const {
    if (list == m_lists) return true;
    for (std::size_t kind = 1; kind < kKinds; ++kind) {
      if ((kind >> list & 1U) == 0 || drawn[kind] == 0) continue;
      --drawn[kind];
      if (makesSet(list + 1, drawn)) return true;
      ++drawn[kind];
    }
    return false;
  }

  std::size_t m_lists;
  std::array<int, kKinds> m_of{}, m_drawn{};
};

int playable(const NumberList& list) {
  return list.size() - (list.flags()[0] ? 1 : 0);
}

}  // namespace

bool wasDrawn(const Outcomes& outcomes, int draw, int wheel) {
  const std::uint8_t* const numbers = outcomes.wheelOf(draw, wheel);
  return std::any_of(numbers, numbers + kPositions, [](std::uint8_t n) { return n != 0; });
}

int wheelDraws(const Outcomes& outcomes, int caseDraw, const PlayWindow& window) {
  const ColpiWindow colpi = windowAfter(caseDraw, window.colpi, window.lastDraw);
  int count = 0;
  for (int draw = colpi.first; draw <= colpi.last; ++draw)
    for (int wheel = 0; wheel < kWheels; ++wheel)
      if (holds(window.wheels, wheel) && wasDrawn(outcomes, draw, wheel)) ++count;
  return count;
}

double chanceOnWheel(Table table, const CaseNumbers& numbers, int sorte) {
  const int lists = traitsOf(table).joinedTables;
  if (lists == 0) return chanceOfLunghetta(playable(numbers[indexOf(table)]), sorte);
  if (lists == 1) return chanceOfNumbers(playable(numbers[indexOf(table)]));
  return SetChance(numbers, lists).chance();
}

ExpectedCover expectedCover(const Outcomes& outcomes, Table table, const std::vector<CaseNumbers>& numbers,
                            const std::vector<int>& caseDraws, const PlayWindow& window, int sorte,
                            const std::vector<bool>& leftOut) {
  ExpectedCover expected;
  for (std::size_t i = 0; i < caseDraws.size(); ++i) {
    const bool played = i >= leftOut.size() || !leftOut[i];
    expected.chances.push_back(
        played ? chanceOfDraws(chanceOnWheel(table, numbers[i], sorte), wheelDraws(outcomes, caseDraws[i], window))
               : 0);
    if (played) expected.covered.add(expected.chances.back());
  }
  return expected;
}

}  // namespace trv5
