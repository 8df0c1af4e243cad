#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// `FgSSS` from `FgEv`: total hits and covered cases of each of the columns S1..S5, LU. Without cases it stays.
void ContaEsitix(Workbench& w);

/// Resets column 1 of `Fg_Stat`: number of cases, hits by quantity of numbers, colours.
void CreaStatistica(Workbench& w);

/// `Fg_Graf` from `Fg_Stat`: counts and bars of covered, negative and open cases.
void PopolaGrafico(Workbench& w);

/// Empties `Fg_Graf` and `FgSSS` after a verification beyond the limit: the last full verification no longer holds.
void azzeraStatistiche(Workbench& w);

/// Rows 3 to 5 of `Fg_Stat` from a hit grid: hit rows, cases without hit, open cases; row 0 the section, row 2 the text
/// `covered`.
void scriveStatistica(Workbench& w, const Grid& hitGrid, const char* section, const std::string& covered);

/// Column 1 of `Fg_Stat` for the summary of a whole method: hit rows and cases without hit as counted there.
void scriveRiepilogo(Workbench& w, int positive, int negative);

}  // namespace trv5
