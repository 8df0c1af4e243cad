#pragma once

#include <vector>

namespace trv5 {

/// Sizes of a table and of the paper that it goes on, in one unit of the caller's choice.
struct PageRequest {
  std::vector<double> columnWidths;  ///< of the columns that are printed, in order
  int rows = 0;                      ///< data rows, all of the same height
  double rowHeight = 0;
  double headingHeight = 0;  ///< repeated at the top of each page; 0 for a table without heading
  double titleHeight = 0;    ///< above the heading on each page; 0 for none
  double pageWidth = 0, pageHeight = 0;
  double smallestScale = 0.6;  ///< a table that is wider still goes on over further pages instead
};

/// Part of the table on one page: data rows and columns from `first` up to, not including, `end`.
struct Page {
  int firstRow = 0, endRow = 0;
  int firstColumn = 0, endColumn = 0;
  bool operator==(const Page&) const = default;
};

struct Pages {
  double scale = 1;  ///< by which everything is drawn
  std::vector<Page> pages;
};

/// Spreads a table over pages: no row and no column is cut in two, none is lost, the heading stands on each page. A
/// table that is too wide is drawn smaller, down to `smallestScale`; beyond that its columns continue on further pages,
/// which follow those of the same rows. A table without rows has one page for each stretch of columns.
Pages paginate(const PageRequest& request);

}  // namespace trv5
