#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// "CC" of the table of `sorte` (2 ambi, 3 terni, 6 lunghetta): replaces the quick counts of the rows of `FgF` by those
/// of a real verification of each row, and leaves the workbench as a run through all of them would. A count that
/// differs from the search's is marked.
void VerificaCandidati(Workbench& w, int sorte);

/// The same with every verification run in full on the grids: what the shortcut must leave too.
void VerificaCandidatiPerEsteso(Workbench& w, int sorte);

}  // namespace trv5
