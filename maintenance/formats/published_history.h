#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "maintenance/draw.h"

namespace trv5 {

/// A line that can't be read, counted from 1, and why.
struct LineFault {
  int line;
  std::string reason;
  bool operator==(const LineFault&) const = default;
};

/// Lines at fault that are told one by one.
inline constexpr std::size_t kMostFaults = 100;

/// What a text of the published history holds.
struct PublishedHistory {
  std::vector<Draw> draws;        ///< in ascending order of date
  std::vector<LineFault> faults;  ///< the first kMostFaults, in the order of the lines
  std::size_t faultCount = 0;     ///< all of them; the draws are of use only when there is none
};

/// Reads the history of draws as it is published: a line a wheel, "AAAA/MM/GG", the wheel's code, five numbers in the
/// order of extraction, all separated by tabs, in any order. Lines end in LF or CR LF, the last one in either or
/// neither; blank lines and a byte order mark are passed over; a line may be repeated as it stands.
PublishedHistory readPublishedHistory(std::string_view text);

}  // namespace trv5
