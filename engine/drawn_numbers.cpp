#include "engine/drawn_numbers.h"

#include <algorithm>

namespace trv5 {
namespace {

constexpr WheelSet kEveryWheel = (1U << kWheels) - 1U;

void addNumbers(const std::uint8_t* numbers, int count, DrawnNumbers& drawn) {
  for (int i = 0; i < count; ++i) ++drawn[numbers[i]];
}

}  // namespace

ColpiWindow windowAfter(int caseDraw, int colpi, int lastDraw) {
  return {std::max(caseDraw, 0) + 1, std::min({caseDraw + colpi, lastDraw, Archive::kMaxDraws})};
}

void addDrawn(const Archive& archive, const ColpiWindow& window, WheelSet wheels, DrawnNumbers& drawn) {
  // The wheels of a draw lie in one piece: all of them are one run of 55 numbers.
  if ((wheels & kEveryWheel) == kEveryWheel) {
    for (int draw = window.first; draw <= window.last; ++draw)
      addNumbers(archive.wheelOf(draw, 0), Archive::kDrawBytes, drawn);
    return;
  }
  for (int draw = window.first; draw <= window.last; ++draw)
    for (int w = 0; w < kWheels; ++w)
      if (holds(wheels, w)) addNumbers(archive.wheelOf(draw, w), kPositions, drawn);
}

}  // namespace trv5
