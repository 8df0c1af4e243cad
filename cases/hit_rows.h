#pragma once

#include <array>
#include <set>
#include <string_view>
#include <vector>

#include "cases/workbench.h"
#include "method/verification.h"

namespace trv5 {

// The rows of the hit grids (`FgZ1`, `FgZ2`, `FgZ3`, `FgZ0`, `FgZ100`, `FgZZ`) read and written: nothing else knows
// what their columns and colours mean.

/// A hit row as later operations read it.
struct HitRow {
  int caseRow = 0;  ///< row of the case in the list it was made from
  int caseDraw = 0, hitDraw = 0;
  int row = 0;                 ///< the column "Riga", "QN" in a lunghetta's elaboration
  int colpo = 0;               ///< draws from the case to the hit
  bool hit = false;            ///< marked as a hit: not open, not without hit
  std::vector<int> numbers{};  ///< the numbers played, above 0
};

/// All rows of a hit grid; of the numbers, those of the first `numberColumns` columns.
std::vector<HitRow> readHits(const Grid& grid, int numberColumns);

/// What the third column of a hit row tells.
enum class RowColumn { RunningCount, QuantityOfNumbers };
/// What the hit numbers among the drawn ones are painted with.
enum class HitColour { Green, BySorte };

/// Appends the hit rows of the case in row `caseRow` of the case list.
void appendHits(const Workbench& w, Grid& target, int caseRow, const Hits& hits, RowColumn rowColumn, HitColour colour);

/// Appends the row of a case without hit; returns its index.
int appendMiss(const Workbench& w, Grid& target, int caseRow);

/// Marks the rows of the open cases, named by the numbers that their rows of the case list bear.
void markOpenRows(Grid& target, const std::multiset<int>& open);

}  // namespace trv5
