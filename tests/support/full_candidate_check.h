#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// "CC" of a table with every candidate taken over and verified on the grids, one by one, as its steps tell: what the
/// shortcut must leave too.
void fullCandidateCheck(Workbench& w, Table table);

}  // namespace trv5
