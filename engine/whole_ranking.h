#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// "TUTTE": searches through every shape, alteration, operator, fix and set of one, two and three wheels, and ranks the
/// best formulas of all in `FgF`, by `ComboOrdine`. What narrows a single search (`Combo1R_1N`, `Combo1R_2N`,
/// `ComboFix`, "Utilizza Fix", the wheels of play) isn't read. Each row bears its own wheels.
void CercaTutte(Workbench& w);

}  // namespace trv5
