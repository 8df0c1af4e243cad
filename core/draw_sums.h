#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/archive.h"

namespace trv5 {

class Database;

/// The sum of a draw's date and wheels (FNV-1a over the texts and their lengths), as it stands in `VerificaEstrazioni`.
std::int64_t sumOfDraw(const DrawRow& row);

/// The sum with which the draw of that date, "GG/MM/AAAA", was written last; nothing where none is kept. Throws
/// DatabaseError.
std::optional<std::int64_t> keptSumOf(const Database& archive, std::string_view date);

/// A draw that isn't as it was written: damage, or another program.
struct DrawDifference {
  enum class Kind {
    Missing,  ///< its row is gone
    Added,    ///< it was written by something else
    Changed   ///< its numbers are others, or its sum is damaged
  };
  Kind kind = Kind::Changed;
  DrawRow now;  ///< the draw as it stands; only the date of one that is missing

  bool operator==(const DrawDifference& other) const {
    return kind == other.kind && now.date == other.now.date && now.wheels == other.now.wheels;
  }
};

/// Compares the draws read from an archive with their sums; in the order of the dates. An archive without sums has no
/// differences. Throws DatabaseError.
std::vector<DrawDifference> differencesFromSums(const Database& archive, const std::vector<DrawRow>& rows);

/// Takes the archive as it stands: writes all sums anew, in one transaction. Gives false, and changes nothing, when the
/// archive has other differences by now than those that the user saw. Throws DatabaseError.
[[nodiscard]] bool acceptDraws(Database& archive, const std::vector<DrawDifference>& seen);

/// Wheel texts that aren't five different numbers of 1..90 in the form "05-71-13-90-02". Empty ones don't count.
struct IrregularWheels {
  int count = 0;
  std::string firstDate;  ///< of the first of them; "" when there is none
};
IrregularWheels irregularWheels(const std::vector<DrawRow>& rows);

}  // namespace trv5
