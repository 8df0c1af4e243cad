#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "method/hits.h"

namespace trv5 {

/// A value for each number and wheel, by [number 1..90][wheel].
using NumbersByWheel = std::array<std::array<std::int16_t, kWheels>, 91>;

/// Draws since each number was last drawn on each wheel, looking back from the reference draw to draw 1: 0 where the
/// reference draw holds it, and 0 too where no draw does.
NumbersByWheel delays(const Outcomes& outcomes, int reference);

/// How often each number was drawn in the `draws` draws that end with the reference draw; before draw 1 there are none.
NumbersByWheel presences(const Outcomes& outcomes, int reference, int draws);

/// The same in the colpi of the cases, on all wheels: a draw that belongs to two cases counts twice.
NumbersByWheel presencesInColpi(const Outcomes& outcomes, const std::vector<int>& caseDraws, const PlayWindow& window);

/// Cases and not draws: what comes out again within a case counts once.
struct Coverage {
  NumbersByWheel cases{};                     ///< in which the number came out on the wheel
  std::array<std::int16_t, 91> onAnyWheel{};  ///< in which it came out on one of the wheels of the window at least
};
Coverage coverage(const Outcomes& outcomes, const std::vector<int>& caseDraws, const PlayWindow& window);

/// For each number the wheels that belong to some `wheels` (2 to 11) of them whose highest and lowest value differ by
/// exactly `delta`.
std::array<WheelSet, 91> closeDelays(const NumbersByWheel& values, int wheels, int delta);

}  // namespace trv5
