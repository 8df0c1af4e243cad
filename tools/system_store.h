#pragma once

#include <string_view>

#include "core/database.h"
#include "core/grid.h"

namespace trv5 {

// The tables of the systems in the main database, read only.

/// Fills the grid with key, name and width of the systems, columns 1..3, in the order of their numbers. Throws
/// DatabaseError.
void fillSystems(const Database& database, Grid& FgSistemi);

/// Fills the grid with number, QN and marks of the rows of the system with that key, columns 1..3, in the order of
/// their numbers; at most `most` of them. Throws DatabaseError.
void fillSystemRows(const Database& database, std::string_view key, int most, Grid& FGSv1);

}  // namespace trv5
