#pragma once

#include <string>

namespace trv5 {

/// A figure as it is written in Italian, whatever the locale: "1.749.478", "12,1", "−0,5". `decimals`: 0..9; halves are
/// rounded away from zero, as far as a double knows them. A figure that rounds to 0 has no sign.
std::string figureText(double value, int decimals = 0);

}  // namespace trv5
