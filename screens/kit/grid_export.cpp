#include "screens/kit/grid_export.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>
#include <string>
#include <tuple>

#include "core/errors.h"
#include "core/file_writer.h"
#include "core/grid_text.h"
#include "core/text.h"
#include "screens/kit/ink.h"

namespace trv5 {
namespace {

// "07" is a number shown with two digits in a draw, but text elsewhere keeps its zeros; 15 digits fit a double.
bool isPlainNumber(const std::string& text) {
  return !text.empty() && text.size() < 16 && (text.size() == 1 || text[0] != '0') &&
         std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

class Formats {
 public:
  explicit Formats(lxw_workbook* book) : m_book(book) {}

  lxw_format* of(Rgb back, Rgb fore, bool bold) {
    lxw_format*& format = m_made[{back, fore, bold}];
    if (format == nullptr) {
      format = workbook_add_format(m_book);
      format_set_align(format, LXW_ALIGN_CENTER);
      format_set_border(format, LXW_BORDER_HAIR);
      if (back != kWhite) format_set_bg_color(format, back);
      if (const Rgb ink = readableInk(fore, back); ink != kInk) format_set_font_color(format, ink);
      if (bold) format_set_bold(format);
    }
    return format;
  }

 private:
  lxw_workbook* m_book;
  std::map<std::tuple<Rgb, Rgb, bool>, lxw_format*> m_made;
};

}  // namespace

void writeXlsx(const std::filesystem::path& file, const Grid& grid) {
  PendingFile pending(file);
  lxw_workbook* const book = workbook_new(pending.path().c_str());
  if (book == nullptr) throw UserError("Impossibile scrivere il file " + file.string());
  lxw_worksheet* const sheet = workbook_add_worksheet(book, nullptr);
  Formats formats(book);
  const std::vector<int> rows = visibleRows(grid), columns = visibleColumns(grid);
  std::vector<std::size_t> longest(columns.size(), 2);
  for (std::size_t r = 0; r < rows.size(); ++r) {
    const bool heading = rows[r] < grid.headingRows();
    for (std::size_t c = 0; c < columns.size(); ++c) {
      const Cell& cell = grid.at(rows[r], columns[c]);
      const std::string text(trimmed(cell.text));
      const auto row = static_cast<lxw_row_t>(r);
      const auto column = static_cast<lxw_col_t>(c);
      lxw_format* const format =
          formats.of(heading && cell.back == kWhite ? 0xE3E7EB : cell.back, cell.fore, cell.bold || heading);
      if (text.empty())
        worksheet_write_blank(sheet, row, column, format);
      else if (isPlainNumber(text))
        worksheet_write_number(sheet, row, column, std::strtod(text.c_str(), nullptr), format);
      else
        worksheet_write_string(sheet, row, column, text.c_str(), format);
      longest[c] = std::max(longest[c], text.size());
    }
  }
  for (std::size_t c = 0; c < columns.size(); ++c) {
    const auto column = static_cast<lxw_col_t>(c);
    worksheet_set_column(sheet, column, column, static_cast<double>(longest[c]) + 2, nullptr);
  }
  if (grid.headingRows() > 0) worksheet_freeze_panes(sheet, 1, 0);
  if (const lxw_error error = workbook_close(book); error != LXW_NO_ERROR)
    throw UserError("Impossibile scrivere il file " + file.string() + ": " + lxw_strerror(error));
  pending.commit(Existing::Replace);
}

}  // namespace trv5
