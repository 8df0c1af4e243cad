#pragma once

#include <string>
#include <vector>

#include "core/archive.h"
#include "core/draw_writer.h"

namespace trv5 {

class Database;

/// What is to be done with a draw of an update.
struct UpdateOrder {
  bool add = false;      ///< into the archive, unless it holds the date by now
  bool correct = false;  ///< in the archive, if it holds the date still
};

struct UpdateReport {
  int added = 0;
  std::vector<std::string> lines;  ///< what was done, in the order of the rows
};

/// Adds and corrects the draws, in the order of the rows, in one transaction: all of it, or nothing. Without an
/// order the archive isn't touched. Throws DatabaseError; UserError when the archive would hold more draws than an
/// archive can.
UpdateReport writeUpdate(Database& archive, const std::vector<DrawRow>& rows, const std::vector<UpdateOrder>& orders,
                         const Registration& registered, EmptyWheel empty);

}  // namespace trv5
