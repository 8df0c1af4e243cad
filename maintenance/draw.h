#pragma once

#include <array>
#include <cstdint>

#include "core/archive.h"
#include "core/dates.h"
#include "core/wheels.h"

namespace trv5 {

/// One draw on its way into an archive.
struct Draw {
  Day day;
  /// Five numbers 1..90 a wheel, in the order of extraction; five zeros for a wheel that wasn't drawn.
  std::array<std::array<std::uint8_t, kPositions>, kWheels> numbers{};

  bool drawn(int wheel) const { return numbers[static_cast<std::size_t>(wheel)][0] != 0; }
  bool operator==(const Draw&) const = default;
};

/// The same as a row of the archive.
DrawRow rowOf(const Draw& draw);

}  // namespace trv5
