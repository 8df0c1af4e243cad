#pragma once

#include <array>
#include <string_view>

namespace trv5 {

/// Columns of a hit row.
namespace hit_column {
inline constexpr int kCase = 0, kCaseDraw = 1, kCaseDate = 2, kRow = 3, kNumbers = 6;
inline constexpr int kWheel = 12, kWheelCode = 13, kColpo = 14, kDraw = 15, kDate = 16, kDrawn = 17;
}  // namespace hit_column

inline constexpr std::string_view kHitHeading =
    "Prog|N° Estr|Data ricavo    |Riga|R|Ru |G1|G2|G3|G4|G5|G6|R|RU |C S|N° Estr|Data esito      |N1|N2|N3|N4|N5";
/// The summary's third column tells the sorte.
inline constexpr std::string_view kSummaryHeading =
    "Prog|N° Estr|Data ricavo    |QN |R|Ru |G1|G2|G3|G4|G5|G6|R|RU |C S|N° Estr|Data esito      |N1|N2|N3|N4|N5";
/// The numbers played and the wheel's index, out of sight.
inline constexpr std::array<int, 9> kHiddenHitColumns = {4, 5, 6, 7, 8, 9, 10, 11, 12};

}  // namespace trv5
