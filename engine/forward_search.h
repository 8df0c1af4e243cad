#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// "Prova in avanti": shows the screen of that name with the search run last. A test there marks the cases as seen.
void ApreProvaAvanti(Workbench& w);

}  // namespace trv5
