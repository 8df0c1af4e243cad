#include "core/dates.h"

#include <gtest/gtest.h>

#include "core/shell.h"

namespace trv5 {
namespace {

TEST(Dates, ReadsAndWritesBothForms) {
  const Day day = dayOfText("07/01/1939").value();
  EXPECT_EQ(dateText(day), "07/01/1939");
  EXPECT_EQ(isoText(day), "1939-01-07");
  EXPECT_EQ(dayOfIso("1939-01-07"), day);
  EXPECT_EQ(dayOf(1939, 1, 7), day);
}

TEST(Dates, KnowsTheDaysOfEachMonth) {
  EXPECT_TRUE(dayOfText("29/02/2024").has_value());
  EXPECT_TRUE(dayOfText("29/02/2000").has_value());
  EXPECT_FALSE(dayOfText("29/02/2023").has_value());
  EXPECT_FALSE(dayOfText("29/02/1900").has_value());
  EXPECT_FALSE(dayOfText("31/04/2024").has_value());
  EXPECT_FALSE(dayOfText("00/01/2024").has_value());
  EXPECT_FALSE(dayOfText("01/13/2024").has_value());
  EXPECT_FALSE(dayOf(2024, -1, 1).has_value());
  EXPECT_FALSE(dayOf(2024, 1, 0).has_value());
}

TEST(Dates, AnyOtherFormIsNone) {
  for (const char* text : {"", "7/1/1939", "07-01-1939", "07/01/39", "07/01/1939 ", "0a/01/1939", "1939/01/07",
                           "07/01/193x", "-7/01/1939"})
    EXPECT_FALSE(dayOfText(text).has_value()) << text;
  for (const char* text : {"", "07/01/1939", "1939-1-7", "1939-01-07T00:00", "193x-01-07", "1939-02-30"})
    EXPECT_FALSE(dayOfIso(text).has_value()) << text;
}

TEST(Dates, EveryDayOfTheArchiveComesBack) {
  const Day last = dayOf(2026, 12, 31).value();
  int weekday = weekdayOf(dayOf(1939, 1, 1).value());
  EXPECT_EQ(weekday, 1);  // a Sunday
  for (Day day = dayOf(1939, 1, 1).value(); day <= last; day += std::chrono::days{1}) {
    ASSERT_EQ(dayOfText(dateText(day)), day);
    ASSERT_EQ(dayOfIso(isoText(day)), day);
    ASSERT_EQ(dateTextOfIso(isoText(day)), dateText(day));
    ASSERT_EQ(weekdayOf(day), weekday);
    weekday = weekday % 7 + 1;
  }
}

TEST(Dates, AStoredTextOfAnotherShapeComesBackAsItIs) {
  EXPECT_EQ(dateTextOfIso("07/01/1939"), "07/01/1939");
  EXPECT_EQ(dateTextOfIso(""), "");
  EXPECT_EQ(dateTextOfIso("1939-01-0x"), "1939-01-0x");
}

TEST(Dates, ATimeHasTwoDigitsEach) {
  EXPECT_EQ(timeText({2026, 8, 22, 9, 5, 0}), "09:05:00");
  EXPECT_EQ(timeText({2026, 8, 22, 23, 59, 59}), "23:59:59");
}

}  // namespace
}  // namespace trv5
