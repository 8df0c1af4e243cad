#pragma once

#include <string_view>
#include <vector>

#include "method/detection.h"
#include "method/hits.h"
#include "method/numbers_in_play.h"
#include "method/search.h"

namespace trv5 {

/// A forecasting method as a value: which draws are its cases, where and for how long it is played, and its formulas.
struct Method {
  Situation situation;
  WheelSet wheels = 0;  ///< the wheels of play
  int colpi = 10;       ///< draws after a case that count
  int reference = 0;    ///< draw index of the last draw that counts
  int sorte = 1;        ///< 1..5: how many of its numbers a lunghetta wants on a wheel
  Formulas formulas;

  const std::vector<FormulaRow>& of(Table table) const { return formulas[indexOf(table)]; }
  std::vector<FormulaRow>& of(Table table) { return formulas[indexOf(table)]; }
  bool operator==(const Method&) const = default;
  PlayWindow window() const { return {.colpi = colpi, .lastDraw = reference, .wheels = wheels}; }
};

/// The draw indices of the cases of a method, the most recent first.
std::vector<int> detect(const Archive& archive, const Method& method);

/// A formula that a search found, as a row of a table. `alteration`, `operation`: the texts that the search was given.
FormulaRow formulaOf(const Candidate& found, Shape shape, std::string_view alteration, std::string_view operation);

}  // namespace trv5
