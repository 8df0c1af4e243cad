#pragma once

#include <array>
#include <set>
#include <string_view>
#include <vector>

#include "cases/workbench.h"
#include "method/detection.h"
#include "method/verification.h"

namespace trv5 {

// The case list `FgEv` read and written: nothing else knows what its columns and colours mean.

/// Lists the cases below those that are there.
void writeCases(Workbench& w, const std::vector<FoundCase>& cases);

/// Draw index of the case in row `row`.
inline int caseDraw(const Workbench& w, int row) {
  return w.FgEv.number(row, case_column::kDraw);
}
/// The draws of all cases; case i stands in row i + 1.
std::vector<int> caseDraws(const Workbench& w);

/// Marks the case in row `row` covered in a column of marks, with its hits.
void markCovered(Workbench& w, int row, int column, int hits);
/// True when the cell says that the case is covered.
inline bool isCovered(const Workbench& w, int row, int column) {
  return w.FgEv.back(row, column) == Verde;
}
/// A column of marks white and empty in all rows.
void clearMarks(Workbench& w, int column);
/// Hits and covered cases as a column of marks shows them.
Totals totalsOfMarks(const Workbench& w, int column);

/// Marks the open cases: those with fewer than `Colpi` draws up to the reference draw. Marks of earlier runs stay.
void markOpenCases(Workbench& w);
/// True when the case is marked open.
inline bool isOpen(const Workbench& w, int row) {
  return w.FgEv.back(row, case_column::kDraw) == Ciano;
}
/// The cases marked open, by the number that their row bears, as often as they are marked.
std::multiset<int> openCases(const Workbench& w);
/// The number that each row bears, from the first row on.
std::vector<int> caseNumbering(const Workbench& w);

}  // namespace trv5
