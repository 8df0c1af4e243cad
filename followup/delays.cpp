#include "followup/delays.h"

#include <algorithm>
#include <bit>

namespace trv5 {
namespace {

// Calls visit(number, wheel) for each number of the draws, 0 left out.
template <class Visit>
void forEachDrawn(const Outcomes& outcomes, int first, int last, Visit visit) {
  for (int draw = std::max(1, first); draw <= last; ++draw)
    for (std::size_t wheel = 0; wheel < kWheels; ++wheel) {
      const std::uint8_t* const drawn = outcomes.wheelOf(draw, static_cast<int>(wheel));
      for (int k = 0; k < kPositions; ++k)
        if (drawn[k] != 0) visit(std::size_t{drawn[k]}, wheel);
    }
}

int lastColpo(int caseDraw, const PlayWindow& window) {
  return std::min(caseDraw + window.colpi, window.lastDraw);
}

}  // namespace

NumbersByWheel delays(const Outcomes& outcomes, int reference) {
  NumbersByWheel delay{};
  std::array<WheelSet, 91> known{};
  int unknown = kMostNumber * kWheels;
  for (int draw = reference; draw >= 1 && unknown > 0; --draw)
    forEachDrawn(outcomes, draw, draw, [&](std::size_t number, std::size_t wheel) {
      if (holds(known[number], static_cast<int>(wheel))) return;
      known[number] |= 1U << wheel;
      delay[number][wheel] = static_cast<std::int16_t>(reference - draw);
      --unknown;
    });
  return delay;
}

NumbersByWheel presences(const Outcomes& outcomes, int reference, int draws) {
  NumbersByWheel counts{};
  forEachDrawn(outcomes, reference - (draws - 1), reference,
               [&counts](std::size_t number, std::size_t wheel) { ++counts[number][wheel]; });
  return counts;
}

NumbersByWheel presencesInColpi(const Outcomes& outcomes, const std::vector<int>& caseDraws, const PlayWindow& window) {
  NumbersByWheel counts{};
  for (const int draw : caseDraws)
    forEachDrawn(outcomes, draw + 1, lastColpo(draw, window),
                 [&counts](std::size_t number, std::size_t wheel) { ++counts[number][wheel]; });
  return counts;
}

Coverage coverage(const Outcomes& outcomes, const std::vector<int>& caseDraws, const PlayWindow& window) {
  Coverage covered;
  for (const int draw : caseDraws) {
    std::array<WheelSet, 91> seen{};
    forEachDrawn(outcomes, draw + 1, lastColpo(draw, window),
                 [&seen](std::size_t number, std::size_t wheel) { seen[number] |= 1U << wheel; });
    for (std::size_t number = 1; number < seen.size(); ++number) {
      for (std::size_t wheel = 0; wheel < kWheels; ++wheel)
        covered.cases[number][wheel] =
            static_cast<std::int16_t>(covered.cases[number][wheel] + holds(seen[number], static_cast<int>(wheel)));
      if ((seen[number] & window.wheels) != 0) ++covered.onAnyWheel[number];
    }
  }
  return covered;
}

std::array<WheelSet, 91> closeDelays(const NumbersByWheel& values, int wheels, int delta) {
  std::vector<WheelSet> sets;
  for (WheelSet set = 0; set < 1U << kWheels; ++set)
    if (std::popcount(set) == wheels) sets.push_back(set);
  std::array<WheelSet, 91> close{};
  for (std::size_t number = 1; number < values.size(); ++number)
    for (const WheelSet set : sets) {
      int lowest = INT16_MAX, highest = INT16_MIN;
      for (WheelSet left = set; left != 0; left &= left - 1) {
        const int value = values[number][static_cast<std::size_t>(std::countr_zero(left))];
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
      }
      if (highest - lowest == delta) close[number] |= set;
    }
  return close;
}

}  // namespace trv5
