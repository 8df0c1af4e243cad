#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// Makes the three choices of `OptionRit` exclude one another: one of them always stands.
void connectInformation(Workbench& w);

/// "RITARDI": draws since each number was last drawn on each wheel, up to the reference draw, in `FgRit`.
void CalcolaRitardi(Workbench& w);

/// "PRESENZE": how often each was drawn in as many draws as `OptionRit` tells, the reference draw the last of them.
void CalcolaPresenze(Workbench& w);

/// "PRESENZE NEI COLPI DI GIOCO": the same in the colpi of the listed cases; with `Ch_coperture` the cases in which it
/// came out, and in the last column those in which it did on some wheel of play.
void CalcolaPresenzeNeiColpi(Workbench& w);

/// "Ricerca su 2, 3, 4 ruote": the delays again, and on each number the wheels on which so many of them lie exactly
/// `ComboDelta` apart.
void CercaRitardiVicini(Workbench& w, int wheels);

/// "Filtra selezionati": hides the numbers of `FgRit` that no forecast of `FgGioco` holds.
void FiltraNumeriInGioco(Workbench& w);

}  // namespace trv5
