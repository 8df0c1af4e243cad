#include "maintenance/entry_calendar.h"

#include <gtest/gtest.h>

#include "core/dates.h"
#include "maintenance/archivio_world.h"
#include "maintenance/year_calendar.h"

namespace trv5 {
namespace {

std::vector<DrawRow> rowsOf(const std::vector<std::string>& dates) {
  std::vector<DrawRow> rows;
  for (const std::string& date : dates) rows.push_back(drawOf(date, {}));
  return rows;
}

// A Tuesday, a Wednesday and a Sunday of two months, and one draw of another year.
const std::vector<std::string> kDates = {"31/12/2025", "10/02/2026", "11/02/2026", "01/03/2026", "10/03/2026"};

TEST(YearCalendar, HasTheMonthsAndDaysWithDrawsAndTheirWeekdays) {
  const YearCalendar calendar = yearCalendar(archiveOfRows(rowsOf(kDates)), 2026);
  EXPECT_EQ(calendar.days, (std::vector<int>{1, 10, 11}));
  ASSERT_EQ(calendar.months.size(), 2u);
  EXPECT_EQ(calendar.months[0].month, 2);
  EXPECT_EQ(calendar.months[0].weekdays[10], 3);
  EXPECT_EQ(calendar.months[0].weekdays[11], 4);
  EXPECT_EQ(calendar.months[0].weekdays[1], 0);
  EXPECT_EQ(calendar.months[1].month, 3);
  EXPECT_EQ(calendar.months[1].weekdays[1], 1);
}

TEST(YearCalendar, OfAYearWithoutDrawsIsEmptyAndDatesThatAreNoneHaveNoPlace) {
  const Archive archive = archiveOfRows(rowsOf({"10/02/2026", "30/02/2027", "oggi"}));
  EXPECT_TRUE(yearCalendar(archive, 2027).months.empty());
  EXPECT_TRUE(yearCalendar(archive, 0).days.empty());
}

TEST(YearCalendar, OfEachYearAgreesWithACountOverAllDays) {
  std::mt19937 rng(7);
  const Archive archive = archiveOfRows(randomRows(rng, 900));
  for (int year = 1939; year <= 1950; ++year) {
    const YearCalendar calendar = yearCalendar(archive, year);
    int draws = 0, cells = 0;
    for (int draw = 1; draw <= archive.NumEstrazioni(); ++draw)
      draws += archive.DateEstrazioni(draw).substr(6) == std::to_string(year);
    for (const YearCalendar::Month& month : calendar.months) {
      for (int day = 1; day <= 31; ++day) {
        const int weekday = month.weekdays[static_cast<std::size_t>(day)];
        if (weekday == 0) continue;
        ++cells;
        EXPECT_EQ(weekday, weekdayOf(*dayOf(year, month.month, day)));
      }
    }
    EXPECT_EQ(cells, draws);
  }
}

struct EntryCalendar : ::testing::Test {
  std::string row(int row) const {
    std::string text;
    for (int column = 1; column < a.Fg1.columns(); ++column) {
      const std::string& cell = a.Fg1.text(row, column);
      text += (column > 1 ? " " : "") + (cell.empty() ? "." : cell);
    }
    return text;
  }

  ArchivioWorld world;
  Archivio& a = world.openOn(rowsOf(kDates));
};

TEST_F(EntryCalendar, LoadsTheYearWithUnpaddedDaysInTheirOrder) {
  a.Command24.press();
  ASSERT_EQ(a.Fg1.rows(), 3);
  EXPECT_EQ(row(0), "A M 1 10 11");
  EXPECT_EQ(row(1), "2026 2 . 3 4");
  EXPECT_EQ(row(2), "2026 3 1 3 .");
}

TEST_F(EntryCalendar, YearAndMonthAreBoldOnYellowAndGreen) {
  a.Command24.press();
  for (int row = 1; row <= 2; ++row) {
    EXPECT_EQ(a.Fg1.at(row, 1), (Cell{"2026", 0xFFFFC0, kBlack, true}));
    EXPECT_EQ(a.Fg1.back(row, 2), 0xC0FFC0u);
    EXPECT_TRUE(a.Fg1.at(row, 2).bold);
    EXPECT_FALSE(a.Fg1.at(row, 4).bold);
  }
  EXPECT_EQ(a.Fg1.width(3), 260);
  EXPECT_EQ(a.Fg1.width(2), 0);
}

TEST_F(EntryCalendar, TheLastFilledCellOfTheLastRowIsSelectedAndHasTheFocus) {
  a.txtin[1].focus();
  a.Command24.press();
  EXPECT_EQ(a.Fg1.current(), 2);
  EXPECT_EQ(a.Fg1.currentColumn(), 4);
  EXPECT_TRUE(a.Fg1.hasFocus());
}

TEST_F(EntryCalendar, APickOfAYearAndTheBoxOfTheInitialsLoadIt) {
  a.Combo1.type("2025");
  EXPECT_EQ(row(1), "2025 12 4");
  a.Combo1.type("2026");
  a.Check2.set(true);
  EXPECT_EQ(row(1), "2026 2 . M m");  // a capital on Tuesday, a small letter on Wednesday
  EXPECT_EQ(row(2), "2026 3 D M .");
  a.Check2.set(false);
  EXPECT_EQ(row(2), "2026 3 1 3 .");
}

TEST_F(EntryCalendar, AYearWithoutDrawsHasItsHeadingOnly) {
  a.Combo1.type("1999");
  EXPECT_EQ(a.Fg1.rows(), 1);
  EXPECT_EQ(row(0), "A M");
  EXPECT_EQ(a.Fg1.current(), -1);
}

TEST_F(EntryCalendar, ADoubleClickOnADrawShowsItAndSetsTheDates) {
  a.Fg1.doubleClickCell(1, 5);
  EXPECT_EQ(a.LBLESTRAZIONE.text(), "11/02/2026");
  EXPECT_EQ(a.HScrestrazione.value(), 3);
  EXPECT_EQ(a.MonthView1.date(), "11/02/2026");
  EXPECT_EQ(a.Text1.text(), "11/02/2026");
}

TEST_F(EntryCalendar, ADoubleClickOnAnEmptyDayOrBesideTheDaysDoesNothing) {
  for (const auto& [row, column] :
       {std::pair(2, 5), std::pair(1, 3), std::pair(1, 1), std::pair(1, 2), std::pair(0, 4)}) {
    a.Fg1.doubleClickCell(row, column);
    EXPECT_EQ(a.HScrestrazione.value(), 5);
    EXPECT_EQ(a.Text1.text(), "22/08/2026");
  }
}

TEST_F(EntryCalendar, AClickOnTheMonthCalendarWritesItsDate) {
  a.MonthView1.set("01/09/2026");
  EXPECT_EQ(a.Text1.text(), "01/09/2026");
  a.Text1.set("altro");
  a.MonthView1.pick("01/09/2026");
  EXPECT_EQ(a.Text1.text(), "01/09/2026");
}

TEST_F(EntryCalendar, ImpostaDataTakesTheDateTyped) {
  a.Text1.set("05/03/1939");
  EXPECT_EQ(a.MonthView1.date(), "22/08/2026");
  a.Command6.press();
  EXPECT_EQ(a.MonthView1.date(), "05/03/1939");
  a.Text1.set(" 7/3/1939 ");
  a.Command6.press();
  EXPECT_EQ(a.MonthView1.date(), "07/03/1939");
  EXPECT_EQ(a.Text1.text(), " 7/3/1939 ");
}

TEST_F(EntryCalendar, ImpostaDataWithNonsenseLeavesTheCalendar) {
  for (const char* const text : {"", "abc", "30/02/2026", "05/03/39", "05/03/1752", "05/03/10000", "1/2/3/2026",
                                 "-5/03/1939", "05-03-1939", "99999999999/1/2026"}) {
    a.Text1.set(text);
    a.Command6.press();
    EXPECT_EQ(a.MonthView1.date(), "22/08/2026") << text;
    EXPECT_EQ(world.shell.statusTexts.back(),
              "La data va scritta GG/MM/AAAA, dal 1753 in poi: il calendario resta al 22/08/2026");
    world.shell.statusTexts.emplace_back();
  }
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST_F(EntryCalendar, TodayIsOnePressAway) {
  a.MonthView1.set("05/03/1939");
  a.Command9.press();
  EXPECT_EQ(a.MonthView1.date(), "22/08/2026");
  EXPECT_EQ(a.Text1.text(), "22/08/2026");
}

}  // namespace
}  // namespace trv5
