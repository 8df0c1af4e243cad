#pragma once

#include <vector>

#include "cases/workbench.h"
#include "followup/forecasts.h"

namespace trv5 {

/// The forecasts of the case in a row of `Fg15`; none for a row that it doesn't have.
std::vector<Forecast> previsioniDelCaso(const Workbench& w, int row);

/// Click on `Fg15`: the forecasts of the case in `FgGioco`, its numbers one a row in `FgS1` to `FgS6`. A click on the
/// heading empties them.
void MostraPrevisioniDelCaso(Workbench& w, int row);

/// "Evidenzia se previsioni in corso": marks the open cases in `Fg15`.
void EvidenziaCasiInCorso(Workbench& w);

}  // namespace trv5
