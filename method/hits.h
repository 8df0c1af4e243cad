#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "core/wheels.h"
#include "method/flags.h"
#include "method/numbers_in_play.h"
#include "method/outcomes.h"

namespace trv5 {

/// The draws after a case that count, and the wheels played on.
struct PlayWindow {
  int colpi = 10;
  int lastDraw = 0;  ///< draws beyond it are passed over
  WheelSet wheels = 0;
};

/// One hit: a wheel of a later draw that holds enough of the numbers played.
struct Hit {
  int draw = 0;
  int wheel = 0;
  std::array<std::uint8_t, 5> numbers{};  ///< G1..G5: what the hit row names; a set may hold a 0
  int named = 0;                          ///< how many of them
  unsigned matched = 0;                   ///< bit p - 1 stands for position p of the wheel
  int count = 0;                          ///< drawn numbers that were in play
  bool repeat = false;                    ///< not the first hit of its set of numbers in this case
};

/// The hits of one case. A number 0 (wheel not drawn) is never hit.
using Hits = std::vector<Hit>;

/// Ambate: each drawing of each number in play is a hit of its own. Order: draw, wheel, position.
Hits hitsOfNumbers(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const NumberFlags& inPlay);

/// Ambi, terni: for each set made of one number of each list (one to three lists), the wheels that hold at least as
/// many drawn numbers of the set as there are lists. Order: the sets as the lists enumerate them (first list
/// outermost), draw, wheel.
Hits hitsOfSets(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, std::span<const NumberList> lists);

/// Lunghetta: the wheels that hold at least `wanted` of the numbers in play. Order: draw, wheel.
Hits hitsOfAll(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const NumberFlags& inPlay, int wanted);

/// How many hits hitsOfAll would list.
int countOfAll(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const NumberFlags& inPlay, int wanted);

/// How many numbers in play stand on the last wheel of play of the last draw that counts; 0 when none counts.
int matchesOnLastWheel(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const NumberFlags& inPlay);

}  // namespace trv5
