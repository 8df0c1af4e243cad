#pragma once

#include <array>
#include <cstdint>

#include "core/archive.h"
#include "core/wheels.h"
#include "method/outcomes.h"

namespace trv5 {

/// How often each number 0..90 was drawn; 0 stands for the numbers of wheels not drawn.
using DrawnNumbers = std::array<std::uint32_t, 91>;

/// The draws after a case that count: from `first` to `last`, none where `last` is lower.
struct ColpiWindow {
  int first, last;
};

/// `colpi` draws after the case, as far as the reference draw.
ColpiWindow windowAfter(int caseDraw, int colpi, int lastDraw);

/// Adds the numbers of the wheels in the draws of a window.
void addDrawn(const Outcomes& outcomes, const ColpiWindow& window, WheelSet wheels, DrawnNumbers& drawn);

}  // namespace trv5
