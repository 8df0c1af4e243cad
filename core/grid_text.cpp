#include "core/grid_text.h"

#include <fmt/format.h>

#include <algorithm>
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

// Bytes of the well-formed UTF-8 character at the start of `text`; 0 when there is none.
std::size_t characterLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if ((byte(i) & 0xC0) != 0x80) return 0;
  const unsigned second = byte(1);
  const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool surrogate = lead == 0xED && second >= 0xA0, beyond = lead == 0xF4 && second >= 0x90;
  return overlong || surrogate || beyond ? 0 : length;
}

bool isNoCharacter(std::string_view text) {
  return text.substr(0, 3) == "\xEF\xBF\xBE" || text.substr(0, 3) == "\xEF\xBF\xBF";
}

bool isControl(char c) {
  return (c >= '\0' && c < ' ' && c != '\t' && c != '\n') || c == '\x7F';
}

}  // namespace

std::string exportableText(std::string_view text) {
  constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    std::size_t length = characterLength(text);
    const char c = text.front();
    if (c == '\r') {
      out += '\n';
      if (text.size() > 1 && text[1] == '\n') length = 2;
    } else if (length == 0 || isControl(c) || isNoCharacter(text)) {
      out += kReplacement;
    } else {
      out += text.substr(0, length);
    }
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return out;
}

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

std::string tabbedHtml(std::string_view text) {
  std::string out = "<table>";
  while (!text.empty()) {
    const std::size_t end = std::min(text.find("\r\n"), text.size());
    std::string_view row = text.substr(0, end);
    text.remove_prefix(std::min(end + 2, text.size()));
    out += "<tr>";
    for (std::size_t from = 0; from <= row.size();) {
      const std::size_t tab = std::min(row.find('\t', from), row.size());
      out += "<td>" + escaped(std::string(row.substr(from, tab - from))) + "</td>";
      from = tab + 1;
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
      const std::string text = exportableText(grid.text(row, column));
      out += quoted(row < grid.headingRows() ? trimmed(text) : std::string_view(text));
    }
    out += "\r\n";
  }
  return out;
}

}  // namespace trv5
