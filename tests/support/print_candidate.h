#pragma once

#include <ostream>

#include "method/search.h"

namespace trv5 {

/// How GoogleTest shows a row that differs.
inline void PrintTo(const Candidate& row, std::ostream* out) {
  *out << "{";
  for (std::size_t i = 0; i < 3 && row.elements.positions[i] != 0; ++i)
    *out << CodiciRuote[row.elements.wheels[i]] << int{row.elements.positions[i]} << " ";
  *out << "fix " << row.fix << " cc " << row.cc << " pres " << row.pres << " set " << row.wheelSet << "}";
}

inline void PrintTo(const NumberCount& count, std::ostream* out) {
  *out << "{cc " << count.cc << " pres " << count.pres << "}";
}

}  // namespace trv5
