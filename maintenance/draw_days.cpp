#include "maintenance/draw_days.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace trv5 {
namespace {

using std::chrono::days;
using std::chrono::weekday;

constexpr Day on(int year, unsigned month, unsigned day) {
  return std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
}

constexpr Day kFirst = on(1939, 1, 7);
constexpr Day kLast = on(2026, 8, 21);
constexpr Day kNationalBegins = on(2005, 5, 4);

// The draws stood still in the spring of 2020.
constexpr Day kStopBegins = on(2020, 3, 22);
constexpr Day kStopEnds = on(2020, 5, 5);

// From here on a draw that falls on a holiday moves by rule; until 1970 each case was decided for itself, and from 1971
// to 1989 nothing moved.
constexpr int kFirstYearOfTheRule = 1990;

struct Moved {
  Day saturday;
  int days;  // from that Saturday to the day of the draw; 0 = not drawn at all
};
constexpr Moved kMoved[] = {
    {on(1945, 1, 6), -1},   {on(1945, 12, 8), -1},  {on(1948, 12, 25), -1}, {on(1949, 1, 1), -1},
    {on(1949, 12, 10), 2},  {on(1951, 6, 2), -1},   {on(1951, 12, 8), 2},   {on(1951, 12, 29), -1},
    {on(1952, 11, 1), 2},   {on(1952, 12, 27), 2},  {on(1953, 8, 15), -1},  {on(1953, 12, 26), 2},
    {on(1954, 5, 1), -1},   {on(1954, 12, 25), -1}, {on(1955, 1, 1), -1},   {on(1956, 12, 8), -1},
    {on(1957, 6, 29), -1},  {on(1959, 4, 25), 2},   {on(1959, 5, 2), 2},    {on(1959, 8, 15), 2},
    {on(1959, 12, 26), 2},  {on(1960, 1, 2), 2},    {on(1960, 3, 19), 2},   {on(1960, 11, 5), 2},
    {on(1961, 1, 7), 2},    {on(1961, 6, 3), 2},    {on(1961, 6, 10), 0},   {on(1961, 11, 4), 2},
    {on(1961, 12, 9), 2},   {on(1962, 1, 6), 2},    {on(1962, 12, 8), 2},   {on(1963, 6, 29), 2},
    {on(1964, 4, 4), 3},    {on(1964, 5, 2), 2},    {on(1964, 8, 15), 2},   {on(1964, 12, 26), 2},
    {on(1965, 5, 1), -1},   {on(1965, 12, 25), -1}, {on(1966, 1, 1), 2},    {on(1967, 10, 14), 2},
    {on(1967, 10, 28), -1}, {on(1967, 11, 4), 2},   {on(1968, 1, 6), -1},   {on(1968, 6, 29), -1},
    {on(1969, 11, 1), -1},  {on(1970, 12, 26), 2},
};

// Days beside the regular ones: draws that were held on two days, some wheels on each, and the last day of 2001.
constexpr Day kAdded[] = {on(1948, 4, 30), on(1962, 6, 4),   on(1962, 12, 12),
                          on(1964, 4, 27), on(1969, 12, 28), on(2001, 12, 31)};

// Wheels without a draw from the first day until the day before the second.
struct Absence {
  Day from, until;
  std::string_view wheels;  // codes separated by blanks
};
constexpr Absence kAbsences[] = {
    {on(1939, 1, 7), on(1939, 7, 8), "CA GE"},
    {on(1943, 3, 6), on(1943, 5, 1), "CA"},
    {on(1943, 4, 17), on(1943, 6, 12), "PA"},
    {on(1943, 5, 22), on(1943, 6, 12), "CA"},
    {on(1943, 7, 24), on(1943, 11, 20), "PA"},
    {on(1943, 9, 11), on(1943, 9, 18), "RO"},
    {on(1943, 9, 11), on(1943, 9, 25), "GE"},
    {on(1943, 9, 11), on(1944, 10, 14), "CA"},
    {on(1943, 9, 18), on(1943, 10, 23), "NA"},
    {on(1943, 9, 25), on(1943, 10, 2), "MI"},
    {on(1944, 1, 8), on(1944, 1, 15), "VE"},
    {on(1944, 3, 11), on(1944, 3, 18), "VE"},
    {on(1944, 3, 25), on(1944, 4, 1), "TO"},
    {on(1944, 4, 8), on(1944, 4, 15), "PA"},
    {on(1944, 4, 15), on(1944, 4, 22), "TO"},
    {on(1944, 7, 29), on(1944, 8, 5), "PA"},
    {on(1944, 8, 5), on(1944, 9, 23), "FI"},
    {on(1944, 9, 23), on(1944, 9, 30), "RO TO"},
    {on(1944, 11, 25), on(1945, 1, 5), "CA"},
    {on(1945, 4, 28), on(1945, 5, 5), "TO VE"},
    {on(1946, 9, 7), on(1946, 9, 14), "MI"},
    {on(1946, 11, 23), on(1946, 11, 30), "MI"},
    {on(1948, 4, 30), on(1948, 5, 1), "NA"},
    {on(1948, 5, 1), on(1948, 5, 8), "BA CA FI GE MI PA RO TO VE"},
    {on(1962, 6, 2), on(1962, 6, 4), "BA CA FI GE MI NA PA TO VE"},
    {on(1962, 6, 4), on(1962, 6, 9), "RO"},
    {on(1962, 12, 10), on(1962, 12, 12), "GE"},
    {on(1962, 12, 12), on(1962, 12, 15), "BA CA FI MI NA PA RO TO VE"},
    {on(1964, 4, 25), on(1964, 4, 27), "BA CA GE MI NA PA RO TO VE"},
    {on(1964, 4, 27), on(1964, 5, 4), "FI"},
    {on(1969, 12, 27), on(1969, 12, 28), "TO"},
    {on(1969, 12, 28), on(1970, 1, 3), "BA CA FI GE MI NA PA RO VE"},
};

bool isOneOf(Day day, std::initializer_list<weekday> weekdays) {
  return std::find(weekdays.begin(), weekdays.end(), weekday(day)) != weekdays.end();
}

bool isRegular(Day day) {
  using namespace std::chrono;
  if (day < on(1997, 3, 12)) return isOneOf(day, {Saturday});
  const bool trialOfThree = day >= on(2002, 12, 1) && day < on(2003, 1, 1);
  if (day < on(2005, 6, 20) && !trialOfThree) return isOneOf(day, {Wednesday, Saturday});
  if (day < on(2023, 7, 1)) return isOneOf(day, {Tuesday, Thursday, Saturday});
  return isOneOf(day, {Tuesday, Thursday, Friday, Saturday});
}

bool isHoliday(Day day) {
  if (day == on(2011, 3, 17)) return true;  // 150 years of the unity, once
  const std::chrono::year_month_day date(day);
  const unsigned m = unsigned(date.month()), d = unsigned(date.day());
  if (m == 6 && d == 2) return int(date.year()) >= 2001;  // a holiday again from then on
  constexpr std::pair<unsigned, unsigned> kFixed[] = {{1, 1},  {1, 6},  {4, 25},  {5, 1},  {8, 15},
                                                      {11, 1}, {12, 8}, {12, 25}, {12, 26}};
  return std::find(std::begin(kFixed), std::end(kFixed), std::pair(m, d)) != std::end(kFixed);
}

bool isChristmas(Day day) {
  const std::chrono::year_month_day date(day);
  return unsigned(date.month()) == 12 && unsigned(date.day()) == 25;
}

// The day on which the draw of a holiday is held: the next working day without a draw of its own; that of Christmas the
// day before, unless it falls on a Saturday, before a Sunday without a draw.
Day movedFromHoliday(Day day) {
  if (isChristmas(day) && !isOneOf(day, {std::chrono::Saturday})) {
    const Day eve = day - days(1);
    if (!isRegular(eve)) return eve;
  }
  while (isHoliday(day) || isRegular(day) || isOneOf(day, {std::chrono::Sunday})) day += days(1);
  return day;
}

}  // namespace

std::vector<Day> drawDays() {
  std::set<Day> drawn(std::begin(kAdded), std::end(kAdded));
  for (Day day = kFirst; day <= kLast; day += days(1)) {
    if (!isRegular(day) || (day >= kStopBegins && day < kStopEnds)) continue;
    const auto moved =
        std::find_if(std::begin(kMoved), std::end(kMoved), [day](const Moved& m) { return m.saturday == day; });
    const bool byRule = int(std::chrono::year_month_day(day).year()) >= kFirstYearOfTheRule;
    if (moved != std::end(kMoved)) {
      if (moved->days != 0) drawn.insert(day + days(moved->days));
    } else {
      drawn.insert(byRule && isHoliday(day) ? movedFromHoliday(day) : day);
    }
  }
  return {drawn.begin(), drawn.end()};
}

WheelSet wheelsDrawnOn(Day day) {
  WheelSet drawn = (1U << kWheels) - 1U;
  if (day < kNationalBegins) drawn &= ~(1U << kNational);
  for (const Absence& absence : kAbsences) {
    if (day < absence.from || day >= absence.until) continue;
    for (std::size_t at = 0; at < absence.wheels.size(); at += 3)
      drawn &= ~(1U << wheelOfCode(absence.wheels.substr(at, 2)));
  }
  return drawn;
}

}  // namespace trv5
