#pragma once

#include <cstdint>
#include <memory>
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

/// The formulas of a search by the cases that they cover, replica after replica: the replicas 0, 1, .. of the seed, as
/// SearchLuck draws them.
class FormulaTally {
 public:
  /// `least`: the fewest cases that are told, 1 or more.
  FormulaTally(std::shared_ptr<const RepeatedSearch> search, std::uint64_t seed, int least);

  /// Draws on until there are so many replicas. Stopped, it keeps those before the first that isn't done, and may go on
  /// later: the figures of so many replicas of a seed are always the same.
  void draw(int replicas, const Workers& workers = {});

  int replicas() const { return m_replicas; }
  std::uint64_t seed() const { return m_seed; }
  /// From `least` to the most that is reached on the archive or a replica, the highest first.
  std::vector<TallyOfCount> rows() const;
  /// By the most cases that a formula of a replica covers; below `least` all are 0.
  const std::vector<int>& replicasByBest() const { return m_byBest; }
  /// The most cases that a formula covers on the archive as it is; 0 below `least`.
  int best() const { return static_cast<int>(m_own.size()) - 1; }
  double mean() const;  ///< of the best on the replicas

 private:
  void add(const std::vector<std::int64_t>& formulas);

  std::shared_ptr<const RepeatedSearch> m_search;
  std::uint64_t m_seed;
  int m_least;
  std::vector<std::int64_t> m_own, m_byLuck;  // by count; of the archive, and of all replicas together
  std::vector<int> m_byBest;
  int m_replicas = 0;
};

/// The rows of so many replicas. Stopped, it tells nothing.
std::vector<TallyOfCount> tallyLuck(const RepeatedSearch& search, std::uint64_t seed, int replicas, int least,
                                    const Workers& workers = {});

}  // namespace trv5
