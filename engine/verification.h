#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// "Verifica tutte le righe": replays a table as one forecast over all cases, into its hit grid, `FgEv` and the
/// statistics. Without formulas it does nothing.
void verificaTutte(Workbench& w, Table table);

/// The verification behind CC: skips the cases of `CasiEsclusi`, notes those hit in `CasiVerificati`, and counts into
/// `FgSSS` without touching the statistics panel.
void verificaPerCc(Workbench& w, Table table);

/// "Verifica oltre limite": goes on with the cases still open, up to the last draw of the archive.
void verificaOltreLimite(Workbench& w, Table table);

/// `Command21`: the selected row of `Fg11` by itself.
void verificaRigaFormula(Workbench& w);

/// `Command22`: the selected row of `FgF` by itself.
void verificaRigaRicerca(Workbench& w);

}  // namespace trv5
