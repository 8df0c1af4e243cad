#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/database.h"
#include "core/grid.h"

namespace trv5 {

/// The answer of a select, as texts: NULL is "".
struct QueryRows {
  std::vector<std::string> columns;
  std::vector<std::vector<std::string>> rows;

  /// The column of that name, without regard to case. Throws UserError when there is none.
  std::size_t column(std::string_view name) const;
};

/// Runs the statement to its end, at most `most` rows of it. Throws DatabaseError; UserError beyond `most`.
QueryRows readRows(Statement statement, std::size_t most = 1'000'000);

/// Shows the answer: column 0 empty, then the columns under their names, one row a row. No row is current.
void bindGrid(Grid& grid, const QueryRows& answer);

}  // namespace trv5
