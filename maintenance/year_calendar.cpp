#include "maintenance/year_calendar.h"

#include "core/dates.h"

namespace trv5 {

YearCalendar yearCalendar(const Archive& archive, int year) {
  std::array<YearCalendar::Month, 13> months;
  std::array<bool, 13> drawnInMonth{};
  std::array<bool, 32> drawnOnDay{};
  for (int draw = 1; draw <= archive.NumEstrazioni(); ++draw) {
    const std::optional<Day> day = dayOfText(archive.DateEstrazioni(draw));
    if (!day) continue;
    const std::chrono::year_month_day date(*day);
    if (static_cast<int>(date.year()) != year) continue;
    const auto m = static_cast<unsigned>(date.month()), d = static_cast<unsigned>(date.day());
    months[m].weekdays[d] += weekdayOf(*day);
    drawnInMonth[m] = drawnOnDay[d] = true;
  }
  YearCalendar calendar;
  for (std::size_t m = 1; m < months.size(); ++m) {
    if (!drawnInMonth[m]) continue;
    months[m].month = static_cast<int>(m);
    calendar.months.push_back(months[m]);
  }
  for (std::size_t d = 1; d < drawnOnDay.size(); ++d)
    if (drawnOnDay[d]) calendar.days.push_back(static_cast<int>(d));
  return calendar;
}

}  // namespace trv5
