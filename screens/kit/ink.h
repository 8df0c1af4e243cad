#pragma once

#include <algorithm>
#include <cmath>

#include "core/palette.h"

namespace trv5 {

/// Ink of the grids where a cell has no colour of its own, and the paper below it: the same in every theme.
inline constexpr Rgb kPaper = 0xFFFFFF;
inline constexpr Rgb kInk = 0x101010;

/// Relative luminance of a colour, 0 (black) to 1 (white).
inline double relativeLuminance(Rgb colour) {
  const auto linear = [](Rgb channel) {
    const double c = static_cast<double>(channel & 0xFF) / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour >> 16) + 0.7152 * linear(colour >> 8) + 0.0722 * linear(colour);
}

/// Contrast of two colours, 1 (none) to 21.
inline double contrast(Rgb a, Rgb b) {
  const double la = relativeLuminance(a), lb = relativeLuminance(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

/// Dark ink or white, whichever stands out on `back`; 0.179 is where both contrasts are equal.
inline Rgb inkOn(Rgb back) {
  return relativeLuminance(back) > 0.179 ? kInk : kWhite;
}

/// The ink to paint a cell with: its own, unless that can't be read on its back. A black ink is the same as none.
inline Rgb readableInk(Rgb fore, Rgb back) {
  const Rgb own = fore == kBlack ? kInk : fore;
  return contrast(own, back) < 3.0 ? inkOn(back) : own;
}

}  // namespace trv5
