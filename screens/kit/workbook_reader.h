#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace trv5 {

/// The texts of the first sheet of a workbook, row by row as they stand in it; numbers as they are written there. Reads
/// every part of the file, check sums included; throws UserError naming the file when one is missing, cut off or
/// damaged.
std::vector<std::vector<std::string>> readWorkbook(const std::filesystem::path& file);

}  // namespace trv5
