#pragma once

#include <array>
#include <string_view>

namespace trv5 {

/// Columns of the case list `FgEv`.
namespace case_column {
inline constexpr int kProg = 0, kDraw = 1, kDate = 2, kWheel = 3, kNumbers = 4;
inline constexpr int kDraw2 = 9, kDate2 = 10, kWheel2 = 11, kNumbers2 = 12;
inline constexpr int kHits = 17;       ///< S1; column kHits + sorte - 1
inline constexpr int kLunghetta = 22;  ///< LU
}  // namespace case_column

inline constexpr std::string_view kCaseHeading =
    "Prog|N° est|Data Estraz  |Ru |1|2|3|4|5|N° est|Data Estraz  |Ru |1|2|3|4|5|S1|S2|S3|S4|S5|LU";
/// S4 and S5, out of sight.
inline constexpr std::array<int, 2> kHiddenCaseColumns = {20, 21};

}  // namespace trv5
