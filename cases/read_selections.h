#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// Sets aside the selections that the chosen kind of detection would not read, with one or with two elements. They keep
/// their values and can be changed as ever.
void MarcaSelezioniLette(Workbench& w);

}  // namespace trv5
