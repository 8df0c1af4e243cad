#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "chance/intervals.h"
#include "chance/repeated_search.h"
#include "chance/workers.h"

namespace trv5 {

/// How often luck reaches a count of the ranking.
struct LuckOfCount {
  int count = 0;    ///< cases covered
  int own = 0;      ///< rows of the own ranking that cover so many or more; a full ranking may leave some out
  int reached = 0;  ///< replicas in which the best formula covers so many or more
  /// The same of the formulas alone that cover no more than this on the archive itself: the better ones have had their
  /// own figure, and don't count against those that come after them.
  int reachedByOthers = 0;
  /// The chance that luck brings such a count: (1 + replicas) of (1 + all), by the step-down of Westfall and Young over
  /// the counts, so never below that of a higher count.
  double p = 1;
  Interval bounds = {};  ///< of p, as far as the replicas know it
};

/// What the best formula of a search covers on archives drawn by luck.
struct LuckFigures {
  int replicas = 0;
  /// The own best count, 0 for a search that found nothing.
  int best = 0;
  double mean = 0;                  ///< of the best count on the replicas
  std::vector<int> replicasByBest;  ///< by count
  std::vector<LuckOfCount> counts;  ///< each count of the own ranking, the highest first

  /// Replicas in which the best formula covers so many or more.
  int reached(int count) const;
};

/// The simulated maximum: a search beside the same search on archives whose later draws are drawn anew.
///
/// The best of thousands of formulas covers much on any archive. Only what it covers beyond that is worth a word, and
/// how much that is depends on everything that was tried at once (White: A reality check for data snooping, 2000;
/// Westfall, Young: Resampling-based multiple testing, 1993; Romano, Wolf 2005). An own archive counts as one of the
/// replicas, so that no chance is 0 (Phipson, Smyth 2010).
class SearchLuck {
 public:
  SearchLuck(std::shared_ptr<const RepeatedSearch> search, std::uint64_t seed);

  /// Draws on until there are so many replicas. Stopped, it keeps those before the first that isn't done, and may go on
  /// later: the figures of so many replicas of a seed are always the same.
  void draw(int replicas, const Workers& workers = {});

  int replicas() const { return m_replicas; }
  LuckFigures figures() const;

 private:
  // A count of the own ranking: the rows before it are those that cover more.
  struct Level {
    int count = 0, rowsBefore = 0, rows = 0;
  };
  void bestOf(const Outcomes& outcomes, std::uint16_t* bestByLevel) const;
  std::size_t levels() const { return m_levels.empty() ? 1 : m_levels.size(); }

  std::shared_ptr<const RepeatedSearch> m_search;
  std::uint64_t m_seed;
  std::vector<CountedRow> m_own;
  std::vector<Level> m_levels;
  int m_replicas = 0;
  /// By replica, then by level: the best count of a formula that isn't one of the rows before the level.
  std::vector<std::uint16_t> m_best;
};

}  // namespace trv5
