#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/grid.h"

namespace trv5 {

/// "Copia tabella": the texts of all cells, heading and hidden columns included, columns separated by tabs, rows by
/// CR LF.
std::string tableText(const Grid& grid);

/// The cells chosen by the user, (row, column), as a block of text: their rows and columns in the grid's order, without
/// those that are hidden; places in between that weren't chosen stay blank. Tabs and CR LF as in tableText.
std::string cellsText(const Grid& grid, const std::vector<std::pair<int, int>>& cells);

/// The same block as an HTML table with the colours of the cells.
std::string cellsHtml(const Grid& grid, const std::vector<std::pair<int, int>>& cells);

/// A text of rows ended by CR LF and columns separated by tabs as an HTML table.
std::string tabbedHtml(std::string_view text);

/// What is visible of the table as a CSV file: UTF-8 with its mark, fields separated by semicolons as Italian
/// spreadsheets expect, a field in double quotes where it needs them, rows ended by CR LF.
std::string csvText(const Grid& grid);

/// `text` as any file of text can hold it: what is no UTF-8, a control character other than tab and line feed, and the
/// code points that are none become U+FFFD each; ends of lines become LF.
std::string exportableText(std::string_view text);

/// Rows and columns that aren't hidden, in order.
std::vector<int> visibleRows(const Grid& grid);
std::vector<int> visibleColumns(const Grid& grid);

}  // namespace trv5
