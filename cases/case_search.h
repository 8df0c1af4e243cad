#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// "RICAVA ELENCO ESTRAZIONI": reads the selections into the state, detects the cases and lists them in `FgEv`.
void RicavaElencoEstrazioni(Workbench& w);

}  // namespace trv5
