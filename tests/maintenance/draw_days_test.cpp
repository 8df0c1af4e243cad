#include "maintenance/draw_days.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace trv5 {
namespace {

bool isDrawDay(const std::string& date) {
  const std::vector<Day> days = drawDays();
  return std::binary_search(days.begin(), days.end(), dayOfText(date).value());
}

std::string wheelsOn(const std::string& date) {
  const WheelSet drawn = wheelsDrawnOn(dayOfText(date).value());
  std::string codes;
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (holds(drawn, wheel)) codes += std::string(CodiciRuote[static_cast<std::size_t>(wheel)]) + " ";
  return codes;
}

TEST(DrawDays, RunFromJanuary1939ToAugust2026) {
  const std::vector<Day> days = drawDays();
  ASSERT_EQ(days.size(), 7370U);
  EXPECT_EQ(dateText(days.front()), "07/01/1939");
  EXPECT_EQ(dateText(days.back()), "21/08/2026");
  EXPECT_TRUE(std::is_sorted(days.begin(), days.end()));
  EXPECT_EQ(std::adjacent_find(days.begin(), days.end()), days.end());
}

TEST(DrawDays, BecomeMoreWithTheYears) {
  std::map<int, int> perYear;
  for (const Day day : drawDays()) ++perYear[int(std::chrono::year_month_day(day).year())];
  EXPECT_EQ(perYear[1939], 52);
  EXPECT_EQ(perYear[1996], 52);
  EXPECT_EQ(perYear[1998], 104);
  EXPECT_EQ(perYear[2006], 156);
  EXPECT_EQ(perYear[2020], 139) << "the stop of spring 2020";
  EXPECT_EQ(perYear[2024], 209);
}

TEST(DrawDays, LeaveTheHolidays) {
  EXPECT_FALSE(isDrawDay("01/11/2024"));
  EXPECT_TRUE(isDrawDay("04/11/2024")) << "a Friday goes to the Monday when Saturday has its own draw";
  EXPECT_TRUE(isDrawDay("03/06/2026")) << "a Tuesday goes to the Wednesday";
  EXPECT_TRUE(isDrawDay("24/12/2025")) << "Christmas goes to the day before";
  EXPECT_TRUE(isDrawDay("27/12/2004")) << "but a Saturday's Christmas to the Monday";
  EXPECT_TRUE(isDrawDay("15/08/1981")) << "in the eighties nothing moved";
}

TEST(DrawDays, LackSomeWheelsAtFirstAndInTheWar) {
  EXPECT_EQ(wheelsOn("07/01/1939"), "BA FI MI NA PA RO TO VE ");
  EXPECT_EQ(wheelsOn("08/07/1939"), "BA CA FI GE MI NA PA RO TO VE ");
  EXPECT_EQ(wheelsOn("25/09/1943"), "BA FI GE RO TO VE ");
  EXPECT_EQ(wheelsOn("09/06/1962"), "BA CA FI GE MI NA PA RO TO VE ");
}

TEST(DrawDays, BringTheNationalWheelInMay2005) {
  EXPECT_FALSE(holds(wheelsDrawnOn(dayOf(2005, 4, 30).value()), kNational));
  EXPECT_TRUE(holds(wheelsDrawnOn(dayOf(2005, 5, 4).value()), kNational));
}

TEST(DrawDays, HaveAWheelEach) {
  for (const Day day : drawDays()) EXPECT_NE(wheelsDrawnOn(day), 0U) << dateText(day);
}

}  // namespace
}  // namespace trv5
