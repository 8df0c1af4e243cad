#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// Rebuilds `FixAmmessi` from `ComboFix`: all fixes for its empty item, else the chosen one alone.
void SettaggioFix(Workbench& w);

/// "Estrae Terzine": allows the 35 triples of positions p1 <= p2 <= p3.
void EstraeTerzine(Workbench& w);

/// The same without a word: what the opening of the workbench runs.
void ammetteTerzine(Workbench& w);

/// Replays all formulas over all cases: `NumeriInGioco` and `Fg15` tell which numbers are in play in each case.
void RicavaElementiReali(Workbench& w);

}  // namespace trv5
