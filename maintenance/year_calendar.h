#pragma once

#include <array>
#include <vector>

#include "core/archive.h"

namespace trv5 {

/// The draws of a year by month and day.
struct YearCalendar {
  struct Month {
    int month = 0;                   ///< 1..12
    std::array<int, 32> weekdays{};  ///< by day 1..31: 1 Sunday to 7 Saturday, 0 on days without a draw
    bool operator==(const Month&) const = default;
  };
  std::vector<Month> months;  ///< those with a draw, ascending
  std::vector<int> days;      ///< the days of the month on which some month has a draw, ascending
};

/// The calendar of a year from the draws in memory. Dates that aren't of the form "GG/MM/AAAA" have no place in it.
YearCalendar yearCalendar(const Archive& archive, int year);

}  // namespace trv5
