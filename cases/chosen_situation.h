#pragma once

#include <string>

#include "cases/workbench.h"

namespace trv5 {

/// The numbers of a text as the detection reads it, every three characters; others than 1..90 are left out.
NumberFlags chosenNumbers(const std::string& text);

/// The situation as it stands chosen in the controls, whatever the last detection read. What its kind doesn't read is
/// left at its default, so that equal situations give equal cases on an archive.
Situation chosenSituation(const Workbench& w);

}  // namespace trv5
