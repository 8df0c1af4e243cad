#include "provision/demo_archive.h"

#include <gtest/gtest.h>

#include <set>

#include "maintenance/draw_days.h"

namespace trv5 {
namespace {

TEST(DemoArchive, HoldsFiveDifferentNumbersOnEachWheelThatWasDrawn) {
  const std::vector<Draw> draws = simulatedDraws();
  const std::vector<Day> days = drawDays();
  ASSERT_EQ(draws.size(), days.size());
  for (std::size_t i = 0; i < draws.size(); ++i) {
    ASSERT_EQ(draws[i].day, days[i]);
    const WheelSet drawn = wheelsDrawnOn(days[i]);
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      const auto& numbers = draws[i].numbers[static_cast<std::size_t>(wheel)];
      const std::set<int> different(numbers.begin(), numbers.end());
      if (holds(drawn, wheel)) {
        ASSERT_EQ(different.size(), 5U) << dateText(days[i]) << " " << wheel;
        ASSERT_GE(*different.begin(), 1);
        ASSERT_LE(*different.rbegin(), 90);
      } else {
        ASSERT_EQ(different, std::set<int>{0}) << dateText(days[i]) << " " << wheel;
      }
    }
  }
}

TEST(DemoArchive, IsTheSameAtEveryRun) {
  EXPECT_EQ(simulatedDraws(), simulatedDraws());
  const Draw last = simulatedDraws().back();
  EXPECT_EQ(rowOf(last).wheels[kNational], "72-32-78-42-17") << "other numbers: every published result changes";
}

TEST(DemoArchive, DrawsAllNumbersAboutEquallyOften) {
  std::array<int, 91> count{};
  int total = 0;
  for (const Draw& draw : simulatedDraws()) {
    for (const auto& wheel : draw.numbers) {
      for (const int number : wheel) {
        if (number == 0) continue;
        ++count[static_cast<std::size_t>(number)];
        ++total;
      }
    }
  }
  // Chi-square of 89 degrees of freedom, numbers drawn without being put back: beyond 130 once in 500 generators.
  const double expected = total / 90.0;
  double chiSquare = 0;
  for (std::size_t n = 1; n <= 90; ++n) chiSquare += (count[n] - expected) * (count[n] - expected) / expected;
  EXPECT_LT(chiSquare, 130);
}

TEST(DemoArchive, GivesRowsOfTheArchivesForm) {
  Draw draw{dayOf(2026, 8, 21).value(), {}};
  draw.numbers[0] = {5, 71, 13, 90, 2};
  const DrawRow row = rowOf(draw);
  EXPECT_EQ(row.date, "21/08/2026");
  EXPECT_EQ(row.wheels[0], "05-71-13-90-02");
  EXPECT_EQ(row.wheels[1], "");
}

}  // namespace
}  // namespace trv5
