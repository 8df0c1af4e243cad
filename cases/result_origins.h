#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "cases/last_search.h"
#include "cases/origin.h"

namespace trv5 {

/// What luck has to say on the table verified last, for its two labels; empty texts for nothing.
struct TableLuck {
  std::string expected = {}, balance = {}, toolTip = {};
  std::uint64_t archive = 0;  ///< the load of the archive that it speaks of

  bool operator==(const TableLuck&) const = default;
};

/// What the results on the workbench were made from: a plain value beside their grids, to be kept and put back with
/// them.
struct ResultOrigins {
  /// By the name of the grid that shows the result.
  std::map<std::string, std::vector<Origin>, std::less<>> made;
  /// Of the marks in the columns S1..S5, LU of `FgEv`.
  std::array<std::vector<Origin>, 6> marks;
  /// The marks that the totals `FgSSS` counted.
  std::vector<int> counted;
  /// The search that filled `FgF`: section, shape, operator, cases, wheels.
  std::string ranking;
  /// The same where it can be run again on other cases.
  std::optional<LastSearch> lastSearch;
  /// How often all saved methods have been run.
  int groupings = 0;

  /// Of the table whose statistics stand in `Fg_Stat`; it goes when these stand for something else.
  TableLuck luck;

  bool operator==(const ResultOrigins&) const = default;
};

}  // namespace trv5
