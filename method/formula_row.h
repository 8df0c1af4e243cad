#pragma once

#include <array>
#include <string>

#include "core/wheels.h"

namespace trv5 {

/// A formula as a table keeps it.
struct FormulaRow {
  struct Element {
    int wheel = 0;     ///< 0..10
    int position = 0;  ///< 1..5; another position takes the element of a wheel not drawn
    bool given = false;
    bool operator==(const Element&) const = default;
  };
  std::array<Element, 3> elements{};
  int fix = 0;            ///< 1..90, 0 for none; the number itself in a pure number
  bool fixGiven = false;  ///< a fix stands in the row, be it 0
  std::string operation;  ///< operator literal
  std::string alteration;
  int nr = 0, qn = 0;   ///< number of wheels (0 = pure number), numbers taken per wheel
  WheelSet wheels = 0;  ///< the wheels of play found with it; 0: those selected at the time

  bool operator==(const FormulaRow&) const = default;
};

/// A row that a search left without a formula.
inline bool isBlank(const FormulaRow& row) {
  return !row.fixGiven && !row.elements[0].given;
}

}  // namespace trv5
