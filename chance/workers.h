#pragma once

#include <functional>
#include <stop_token>

namespace trv5 {

/// Who does a long run of pure functions, and who may stop it.
struct Workers {
  int threads = 0;            ///< 0: as many as the machine has cores
  std::stop_token stop = {};  ///< looked at between two pieces of work, each a few milliseconds at most
};

/// What one thread does with a piece of work, by its index.
using Work = std::function<void(int index)>;

/// Does the pieces 0..count-1 in any order on some threads; each thread makes its own `Work` first. Returns how many of
/// the first pieces were done without a gap: `count`, unless it was stopped. What a piece throws is thrown again here,
/// when all threads have ended.
int doAll(int count, const Workers& workers, const std::function<Work()>& makeWork);

}  // namespace trv5
