#pragma once

#include <string>

#include "core/database_files.h"

namespace trv5 {

/// What the main database is shipped with: the parameters, with `archive` as the path of the archive ("" for none yet),
/// and the orthogonal systems. Parameters that the program only overwrites, never adds, have their row too.
MainContents shippedContents(const std::string& archive);

}  // namespace trv5
