#pragma once

#include <array>
#include <span>

#include "method/hits.h"

namespace trv5 {

/// What a further number of the lunghetta, ambo or terno would add in one case: hits by that number.
struct CompanionCounts {
  int always = 0;              ///< hits that the numbers in play make without it
  std::array<int, 91> with{};  ///< further hits with the number 1..90
  NumberFlags onLastWheel{};   ///< numbers of the last wheel looked at that aren't in play
  int playedOnLastWheel = 0;   ///< numbers in play on that wheel
};

/// Hits of the ambi (one list of numbers) or terni (two lists) that a further number completes: each set of one number
/// of each list and the further one counts for itself. Exact as long as no wheel holds a number twice.
CompanionCounts companionsOfSets(const Outcomes& outcomes, int caseDraw, const PlayWindow& window,
                                 std::span<const NumberList> lists);

/// Hits of a lunghetta of these numbers and a further one, `wanted` numbers on a wheel.
CompanionCounts companionsOfAll(const Outcomes& outcomes, int caseDraw, const PlayWindow& window,
                                const NumberFlags& inPlay, int wanted);

}  // namespace trv5
