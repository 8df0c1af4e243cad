#pragma once

#include <string>

#include "cases/workbench.h"

namespace trv5 {

/// "Esegue procedura": runs all listed configurations against the last draw and gathers their live forecasts in
/// `FgRagg`. Those of the kind Ciclo, which has no fixed length, and those that can't be reloaded are painted in
/// `FgPir1` and left out. The configuration run last stays on the workbench; the screen shows that alone.
void EseguiProcedura(Workbench& w);

/// The forecasts of `FgRagg` that came out in the draws behind their case: their wheel turns cyan, the form `Speciale`
/// tells which; without any it closes. The colpi are those of the workbench.
void MostraSfaldamenti(Workbench& w);

/// "AMBATE", "AMBO", "TERNO": in `FgConv` how many forecasts of a sorte (1, 2, 3) meet on each number and wheel.
void ContaConvergenze(Workbench& w, int sorte);

/// The configurations behind a count of `FgConv`, a line each; empty for a cell without a count and where `FgRagg` no
/// longer holds what was counted.
std::string spiegaConvergenza(const Workbench& w, int row, int column);

/// Click on `FgRagg`: the name of the configuration in `Label7`.
void MostraNomeConfigurazione(Workbench& w, int row);

}  // namespace trv5
