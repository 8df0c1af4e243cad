#include "chance/hypergeometric.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <numeric>

namespace trv5 {
namespace {

// A quotient of whole numbers, as the figures are worked out on paper.
struct Fraction {
  std::int64_t over, under;
  double value() const { return static_cast<double>(over) / static_cast<double>(under); }
};

constexpr std::int64_t kWheels5of90 = 43949268;  // sets of five out of 90

TEST(Hypergeometric, CountsTheSetsOfAWheelExactly) {
  EXPECT_EQ(combinations(90, 5), static_cast<double>(kWheels5of90));
  EXPECT_EQ(combinations(89, 4), 2441626);
  EXPECT_EQ(combinations(5, 5), 1);
  EXPECT_EQ(combinations(4, 5), 0);
  EXPECT_EQ(combinations(4, -1), 0);
}

TEST(Hypergeometric, GivesTheExactFractionsOfTheForecasts) {
  EXPECT_DOUBLE_EQ(chanceOfSet(1), (Fraction{1, 18}.value()));
  EXPECT_DOUBLE_EQ(chanceOfSet(2), (Fraction{2, 801}.value()));  // 1 in 400.5
  EXPECT_DOUBLE_EQ(chanceOfSet(3), (Fraction{1, 11748}.value()));
  EXPECT_DOUBLE_EQ(chanceOfSet(4), (Fraction{1, 511038}.value()));
  EXPECT_DOUBLE_EQ(chanceOfSet(5), (Fraction{1, kWheels5of90}.value()));
  EXPECT_DOUBLE_EQ(chanceOfNumbers(1), chanceOfSet(1));
  // Neither of two: C(88, 5) of the wheels.
  EXPECT_NEAR(chanceOfNumbers(2), (Fraction{kWheels5of90 - 39175752, kWheels5of90}.value()), 1e-15);
  EXPECT_NEAR(chanceOfNumbers(2), 0.1086, 5e-5);
  EXPECT_DOUBLE_EQ(chanceOfNumbers(0), 0);
  EXPECT_NEAR(chanceOfNumbers(90), 1, 1e-15);
  EXPECT_NEAR(chanceOfPivot(1), chanceOfSet(2), 1e-15);
  EXPECT_NEAR(chanceOfPivot(89), chanceOfSet(1), 1e-15);
  EXPECT_EQ(chanceOfPivot(0), 0);
}

TEST(Hypergeometric, GivesTheChanceOfALunghetta) {
  EXPECT_NEAR(chanceOfLunghetta(10, 2), 0.0931, 5e-5);
  EXPECT_NEAR(chanceOfLunghetta(10, 2), 1 - (chanceOfHits(10, 0) + chanceOfHits(10, 1)), 1e-15);
  EXPECT_NEAR(chanceOfLunghetta(2, 2), chanceOfSet(2), 1e-15);
  EXPECT_EQ(chanceOfLunghetta(1, 2), 0);
  EXPECT_DOUBLE_EQ(chanceOfLunghetta(7, 0), chanceOfNumbers(7));  // no number is no hit
  double all = 0;
  for (int hits = 0; hits <= 5; ++hits) all += chanceOfHits(10, hits);
  EXPECT_NEAR(all, 1, 1e-14);
}

TEST(Hypergeometric, GivesTheChanceOfAnAmbataByItsWheelDraws) {
  EXPECT_NEAR(chanceOfDraws(chanceOfSet(1), 9), 0.4022, 5e-5);
  EXPECT_NEAR(chanceOfDraws(chanceOfSet(1), 18), 0.6426, 5e-5);
  EXPECT_NEAR(chanceOfDraws(chanceOfSet(1), 90), 0.9942, 5e-5);
  EXPECT_EQ(chanceOfDraws(chanceOfSet(1), 0), 0);
  EXPECT_EQ(chanceOfDraws(1, 3), 1);
  EXPECT_EQ(chanceOfDraws(0, 3), 0);
}

TEST(Hypergeometric, KeepsTheDigitsOfRareForecasts) {
  // Ten wheels of a cinquina: ten times its chance, less one part in ten million.
  EXPECT_NEAR(chanceOfDraws(chanceOfSet(5), 10) / chanceOfSet(5), 10 * (1 - 4.5 * chanceOfSet(5)), 1e-13);
}

}  // namespace
}  // namespace trv5
