#pragma once

#include <vector>

#include "cases/workbench.h"
#include "method/hits.h"

namespace trv5 {

/// Columns of a hit row (`FgZ1`, `FgZ2`, `FgZ3`, `FgZ0`, `FgZ100`, `FgZZ`).
namespace hit_column {
inline constexpr int kCase = 0, kCaseDraw = 1, kCaseDate = 2, kRow = 3, kNumbers = 6;
inline constexpr int kWheel = 12, kWheelCode = 13, kColpo = 14, kDraw = 15, kDate = 16, kDrawn = 17;
}  // namespace hit_column

/// What the third column of a hit row tells.
enum class RowColumn { RunningCount, QuantityOfNumbers };
/// What the hit numbers among the drawn ones are painted with.
enum class HitColour { Green, BySorte };

/// Appends the hit rows of the case in row `caseRow` of the case list.
void appendHits(const Workbench& w, Grid& target, int caseRow, const Hits& hits, RowColumn rowColumn, HitColour colour);

/// Appends the row of a case without hit; returns its index.
int appendMiss(const Workbench& w, Grid& target, int caseRow);

/// Marks the case covered in column `column` of `FgEv`, with its hits.
void markCovered(Workbench& w, int caseRow, int column, int hits);

/// Column `column` of `FgEv` white and empty in all rows.
void clearMarks(Workbench& w, int column);

/// True when the cell of `FgEv` says that the case is covered.
inline bool isCovered(const Workbench& w, int caseRow, int column) {
  return w.FgEv.back(caseRow, column) == Verde;
}

/// Marks the open cases, those with fewer than `Colpi` draws up to the reference draw, in column 1 of `FgEv`.
void markOpenCases(Workbench& w);

/// Counts the cases marked open into `CasiInCorso`, and marks their rows in a hit grid.
void countOpenCases(Workbench& w, Grid& hitGrid);

/// The play window of the workbench, up to the reference draw.
PlayWindow playWindow(const Workbench& w);

}  // namespace trv5
