#pragma once

#include <cstddef>
#include <cstdint>

#include "core/archive.h"

namespace trv5 {

/// The draws in which forecasts are looked for. Elements of formulas are read from the archive, outcomes through this
/// view, so that a method can be played on other outcomes (simulated ones) without being worked out anew. What it shows
/// must outlive it.
class Outcomes {
 public:
  /// What the archive holds. Not explicit: an archive is its own outcomes.
  Outcomes(const Archive& archive) : Outcomes(archive.wheelOf(0, 0), 0) {}
  /// `numbers`: the draws from `firstDraw` on, laid out as in the archive (Archive::kDrawBytes bytes a draw, wheel by
  /// wheel, numbers 0..90, 0 = not drawn).
  Outcomes(const std::uint8_t* numbers, int firstDraw) : m_numbers(numbers), m_firstDraw(firstDraw) {}

  /// The five numbers of a wheel; wheels and draws follow each other in one block.
  const std::uint8_t* wheelOf(int drawIndex, int wheel) const {
    return m_numbers + static_cast<std::ptrdiff_t>(drawIndex - m_firstDraw) * Archive::kDrawBytes + wheel * kPositions;
  }

 private:
  const std::uint8_t* m_numbers;
  int m_firstDraw;
};

}  // namespace trv5
