#include "tools/number_classes.h"

#include <gtest/gtest.h>

namespace trv5 {
namespace {

std::optional<int> classOf(std::string_view word, int number) {
  for (const ClassTraits& kind : kClassTraits)
    if (kind.word == word) return kind.of(number);
  ADD_FAILURE() << word;
  return std::nullopt;
}

TEST(NumberClasses, AreDecadeLastDigitAndFigureOfTheNumber) {
  EXPECT_EQ(classOf("DEC", 90), 0);
  EXPECT_EQ(classOf("DEC", 89), 8);
  EXPECT_EQ(classOf("CAD", 90), 0);
  EXPECT_EQ(classOf("FIG", 90), 9);
}

TEST(NumberClasses, OfAnUndrawnWheelAre0) {
  for (const char* const word : {"DEC", "CAD", "FIG", "GEM"}) EXPECT_EQ(classOf(word, 0), 0) << word;
  EXPECT_EQ(classOf("RAD", 0), std::nullopt);
}

TEST(NumberClasses, RootsAreThoseOfTheGroupsAndOtherNumbersHaveNone) {
  EXPECT_EQ(classOf("RAD", 8), 8);
  EXPECT_EQ(classOf("RAD", 89), 8);
  EXPECT_EQ(classOf("RAD", 9), std::nullopt);
  EXPECT_EQ(classOf("RAD", 90), std::nullopt);
}

TEST(NumberClasses, TwinsAreTheMultiplesOf11) {
  EXPECT_EQ(classOf("GEM", 88), 88);
  EXPECT_EQ(classOf("GEM", 11), 11);
  EXPECT_EQ(classOf("GEM", 89), std::nullopt);
}

}  // namespace
}  // namespace trv5
