#include "core/paginator.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace trv5 {
namespace {

// Rounding of the sum of many widths must not open another page.
constexpr double kSlack = 1e-6;

std::vector<std::pair<int, int>> columnStretches(const std::vector<double>& widths, double room) {
  std::vector<std::pair<int, int>> stretches;
  const int columns = static_cast<int>(widths.size());
  int first = 0;
  double used = 0;
  for (int column = 0; column < columns; ++column) {
    const double width = widths[static_cast<std::size_t>(column)];
    if (column > first && used + width > room + kSlack) {
      stretches.emplace_back(first, column);
      first = column;
      used = 0;
    }
    used += width;
  }
  if (columns > first) stretches.emplace_back(first, columns);
  return stretches;
}

}  // namespace

Pages paginate(const PageRequest& request) {
  Pages result;
  const double total = std::accumulate(request.columnWidths.begin(), request.columnWidths.end(), 0.0);
  if (total > request.pageWidth) result.scale = std::max(request.smallestScale, request.pageWidth / total);

  const double width = request.pageWidth / result.scale, height = request.pageHeight / result.scale;
  const double room = height - request.titleHeight - request.headingHeight;
  // A page too low for anything still takes one row, so that none is lost.
  const int perPage = std::max(1, static_cast<int>(std::floor(room / request.rowHeight + kSlack)));
  const auto stretches = columnStretches(request.columnWidths, width);
  int row = 0;
  do {
    const int end = std::min(row + perPage, request.rows);
    for (const auto& [first, last] : stretches) result.pages.push_back({row, end, first, last});
    row = end;
  } while (row < request.rows);
  return result;
}

}  // namespace trv5
