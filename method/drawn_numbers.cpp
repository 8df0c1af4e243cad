#include "method/drawn_numbers.h"

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

void addDrawn(const Outcomes& outcomes, const ColpiWindow& window, WheelSet wheels, DrawnNumbers& drawn) {
  const int draws = window.last - window.first + 1;
  if (draws <= 0) return;
  const std::uint8_t* first = outcomes.wheelOf(window.first, 0);
  // The wheels of a draw lie in one piece, and so do the draws.
  if ((wheels & kEveryWheel) == kEveryWheel) {
    addNumbers(first, draws * Archive::kDrawBytes, drawn);
    return;
  }
  for (int w = 0; w < kWheels; ++w)
    if (holds(wheels, w))
      for (int i = 0; i < draws; ++i) addNumbers(first + i * Archive::kDrawBytes + w * kPositions, kPositions, drawn);
}

}  // namespace trv5
