#pragma once

#include <filesystem>
#include <vector>

#include "maintenance/draw.h"

namespace trv5 {

/// The draws of a file of the published history, plain or packed, in ascending order of date. Throws UserError when it
/// can't be read, holds no draws, or a line of it is at fault: then it tells the first one and how many there are.
std::vector<Draw> readHistoryFile(const std::filesystem::path& file);

}  // namespace trv5
