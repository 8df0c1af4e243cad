#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// Gives the workbench its buttons, and connects every control to its operation and the hooks of the layers to each
/// other. Whatever shows the workbench comes after it.
void equipWorkbench(Workbench& w);

}  // namespace trv5
