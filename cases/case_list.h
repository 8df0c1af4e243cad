#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// The change of `hs1` once more.
void AggiornaEstrazioneRiferimento(Workbench& w);

/// Click on a case: the reference draw moves to it.
void MostraCaso(Workbench& w, int row);

/// "Visualizza estrazione": the selected case in the mini draw list, its matching numbers in green.
void VisualizzaEstrazione(Workbench& w);

/// "Nuova configurazione" of the case list: clears the marks of verification, the cases stay.
void CancellaSegniVerifica(Workbench& w);

/// "Ricera per data": the reference draw by its date.
void RicercaPerData(Workbench& w);

/// "Ricerca per numero estrazione": the reference draw by its index, from 20 on.
void RicercaPerIndice(Workbench& w);

/// "Vai all'ultima estrazione".
void VaiUltimaEstrazione(Workbench& w);

}  // namespace trv5
