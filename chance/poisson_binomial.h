#pragma once

#include <vector>

namespace trv5 {

/// How many of some independent trials succeed, each with a chance of its own.
class PoissonBinomial {
 public:
  PoissonBinomial() = default;
  explicit PoissonBinomial(const std::vector<double>& chances);

  /// One trial more; its chance is 0..1.
  void add(double chance);

  int trials() const { return static_cast<int>(m_chanceOf.size()) - 1; }
  double mean() const { return m_mean; }
  double variance() const { return m_variance; }
  /// The chance of exactly so many successes.
  double exactly(int successes) const;
  /// The chance of so many successes or more, summed from the smallest term on.
  double atLeast(int successes) const;
  /// The fewest successes that aren't exceeded with a chance of at least `share`, 0..1.
  int quantile(double share) const;

 private:
  std::vector<double> m_chanceOf = {1.0};  // by successes
  double m_mean = 0, m_variance = 0;
};

}  // namespace trv5
