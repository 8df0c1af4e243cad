#pragma once

#include <string>

#include "core/grid.h"

namespace trv5 {

/// The contents of a grid as the fields of a JSON object, without its braces: texts, colours, bars, what is hidden, the
/// current row. Written straight into a text, since a script dumps after every step.
std::string dumpFields(const Grid& grid);

}  // namespace trv5
