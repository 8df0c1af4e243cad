#pragma once

#include <vector>

#include "core/dates.h"
#include "core/wheels.h"

namespace trv5 {

/// The days on which the Lotto was drawn, from 07/01/1939 to 21/08/2026, in ascending order: weekly, then two, three
/// and four times a week, with the draws of holidays moved.
std::vector<Day> drawDays();

/// The wheels that were drawn on one of these days: a few are missing in the first months and in the war years, the
/// national wheel until May 2005.
WheelSet wheelsDrawnOn(Day day);

}  // namespace trv5
