#pragma once

#include <span>

#include "cases/workbench.h"

namespace trv5 {

/// Every button of the workbench by its place on the screen: a row tells its caption, its tooltip and its operation.
/// Whoever looks for the rule behind a button finds it here by its caption.
std::span<const WorkbenchButtons> workbenchButtons();

}  // namespace trv5
