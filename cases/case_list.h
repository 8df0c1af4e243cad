#pragma once

#include <string>

#include "cases/workbench.h"

namespace trv5 {

/// Click on a case: the reference draw moves to it.
void MostraCaso(Workbench& w, int row);

/// "Visualizza estrazione": the selected case in the mini draw list, its matching numbers in green.
void VisualizzaEstrazione(Workbench& w);

/// Map of the cases: each case's colpi on a common axis of draws, on the screen `EvoluzioneGrafica`.
void MostraMappaCasi(Workbench& w);

/// What a cell of the map tells: its case, its draw and, where it is painted, which colpo of the case that is.
std::string mapCellText(const Grid& map, int row, int column);

/// "Nuova configurazione" of the case list: clears the marks of verification, the cases stay.
void CancellaSegniVerifica(Workbench& w);

/// "Ricera per data": the reference draw by its date.
void RicercaPerData(Workbench& w);

/// "Ricerca per numero estrazione": the reference draw by its index, from 20 on.
void RicercaPerIndice(Workbench& w);

/// Wires these operations and the detection to the controls of the workbench.
void connectCaseList(Workbench& w);

}  // namespace trv5
