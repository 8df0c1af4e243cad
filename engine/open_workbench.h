#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// Connects every operation to its control, opens the workbench, and disables the buttons that nothing is connected
/// to.
void openWorkbench(Workbench& w);

}  // namespace trv5
