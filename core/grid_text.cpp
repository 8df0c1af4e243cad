#include "core/grid_text.h"

#include <fmt/format.h>

#include <iterator>
#include <set>

#include "core/text.h"

namespace trv5 {
namespace {

struct Block {
  std::set<int> rows, columns;
  std::set<std::pair<int, int>> cells;
};

Block blockOf(const Grid& grid, const std::vector<std::pair<int, int>>& cells) {
  Block block;
  for (const auto& [row, column] : cells) {
    if (grid.rowHidden(row) || grid.columnHidden(column)) continue;
    block.rows.insert(row);
    block.columns.insert(column);
    block.cells.insert({row, column});
  }
  return block;
}

std::string escaped(const std::string& text) {
  std::string out;
  for (const char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      default:
        out += c;
    }
  }
  return out;
}

std::string quoted(std::string_view text) {
  if (text.find_first_of(";\"\r\n") == std::string_view::npos) return std::string(text);
  std::string out = "\"";
  for (const char c : text) {
    if (c == '"') out += '"';
    out += c;
  }
  return out + '"';
}

}  // namespace

std::vector<int> visibleRows(const Grid& grid) {
  std::vector<int> rows;
  for (int row = 0; row < grid.rows(); ++row)
    if (!grid.rowHidden(row)) rows.push_back(row);
  return rows;
}

std::vector<int> visibleColumns(const Grid& grid) {
  std::vector<int> columns;
  for (int column = 0; column < grid.columns(); ++column)
    if (!grid.columnHidden(column)) columns.push_back(column);
  return columns;
}

std::string tableText(const Grid& grid) {
  std::string out;
  for (int row = 0; row < grid.rows(); ++row) {
    if (row > 0) out += "\r\n";
    for (int column = 0; column < grid.columns(); ++column) {
      if (column > 0) out += '\t';
      out += grid.text(row, column);
    }
  }
  return out;
}

std::string cellsText(const Grid& grid, const std::vector<std::pair<int, int>>& cells) {
  const Block block = blockOf(grid, cells);
  std::string out;
  for (const int row : block.rows) {
    if (row != *block.rows.begin()) out += "\r\n";
    for (const int column : block.columns) {
      if (column != *block.columns.begin()) out += '\t';
      if (block.cells.contains({row, column})) out += grid.text(row, column);
    }
  }
  return out;
}

std::string cellsHtml(const Grid& grid, const std::vector<std::pair<int, int>>& cells) {
  const Block block = blockOf(grid, cells);
  std::string out = "<table>";
  for (const int row : block.rows) {
    out += "<tr>";
    for (const int column : block.columns) {
      if (!block.cells.contains({row, column})) {
        out += "<td></td>";
        continue;
      }
      const Cell& cell = grid.at(row, column);
      std::string style = "text-align:center";
      if (cell.back != kWhite) fmt::format_to(std::back_inserter(style), ";background-color:#{:06X}", cell.back);
      if (cell.fore != kBlack) fmt::format_to(std::back_inserter(style), ";color:#{:06X}", cell.fore);
      if (cell.bold) style += ";font-weight:bold";
      fmt::format_to(std::back_inserter(out), "<td style=\"{}\">{}</td>", style, escaped(cell.text));
    }
    out += "</tr>";
  }
  return out + "</table>";
}

std::string csvText(const Grid& grid) {
  const std::vector<int> columns = visibleColumns(grid);
  std::string out = "\xEF\xBB\xBF";
  for (const int row : visibleRows(grid)) {
    for (const int column : columns) {
      if (column != columns.front()) out += ';';
      // Blanks that pad a heading are looks.
      out +=
          quoted(row < grid.headingRows() ? trimmed(grid.text(row, column)) : std::string_view(grid.text(row, column)));
    }
    out += "\r\n";
  }
  return out;
}

}  // namespace trv5
