#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// "CC" of the ambi, the terni or the lunghetta: replaces the quick counts of the rows of `FgF` by those of a real
/// verification of each row, and leaves the workbench as a run through all of them, one by one, would. A count that
/// differs from the search's is marked.
void VerificaCandidati(Workbench& w, Table table);

}  // namespace trv5
