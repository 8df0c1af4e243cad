#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// Connects "Annulla" and "Ripete" to the history, and lets the status bar offer "Annulla" after the operations that
/// empty or replace something.
void connectUndo(Workbench& w);

}  // namespace trv5
