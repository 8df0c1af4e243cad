#pragma once

#include <cstdint>
#include <vector>

#include "chance/repeated_search.h"
#include "chance/workers.h"

namespace trv5 {

/// How many formulas of a search cover so many cases or more.
struct TallyOfCount {
  int count = 0;         ///< cases
  std::int64_t own = 0;  ///< on the archive as it is
  double byLuck = 0;     ///< on average, on archives whose later draws are drawn anew
};

/// The formulas of a search by the cases that they cover, from `least` (1 or more) to the most that is reached on the
/// archive or a replica, the highest first: the replicas 0..replicas-1 of the seed, as SearchLuck draws them. Stopped,
/// it tells nothing.
std::vector<TallyOfCount> tallyLuck(const RepeatedSearch& search, std::uint64_t seed, int replicas, int least,
                                    const Workers& workers = {});

}  // namespace trv5
