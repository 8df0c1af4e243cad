#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>

namespace trv5 {

/// How many of `full` random runs a test makes: all of them, or as many percent of them as TRV5_RANDOM_SHARE says. The
/// slow builds (sanitizers) and the second ones (without Qt) take a share, the release takes them all; more than 100 is
/// for a long run by hand.
inline int randomRuns(int full) {
  const char* const share = std::getenv("TRV5_RANDOM_SHARE");
  return share == nullptr ? full : std::max(1, full * std::clamp(std::atoi(share), 1, 10000) / 100);
}

}  // namespace trv5
