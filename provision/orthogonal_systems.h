#pragma once

#include <vector>

#include "core/database_files.h"

namespace trv5 {

/// The betting systems that come with the program, by rising number of numbers, then by width of the rows. In each of
/// them a pair of numbers stands in one row at most, and exactly in one unless its name says "(parziale)"; where it
/// says
/// "(ogni terna)" it is each triple that stands in one row. "(7 giri)": the rows are in seven rounds, five rows that
/// hold each number once; elsewhere they are in rising order. There are at most 99 of them: what the screen's grid
/// holds.
std::vector<OrthogonalSystem> shippedSystems();

}  // namespace trv5
