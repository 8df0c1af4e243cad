#pragma once

#include <filesystem>

#include "core/grid.h"

namespace trv5 {

/// Writes what is visible of a grid as a workbook with the colours of its cells; texts that are plain numbers become
/// numbers. Throws UserError; the file appears complete or not at all.
void writeXlsx(const std::filesystem::path& file, const Grid& grid);

}  // namespace trv5
