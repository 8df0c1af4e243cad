#pragma once

#include <vector>

#include "cases/workbench_state.h"
#include "core/archive.h"
#include "core/grid.h"

namespace trv5 {

/// The evaluation of a formula as its rules tell it, digits taken from texts, every rule a branch of its own: what the
/// engine's `OttieneNumero` has to agree with, the carry-over of its record included.
void plainOttieneNumero(const Archive& archive, ParametriFormula& p);

/// The fields of row `row` of a formula table, all but `Estr`; an element that the row doesn't have stays.
void plainCaricaParametri(const Grid& formulas, int row, ParametriFormula& p);

/// What `RicavaElementiReali` works on.
struct PlainNumbersInPlay {
  const Archive& archive;
  const Grid& cases;                  ///< `FgEv`
  std::vector<const Grid*> formulas;  ///< `Fg11`, `Fg22`, `Fg33`, `Fg00`
  ParametriFormula& record;
  Grid& lists;  ///< `Fg15`
  std::vector<NumberFlags>& flags;
};

/// Replays all formulas over all cases.
void plainRicavaElementiReali(const PlainNumbersInPlay& in);

/// Empty when the two records agree, else the first field that doesn't.
const char* differentField(const ParametriFormula& a, const ParametriFormula& b);

}  // namespace trv5
