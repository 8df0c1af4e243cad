#pragma once

#include "cases/workbench.h"
#include "core/numbers.h"

namespace trv5 {

/// Fills every list and grid of the workbench and sets its defaults, in the order in which they depend on each other.
/// The operations of all layers must be connected before: the opening runs some of their buttons.
void ApreBanco(Workbench& w);

/// `RuoteGioco` = the green cells of `FgRG`.
void RicavaRuoteGioco(Workbench& w);

/// After a reload of the archive: the scroll bar ends at the last draw, a reference draw that has gone moves there, and
/// its label is written anew. Cases, formulas, hits and forecasts stay as they were found; indices beyond the archive
/// read as empty draws.
void SegueArchivio(Workbench& w);

/// Change of `hs1`: the reference draw and the label beside it.
void CambiaEstrazioneRiferimento(Workbench& w);

/// Change of tab of `SSTab3`: all `Cmd_LaSorte` turn yellow; that of the tab, if it has one, turns green and is the
/// enabled one. Other tabs change no enabling.
void CambiaTabPrevisioni(Workbench& w);

/// "Nuova configurazione (Reset)": empties every result, leaves the selections as they are.
void NuovaConfigurazioneReset(Workbench& w);

/// "OK": `TxtNumeri` from the cyan cells of `FgNu`, and the kind "Numeri".
void RiportaNumeri(Workbench& w);

/// "DEC", "CAD", "FIG": selects in `FgNu` the numbers whose `property` is the chosen value of `ComboValF`.
void SelezionaPerProprieta(Workbench& w, const NumberTable& property);

/// "Reset": no number is selected.
void DeselezionaNumeri(Workbench& w);

/// "Setta estrazione mensìle": `ComboPar` by the progressive of the reference draw.
void SettaEstrazioneMensile(Workbench& w);

/// "Help in linea".
void MostraAiuto(Workbench& w);

/// Wires the changes of lists, scroll bar, tabs and the clicks on grids and labels to their operations.
void connectSelections(Workbench& w);

}  // namespace trv5
