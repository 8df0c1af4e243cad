#pragma once

#include <QString>
#include <vector>

#include "cases/formula_rows.h"

namespace trv5 {

/// The widest text of each column of a formula row: what the tables of formulas and the list of candidates are laid out
/// for.
inline std::vector<QString> formulaSamples() {
  std::vector<QString> samples;
  for (const FormulaColumn& column : kFormulaColumns)
    samples.push_back(QString::fromUtf8(column.widest.data(), static_cast<qsizetype>(column.widest.size())));
  return samples;
}

}  // namespace trv5
