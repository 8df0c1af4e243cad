#include "core/dates.h"

#include <fmt/format.h>

#include <algorithm>

namespace trv5 {
namespace {

bool allDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

int value(std::string_view digits) {
  int n = 0;
  for (char c : digits) n = n * 10 + (c - '0');
  return n;
}

bool isIsoShaped(std::string_view text) {
  return text.size() == 10 && text[4] == '-' && text[7] == '-' && allDigits(text.substr(0, 4)) &&
         allDigits(text.substr(5, 2)) && allDigits(text.substr(8, 2));
}

}  // namespace

std::optional<Day> dayOf(int year, int month, int day) {
  if (month < 1 || day < 1) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                                         std::chrono::day{static_cast<unsigned>(day)}};
  if (!date.ok()) return std::nullopt;
  return Day{date};
}

std::optional<Day> dayOfText(std::string_view text) {
  if (text.size() != 10 || text[2] != '/' || text[5] != '/') return std::nullopt;
  const std::string_view day = text.substr(0, 2), month = text.substr(3, 2), year = text.substr(6, 4);
  if (!allDigits(day) || !allDigits(month) || !allDigits(year)) return std::nullopt;
  return dayOf(value(year), value(month), value(day));
}

std::optional<Day> dayOfIso(std::string_view iso) {
  if (!isIsoShaped(iso)) return std::nullopt;
  return dayOf(value(iso.substr(0, 4)), value(iso.substr(5, 2)), value(iso.substr(8, 2)));
}

std::string dateText(Day day) {
  const std::chrono::year_month_day date{day};
  return fmt::format("{:02}/{:02}/{:04}", static_cast<unsigned>(date.day()), static_cast<unsigned>(date.month()),
                     static_cast<int>(date.year()));
}

std::string isoText(Day day) {
  const std::chrono::year_month_day date{day};
  return fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                     static_cast<unsigned>(date.day()));
}

std::string dateTextOfIso(std::string_view iso) {
  std::string text(iso);
  if (!isIsoShaped(iso)) return text;
  const auto put = [&](std::size_t at, std::string_view digits) { text.replace(at, digits.size(), digits); };
  put(0, iso.substr(8, 2));
  put(3, iso.substr(5, 2));
  put(6, iso.substr(0, 4));
  text[2] = text[5] = '/';
  return text;
}

int weekdayOf(Day day) {
  return static_cast<int>(std::chrono::weekday{day}.c_encoding()) + 1;
}

}  // namespace trv5
