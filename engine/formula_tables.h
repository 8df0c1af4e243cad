#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// `Cmd_LaSorte`: takes the current row of `FgF` into a table. Nothing happens without a row,
/// with a blank one, or when the table is full.
void AggiungePrevisione(Workbench& w, Table table);

/// "Rimuove riga selezionata" of a table.
void RimuoveFormula(Workbench& w, Table table);

/// "Nuova configurazione" of a table: empties it and its hit grid, and clears its column of `FgEv`.
void SvuotaTabella(Workbench& w, Table table);

}  // namespace trv5
