#pragma once

#include "cases/workbench.h"
#include "chance/balance.h"

namespace trv5 {

/// What the game pays, from the rows of `ParametriProgramma`: `VincitaEstratto`, `VincitaAmbo`, `VincitaTerno`,
/// `VincitaQuaterna`, `VincitaCinquina` in stakes, more than 0, and `RitenutaVincite` in percent, from 0 on and below
/// 100. A plain figure with a decimal comma: where the row is missing, or says something else, what the law says holds.
Payouts payoutsOf(const Workbench& w);

}  // namespace trv5
