#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// Wires the operations of the engine to the controls of the workbench: the tables in the source tell every button's
/// operation.
void connectEngine(Workbench& w);

}  // namespace trv5
