#include "chance/intervals.h"

#include <gtest/gtest.h>

#include <cmath>

namespace trv5 {
namespace {

// The chance of exactly k of n, term by term.
double binomial(int n, int k, double p) {
  double chance = 1;
  for (int i = 1; i <= k; ++i) chance *= (n - k + i) * p / i;
  return chance * std::pow(1 - p, n - k);
}

TEST(ClopperPearson, LeavesTwoAndAHalfPercentOutOnEitherSide) {
  for (const auto& [k, n] : {std::pair(3, 20), std::pair(1, 7), std::pair(19, 20), std::pair(30, 60)}) {
    const Interval bounds = clopperPearson(k, n);
    double above = 0;
    double below = 0;
    for (int i = k; i <= n; ++i) above += binomial(n, i, bounds.low);
    for (int i = 0; i <= k; ++i) below += binomial(n, i, bounds.high);
    EXPECT_NEAR(above, 0.025, 1e-12) << k << " of " << n;
    EXPECT_NEAR(below, 0.025, 1e-12) << k << " of " << n;
  }
}

TEST(ClopperPearson, EndsAtNothingAndAtAll) {
  EXPECT_EQ(clopperPearson(0, 999).low, 0);
  EXPECT_NEAR(clopperPearson(0, 999).high, 1 - std::pow(0.025, 1.0 / 999), 1e-12);
  EXPECT_EQ(clopperPearson(999, 999).high, 1);
  EXPECT_NEAR(clopperPearson(999, 999).low, std::pow(0.025, 1.0 / 999), 1e-12);
  EXPECT_EQ(clopperPearson(0, 0).high, 1);
}

TEST(ClopperPearson, HoldsForManyTrials) {
  // 5,390 of 10,000: the normal distribution is as good there.
  const Interval bounds = clopperPearson(5390, 10000);
  EXPECT_NEAR(bounds.low, 0.5292, 1e-4);
  EXPECT_NEAR(bounds.high, 0.5488, 1e-4);
  EXPECT_LT(clopperPearson(50, 99999).high, 0.0007);
}

TEST(Wilson, SolvesTheScoreEquation) {
  for (const auto& [k, n] : {std::pair(3, 20), std::pair(205, 528), std::pair(1, 3)}) {
    const Interval bounds = wilson(k, n);
    for (const double p : {bounds.low, bounds.high})
      EXPECT_NEAR(std::abs(static_cast<double>(k) / n - p) / std::sqrt(p * (1 - p) / n), 1.959964, 1e-6);
  }
}

TEST(Wilson, EndsAtNothingAndAtAll) {
  EXPECT_EQ(wilson(0, 12).low, 0);
  EXPECT_GT(wilson(0, 12).high, 0.2);
  EXPECT_EQ(wilson(12, 12).high, 1);
  EXPECT_EQ(wilson(0, 0).low, 0);
  EXPECT_EQ(wilson(0, 0).high, 1);
}

}  // namespace
}  // namespace trv5
