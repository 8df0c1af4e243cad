#include "method/hits.h"

#include <gtest/gtest.h>

#include "support/archive_builder.h"

namespace trv5 {
namespace {

TEST(MatchesOnLastWheel, AreThoseOfTheLastDrawPlayedOnTheLastWheelOfPlay) {
  const Archive archive = archiveOf({{{"BA", {1, 2, 3, 4, 5}}, {"FI", {1, 2, 3, 4, 5}}},
                                     {{"BA", {1, 2, 3, 4, 50}}, {"FI", {60, 2, 3, 70, 50}}},
                                     {{"BA", {1, 2, 3, 40, 50}}, {"FI", {60, 2, 30, 70, 50}}}});
  NumberFlags inPlay{};
  for (const std::size_t n : {1, 2, 3, 4, 5}) inPlay[n] = true;
  constexpr WheelSet kBari = 1U, kBariAndFirenze = 1U | 1U << 2;
  const auto matches = [&](WheelSet wheels, int colpi, int lastDraw) {
    return matchesOnLastWheel(archive, 1, {.colpi = colpi, .lastDraw = lastDraw, .wheels = wheels}, inPlay);
  };
  EXPECT_EQ(matches(kBari, 1, 3), 4);
  EXPECT_EQ(matches(kBari, 9, 3), 3);
  EXPECT_EQ(matches(kBari, 9, 2), 4);
  EXPECT_EQ(matches(kBariAndFirenze, 1, 3), 2);
  EXPECT_EQ(matches(kBariAndFirenze, 2, 3), 1);
  EXPECT_EQ(matches(kBari, 0, 3), 0) << "the draw of the case isn't played";
  EXPECT_EQ(matches(kBari, 9, 1), 0);
  EXPECT_EQ(matches(0, 9, 3), 0);
}

}  // namespace
}  // namespace trv5
