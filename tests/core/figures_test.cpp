#include "core/figures.h"

#include <gtest/gtest.h>

namespace trv5 {
namespace {

TEST(Figures, AreWrittenAsInItalian) {
  EXPECT_EQ(figureText(0), "0");
  EXPECT_EQ(figureText(999), "999");
  EXPECT_EQ(figureText(1000), "1.000");
  EXPECT_EQ(figureText(1749478500), "1.749.478.500");
  EXPECT_EQ(figureText(11.232, 3), "11,232");
  EXPECT_EQ(figureText(123456.78, 1), "123.456,8");
}

TEST(Figures, AreRoundedAwayFromZero) {
  EXPECT_EQ(figureText(0.5), "1");
  EXPECT_EQ(figureText(2.5), "3");
  EXPECT_EQ(figureText(-2.5), "−3");
  EXPECT_EQ(figureText(999.96, 1), "1.000,0");
  EXPECT_EQ(figureText(-0.04, 1), "0,0");
  EXPECT_EQ(figureText(-0.06, 1), "−0,1");
}

}  // namespace
}  // namespace trv5
