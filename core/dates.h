#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace trv5 {

/// A day of the calendar. Dates are shown and compared as "GG/MM/AAAA" and stored as "AAAA-MM-GG"; only arithmetic on
/// days goes through this type.
using Day = std::chrono::sys_days;

/// The day of these numbers, nothing when the calendar has none.
std::optional<Day> dayOf(int year, int month, int day);
/// The day of a text of exactly the form "GG/MM/AAAA", nothing for any other text or a day that the calendar lacks.
std::optional<Day> dayOfText(std::string_view text);
/// The day of a text of exactly the form "AAAA-MM-GG".
std::optional<Day> dayOfIso(std::string_view iso);

/// "GG/MM/AAAA".
std::string dateText(Day day);
/// "AAAA-MM-GG".
std::string isoText(Day day);

/// "GG/MM/AAAA" of a stored "AAAA-MM-GG"; a text of another shape comes back as it is.
std::string dateTextOfIso(std::string_view iso);

/// Day of the week, 1 Sunday to 7 Saturday.
int weekdayOf(Day day);

}  // namespace trv5
