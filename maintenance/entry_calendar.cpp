#include "maintenance/entry_calendar.h"

#include <fmt/format.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/dates.h"
#include "core/text.h"
#include "maintenance/archivio.h"
#include "maintenance/year_calendar.h"

namespace trv5 {
namespace {

constexpr int kFirstYear = 1939;
constexpr int kYear = 1, kMonth = 2, kFirstDay = 3;  // columns of Fg1
constexpr Rgb kYearBack = 0xFFFFC0, kMonthBack = 0xC0FFC0;
constexpr int kDayWidth = 260;

// By weekday, 1 Sunday to 7 Saturday: a capital for Tuesday, a small letter for Wednesday.
constexpr std::array<const char*, 8> kInitials = {"", "D", "L", "M", "m", "G", "V", "S"};

Grid gridOf(const YearCalendar& calendar, int year) {
  Grid grid("|A|M");
  grid.setColumns(kFirstDay + static_cast<int>(calendar.days.size()));
  grid.setRows(1 + static_cast<int>(calendar.months.size()));
  for (int column = kFirstDay; column < grid.columns(); ++column) {
    grid.setNumber(0, column, calendar.days[static_cast<std::size_t>(column - kFirstDay)]);
    grid.setWidth(column, kDayWidth);
  }
  int row = 0;
  for (const YearCalendar::Month& month : calendar.months) {
    ++row;
    grid.setNumber(row, kYear, year);
    grid.setNumber(row, kMonth, month.month);
    for (int column = kFirstDay; column < grid.columns(); ++column) {
      const int day = calendar.days[static_cast<std::size_t>(column - kFirstDay)];
      if (const int weekday = month.weekdays[static_cast<std::size_t>(day)]) grid.setNumber(row, column, weekday);
    }
    for (const auto& [column, back] : {std::pair(kYear, kYearBack), std::pair(kMonth, kMonthBack)}) {
      grid.setBold(row, column);
      grid.setBack(row, column, back);
    }
  }
  return grid;
}

void selectLastDraw(Grid& Fg1) {
  const int row = Fg1.rows() - 1;
  for (int column = Fg1.columns() - 1; column >= kFirstDay; --column)
    if (row > 0 && !Fg1.text(row, column).empty()) return Fg1.setCurrent(row, column);
}

void writeInitials(Grid& Fg1) {
  for (int row = 1; row < Fg1.rows(); ++row)
    for (int column = kFirstDay; column < Fg1.columns(); ++column)
      Fg1.setText(row, column, kInitials[static_cast<std::size_t>(Fg1.number(row, column))]);
}

// The day that somebody typed, also without leading zeros; nothing for one that the month calendar doesn't show.
std::optional<Day> typedDay(std::string_view text) {
  const std::vector<std::string> pieces = split(trimmed(text), '/');
  if (pieces.size() != 3 || pieces[2].size() != 4) return {};
  for (const std::string& piece : pieces)
    if (piece.empty() || piece.find_first_not_of("0123456789") != std::string::npos) return {};
  constexpr int kFirstShown = 1753, kLastShown = 9999;
  const int year = numberOf(pieces[2]);
  if (year < kFirstShown || year > kLastShown) return {};
  return dayOf(year, numberOf(pieces[1]), numberOf(pieces[0]));
}

}  // namespace

void CaricaCalendario(Archivio& a) {
  const Grid::Batch batch(a.Fg1);
  a.Fg1.grid() = gridOf(yearCalendar(a.program.archive, a.Combo1.number()), a.Combo1.number());
  selectLastDraw(a.Fg1);
  a.Fg1.focus();
  if (a.Check2.checked()) writeInitials(a.Fg1);
}

void ScegliDalCalendario(Archivio& a, int row, int column) {
  if (row < 1 || column < kFirstDay) return;
  const std::string date =
      fmt::format("{:02}/{:02}/{}", a.Fg1.number(0, column), a.Fg1.number(row, kMonth), a.Fg1.text(row, kYear));
  const Archive& archive = a.program.archive;
  for (int draw = archive.NumEstrazioni(); draw >= 1; --draw) {
    if (archive.DateEstrazioni(draw) != date) continue;
    a.HScrestrazione.set(draw);
    a.MonthView1.show(date);
    a.Text1.set(date);
    return;
  }
}

void RiportaData(Archivio& a) {
  a.Text1.set(a.MonthView1.date());
}

void ImpostaData(Archivio& a) {
  if (const std::optional<Day> day = typedDay(a.Text1.text()))
    a.MonthView1.show(dateText(*day));
  else
    a.shell().status("La data va scritta GG/MM/AAAA, dal 1753 in poi: il calendario resta al " + a.MonthView1.date());
}

void ImpostaDataOdierna(Archivio& a) {
  const DateTime now = a.shell().now();
  const std::string today = fmt::format("{:02}/{:02}/{:04}", now.day, now.month, now.year);
  a.MonthView1.show(today);
  a.Text1.set(today);
}

void CaricaAnni(Archivio& a) {
  std::vector<std::string> years;
  for (int year = kFirstYear; year <= a.shell().now().year; ++year) years.push_back(std::to_string(year));
  const int last = static_cast<int>(years.size()) - 1;
  a.Combo1.setItems(std::move(years));
  a.Combo1.select(last);
}

}  // namespace trv5
