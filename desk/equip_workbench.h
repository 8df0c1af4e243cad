#pragma once

#include <memory>

#include "cases/workbench.h"
#include "core/program.h"

namespace trv5 {

/// Gives the workbench its buttons, and connects every control to its operation and the hooks of the layers to each
/// other. Whatever shows the workbench comes after it.
void equipWorkbench(Workbench& w);

/// Lets the workbench save its configurations in the main database of the program, which must outlive it.
void connectDatabase(Workbench& w, const Program& program);

/// The workbench of a run of the program, equipped and connected to its database; it follows the reloads of the
/// archive.
std::unique_ptr<Workbench> makeWorkbench(Program& program);

}  // namespace trv5
