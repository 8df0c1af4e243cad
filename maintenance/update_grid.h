#pragma once

#include <vector>

#include "core/grid.h"
#include "maintenance/update_check.h"
#include "maintenance/update_writer.h"

namespace trv5 {

// The grid between the two stages of an update: column 1 the date, columns 2 to 12 the wheels, and marks by colour that
// the first stage sets and the second reads.

inline constexpr Rgb kMissingDraw = AranciaMedio;  ///< back of the date
inline constexpr Rgb kWrongDraw = Rosso;           ///< ink of the date, which is bold too
inline constexpr Rgb kAgreeingWheel = VerdeMedio;  ///< back of a wheel; one that differs stays white

/// The rows without marks, in place of what the grid held; the last one comes into view.
void fillUpdateGrid(const std::vector<DrawRow>& rows, Grid& FgImporta);
void markUpdateGrid(const std::vector<UpdateMark>& marks, Grid& FgImporta);

std::vector<DrawRow> updateRows(const Grid& FgImporta);
/// True when a row is marked as missing or wrong.
bool hasUpdateMarks(const Grid& FgImporta);
/// What the colours ask for; red dates only where they are to be corrected.
std::vector<UpdateOrder> updateOrders(const Grid& FgImporta, bool correctWrongDraws);

}  // namespace trv5
