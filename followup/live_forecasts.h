#pragma once

#include <string_view>

#include "cases/workbench.h"

namespace trv5 {

/// "Elenco previsioni in corso": the forecasts of all open cases in `FgIC`. It is a picture of this moment: what is
/// changed afterwards doesn't change it.
void ElencaPrevisioniInCorso(Workbench& w);

/// "Verifica oltre limite" of the live forecasts: those that came out in the draws behind their case, up to the end of
/// the archive and on the wheels of play of now, have their draw on green; hidden rows are checked as well, green ones
/// stay green. The open cases are then played on with the numbers in play as they stand: their rows go below those of
/// `FgZ1`.
void VerificaPrevisioniOltreLimite(Workbench& w);

/// Shows the forecasts of one kind alone, from all rows: "1", "2", "3", or "L" for the lunghette.
void FiltraPrevisioni(Workbench& w, char kind);

/// "Filtra selezionati": shows those of the kinds ticked in `Ch_FF`; none ticked hides all.
void FiltraPrevisioniSelezionate(Workbench& w);

/// "Stampa": upright, under the wheels of play of now.
void StampaPrevisioni(Workbench& w);

}  // namespace trv5
