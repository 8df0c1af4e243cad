#pragma once

#include <QPageLayout>
#include <filesystem>

#include "core/grid.h"
#include "core/shell.h"

class QPagedPaintDevice;

namespace trv5 {

/// A4 in the orientation and with the margins of the setup.
QPageLayout printLayout(const PrintSetup& setup);

/// Paints a grid onto a device whose page layout is set already; the heading row stands on each page. Returns the count
/// of pages.
int printGrid(const Grid& grid, const PrintSetup& setup, QPagedPaintDevice& device);

/// Prints into a PDF file, which appears complete or not at all. Throws UserError.
int printToPdf(const Grid& grid, const PrintSetup& setup, const std::filesystem::path& file);

}  // namespace trv5
