#pragma once

#include <nlohmann/json_fwd.hpp>

#include "core/control.h"

namespace trv5 {

/// What a script has to know to act on a control that it has never heard of: `name`, `kind`, `enabled`, whether a click
/// does something (`acts`) and a double click (`double`), and how far its values go: `items` of a combo, which is
/// `editable`; `minimum` and `maximum` of a scroll bar; `tabs`, those that can be reached; `length` of a text; `rows`,
/// `columns`, `headings` and the columns with `choices` of a grid.
nlohmann::json outlineOf(const Control& control);

}  // namespace trv5
