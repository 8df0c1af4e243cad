#pragma once

#include <filesystem>
#include <string>

#include "core/grid.h"

namespace trv5 {

/// Writes what is visible of a grid as a workbook with the colours of its cells; texts that are plain numbers become
/// numbers, dates GG/MM/AAAA become dates. `name`: of the sheet, as far as such names go. Throws UserError; the file
/// appears complete or not at all.
void writeXlsx(const std::filesystem::path& file, const Grid& grid, const std::string& name = {});

}  // namespace trv5
