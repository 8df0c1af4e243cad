#pragma once

#include <string>
#include <string_view>

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

/// Rows 0 and 2 to 5 of `Fg_Stat`: the section, the text `covered`, hits, cases without hit, open cases.
void scriveStatistica(Workbench& w, std::string_view section, const std::string& covered, int positive, int negative);

/// Column 1 of `Fg_Stat` for the summary of a whole method: hit rows and cases without hit as counted there.
void scriveRiepilogo(Workbench& w, int positive, int negative);

}  // namespace trv5
