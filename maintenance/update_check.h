#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/archive.h"

namespace trv5 {

class Database;

/// What an empty cell of an update says.
enum class BlankCell {
  Text,     ///< the file holds an empty text there: it equals an empty text of the archive, and no NULL
  NotDrawn  ///< the wheel wasn't drawn: it equals NULL and the empty text
};

/// What the check found of one draw of an update.
struct UpdateMark {
  bool missing = false;  ///< the archive has no draw of that date
  bool wrong = false;    ///< it has one, and a wheel differs
  std::array<bool, kWheels> agrees{};
  bool operator==(const UpdateMark&) const = default;
};

struct UpdateCheck {
  std::vector<UpdateMark> marks;   ///< one a row
  std::vector<std::string> lines;  ///< for the list of findings, those of the last row first
  /// The row whose date is none: it and those before it weren't checked. Nothing when the check came to its end.
  std::optional<std::size_t> stoppedAt;
};

/// Compares the rows with the archive, from the last to the first, text by text. A missing draw is no error; without
/// errors the last line says so even when draws are missing. No rows give no lines. `onRow` gets the number of rows
/// done and of all rows. Throws DatabaseError.
UpdateCheck checkUpdate(const Database& archive, const std::vector<DrawRow>& rows, BlankCell blank,
                        const std::function<void(int row, int rows)>& onRow = {});

}  // namespace trv5
