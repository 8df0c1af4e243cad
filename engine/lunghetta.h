#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// ">>": works out case by case how the numbers of the lunghetta came out, into `FgZ100` and column 22 of `FgEv`.
void Cmd_Elabora100(Workbench& w);

/// `CasiQuasi`: the uncovered cases that already reach one number short of `Sorte`, by the rows of `FgZ100`.
void PreparaPerScoperti(Workbench& w);

/// COPIA: gathers the formulas of ambate, ambi and terni in `Fg00` and verifies them.
void CopiaFormule(Workbench& w);

/// "Visualizzazione estesa": the hits of the lunghetta on a screen of their own.
void MostraVistaEstesa(Workbench& w);

}  // namespace trv5
