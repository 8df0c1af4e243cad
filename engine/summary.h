#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// RIEPILOGO: joins the hits of the ticked kinds into `FgZZ`, case by case and colpo by colpo, with one statistics
/// panel for the whole method.
void CreaRiepilogo(Workbench& w);

/// RIELABORA TUTTO: the case list again, then every table verified. The formulas stay.
void RielaboraTutto(Workbench& w);

}  // namespace trv5
