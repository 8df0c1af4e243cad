#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "method/detection.h"
#include "method/formula_row.h"
#include "method/table.h"

namespace trv5 {

/// What a summary is asked for: the sorti that it joins, and whether each case ends at its first colpo.
struct SummaryChoice {
  bool ambate = false, ambi = false, terni = false, firstOnly = false;

  bool operator==(const SummaryChoice&) const = default;
};

/// The draws 1..`last` as they were when something was made from them.
struct DrawsRead {
  int last = 0;
  std::uint64_t digest = 0;  ///< `Archive::digest`

  bool operator==(const DrawsRead&) const = default;
};

/// What a result was made from. A part that isn't set is one that the result doesn't read: no change of it matters.
struct Origin {
  std::optional<Situation> situation = {};     ///< of the cases, with what its kind doesn't read left out
  std::optional<DrawsRead> draws = {};         ///< not told of what is chosen now
  std::optional<std::vector<int>> cases = {};  ///< draw index of each
  std::optional<WheelSet> wheels = {};         ///< the wheels of play
  std::optional<int> colpi = {};
  std::optional<int> reference = {};   ///< draw index of the last draw that counts
  std::optional<int> archiveEnd = {};  ///< the same of what goes on to the end of the archive
  std::optional<int> sorte = {};       ///< 1..5: of a lunghetta
  Table table = Table::Ambate;         ///< whose formulas need no name in a reason
  ByTable<std::optional<std::vector<FormulaRow>>> formulas = {};
  std::optional<FormulaRow> tried = {};  ///< a row verified by itself
  std::optional<SummaryChoice> summary = {};
  std::optional<std::vector<std::string>> configurations = {};  ///< the saved methods: key and name of each
  std::optional<int> grouping = {};                             ///< which run of all saved methods, from 1

  bool operator==(const Origin&) const = default;
};

/// Why what was made from `then` no longer fits `now`, for the user: the first difference in what it reads, from the
/// situation on. Nothing where it fits.
std::optional<std::string> reasonOf(const Origin& then, const Origin& now);

/// A formula in a few words: "BA 1 + 29", "CA 1 - CA 2 (VERT)", "numero 29".
std::string shortFormula(const FormulaRow& row);

}  // namespace trv5
