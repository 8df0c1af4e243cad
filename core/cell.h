#pragma once

#include <string>

#include "core/palette.h"

namespace trv5 {

/// One cell of a grid. A white back and a black ink are the same as none.
struct Cell {
  std::string text;
  Rgb back = kWhite;
  Rgb fore = kBlack;
  bool bold = false;
  bool operator==(const Cell&) const = default;
};

/// A bar drawn in a cell: filled from the left over `percent` (0..100) of the cell's width.
struct Bar {
  double percent = 0;
  Rgb colour = kWhite;
  bool operator==(const Bar&) const = default;
};

}  // namespace trv5
