#pragma once

#include <vector>

#include "cases/workbench.h"
#include "method/hits.h"

namespace trv5 {

/// The four tables of formulas, verified alike; what differs is data.
struct TableKind {
  int code;             ///< `TipoVerifica`: 1 ambate, 2 ambi, 3 terni, 6 lunghetta
  const char* section;  ///< in `Fg_Stat`
  GridControl Workbench::*formulas;
  GridControl Workbench::*hits;
  int markColumn;                  ///< of `FgEv`
  std::vector<int> numberColumns;  ///< of `Fg15`: one list of the numbers played each
  bool marksBeyondLimit;           ///< whether hits beyond the limit are painted in `FgEv`
  bool clearsMarksBeyondLimit;     ///< whether "oltre limite" first clears the column of `FgEv`
};

/// The table of a kind code 1, 2, 3 or 6.
const TableKind& tableKind(int code);

/// The hits of one case with the numbers in play as `RicavaElementiReali` left them; a lunghetta by `Sorte`.
Hits hitsOfCase(const Workbench& w, const TableKind& kind, int caseRow, const PlayWindow& window);

/// "Verifica tutte le righe": replays a table as one forecast over all cases, into its hit grid, `FgEv` and the
/// statistics. Without formulas it does nothing.
void verificaTutte(Workbench& w, const TableKind& kind);

/// The verification behind CC: skips the cases of `CasiEsclusi`, notes those hit in `CasiVerificati`, and counts into
/// `FgSSS` without touching the statistics panel.
void verificaPerCc(Workbench& w, const TableKind& kind);

/// "Verifica oltre limite": goes on with the cases still open, up to the last draw of the archive.
void verificaOltreLimite(Workbench& w, const TableKind& kind);

/// `Command21`: the selected row of `Fg11` by itself.
void verificaRigaFormula(Workbench& w);

/// `Command22`: the selected row of `FgF` by itself.
void verificaRigaRicerca(Workbench& w);

}  // namespace trv5
