#pragma once

namespace trv5 {

/// Columns of the live forecasts `FgIC`.
namespace live_column {
inline constexpr int kDraw = 0, kKind = 1, kColpo = 2, kNumbers = 3, kDate = 13, kPlayedOn = 14;
}  // namespace live_column

/// Columns of the live forecasts of all saved methods, `FgRagg`, and of `Fg1` of `Speciale` as far as they are the
/// same.
namespace group_column {
inline constexpr int kKey = 1, kName = 2, kDraw = 3, kDate = 4, kSorte = 5, kColpo = 6, kNumbers = 7, kWheels = 17;
}  // namespace group_column

/// Columns of `Fg1` of `Speciale` behind those.
namespace outcome_column {
inline constexpr int kQuantity = 17, kColpo = 18, kWheel = 19;
}  // namespace outcome_column

}  // namespace trv5
