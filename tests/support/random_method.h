#pragma once

#include <random>

#include "support/workbench_world.h"

namespace trv5 {

/// A small archive with what verifications stumble over: wheels not drawn, few different numbers so that sets are hit,
/// numbers that stand twice on a wheel or lie above 90, as entries by hand can leave them.
Archive randomMethodArchive(std::mt19937& rng);

/// Replaces all that a verification reads by random values: cases and their marks, tables, wheels of play, reference
/// draw, colpi, sorte, boxes. What earlier operations left elsewhere stays.
void randomMethod(WorkbenchWorld& world, std::mt19937& rng);

/// `rows` random formulas in a table, now and then with wheels of their own; with `blanks` also rows that a search left
/// without a formula.
void fillTable(Grid& table, std::mt19937& rng, int rows, bool blanks = false);

/// A case list of at most 50 cases on any draws, with marks as verifications leave them.
void randomCases(WorkbenchWorld& world, std::mt19937& rng);

/// Any value in every control that the user can set, typed ones among those of the editable lists, and random tables.
void randomWorkbench(Workbench& w, std::mt19937& rng);

}  // namespace trv5
