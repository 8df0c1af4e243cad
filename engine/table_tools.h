#pragma once

#include "core/controls.h"

namespace trv5 {

/// "Stampa": prints the grid, landscape, margins of 450.
void StampaTabella(const GridControl& grid);

/// "Copia tabella": the texts of all cells on the clipboard.
void CopiaTabella(const GridControl& grid);

/// "Pulisce celle esiti": empties the drawn numbers (columns 17 to 21) that aren't hits, those whose cell has no
/// colour.
void PulisceCelleEsiti(GridControl& grid);

}  // namespace trv5
