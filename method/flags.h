#pragma once

#include <array>

namespace trv5 {

inline constexpr int kMostCases = 50;  ///< rows that the case list keeps
inline constexpr int kMostNumber = 90;

using NumberFlags = std::array<bool, 91>;   ///< by number 1..90; index 0 stands for a wheel not drawn
using PositionFlags = std::array<bool, 6>;  ///< by position 1..5; index 0 is unused
using CaseFlags = std::array<bool, 51>;     ///< by row of `FgEv`, 1..50

/// Triples of positions p1 <= p2 <= p3, by [p1][p2][p3].
using TripleFlags = std::array<std::array<std::array<bool, 6>, 6>, 6>;

}  // namespace trv5
