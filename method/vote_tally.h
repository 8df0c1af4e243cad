#pragma once

#include <cstdint>
#include <vector>

#include "method/flags.h"
#include "method/formula_values.h"
#include "method/vote_rings.h"

namespace trv5 {

/// How many formulas have each number of votes from `least`, 1 or more, on: by votes, 0 below `least`. A formula counts
/// once for each wheel set. Counted as the ranking does (vote_counter.h tells how), the arguments are the same.
std::vector<std::int64_t> tallyVotes(const VoteRings& rings, const FormulaValues& values, const NumberFlags& fixes,
                                     int least);

}  // namespace trv5
