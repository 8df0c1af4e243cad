#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// `Cmd_LaSorte`: takes the current row of `FgF` into the table of `sorte` (1, 2, 3, 6). Nothing happens without a row,
/// with a blank one, or when the table is full.
void AggiungePrevisione(Workbench& w, int sorte);

/// "Rimuove riga selezionata" of a table.
void RimuoveFormula(Workbench& w, int sorte);

/// "Nuova configurazione" of a table: empties it and its hit grid, and clears its column of `FgEv`.
void SvuotaTabella(Workbench& w, int sorte);

}  // namespace trv5
