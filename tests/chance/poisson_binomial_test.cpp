#include "chance/poisson_binomial.h"

#include <gtest/gtest.h>

namespace trv5 {
namespace {

TEST(PoissonBinomial, OfNoTrialHasNoSuccess) {
  const PoissonBinomial none;
  EXPECT_EQ(none.trials(), 0);
  EXPECT_EQ(none.exactly(0), 1);
  EXPECT_EQ(none.atLeast(0), 1);
  EXPECT_EQ(none.atLeast(1), 0);
  EXPECT_EQ(none.quantile(0.975), 0);
}

TEST(PoissonBinomial, OfEqualChancesIsTheBinomial) {
  const PoissonBinomial four({0.5, 0.5, 0.5, 0.5});
  EXPECT_EQ(four.exactly(2), 0.375);
  EXPECT_EQ(four.atLeast(3), 0.3125);
  EXPECT_EQ(four.atLeast(5), 0);
  EXPECT_EQ(four.exactly(-1), 0);
  EXPECT_EQ(four.quantile(0.5), 2);
  EXPECT_EQ(four.quantile(1), 4);
}

TEST(PoissonBinomial, AgreesWithEveryOutcomeWrittenOut) {
  const std::vector<double> chances = {0.1, 0.25, 0.6, 0.9, 0, 1, 0.4022, 0.6426};
  const PoissonBinomial sum(chances);
  std::vector<double> plain(chances.size() + 1);
  for (unsigned outcome = 0; outcome < 1U << chances.size(); ++outcome) {
    double chance = 1;
    for (std::size_t i = 0; i < chances.size(); ++i) chance *= (outcome >> i & 1U) != 0 ? chances[i] : 1 - chances[i];
    plain[static_cast<std::size_t>(__builtin_popcount(outcome))] += chance;
  }
  double mean = 0;
  double square = 0;
  for (std::size_t k = 0; k < plain.size(); ++k) {
    EXPECT_NEAR(sum.exactly(static_cast<int>(k)), plain[k], 1e-15) << k;
    mean += static_cast<double>(k) * plain[k];
    square += static_cast<double>(k * k) * plain[k];
  }
  EXPECT_NEAR(sum.mean(), mean, 1e-12);
  EXPECT_NEAR(sum.variance(), square - mean * mean, 1e-12);
}

TEST(PoissonBinomial, KeepsTheDigitsOfARareTail) {
  const PoissonBinomial thirty(std::vector<double>(30, 0.01));
  EXPECT_NEAR(thirty.atLeast(30) / 1e-60, 1, 1e-12);
}

}  // namespace
}  // namespace trv5
