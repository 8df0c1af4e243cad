#pragma once

#include <vector>

#include "cases/workbench.h"
#include "method/numbers_in_play.h"

namespace trv5 {

/// After a table has been verified up to the reference draw with these numbers in play, by case: what luck alone would
/// cover of its cases (`LblAttesi`), and what it would have cost and paid at one euro a draw (`LblBilancio`). The
/// labels show it as long as the statistics beside them stand.
void NotaFortunaTabella(Workbench& w, Table table, const std::vector<CaseNumbers>& numbers);

}  // namespace trv5
