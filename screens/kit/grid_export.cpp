#include "screens/kit/grid_export.h"

#include <fmt/format.h>
#include <xlsxwriter.h>

#include <QString>
#include <algorithm>
#include <cctype>
#include <chrono>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "core/errors.h"
#include "core/file_writer.h"
#include "core/grid_text.h"
#include "core/text.h"
#include "screens/kit/ink.h"
#include "screens/kit/theme.h"
#include "screens/kit/workbook_reader.h"

namespace trv5 {
namespace {

// "07" is a number shown with two digits in a draw, but text elsewhere keeps its zeros; 15 digits fit a double.
bool isPlainNumber(const std::string& text) {
  return !text.empty() && text.size() < 16 && (text.size() == 1 || text[0] != '0') &&
         std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

// "21/08/2026" as a day; only days that a sheet counts as everybody does, from 1901 on.
std::optional<std::chrono::sys_days> dayOf(const std::string& text) {
  const auto digits = [&](std::size_t from, std::size_t count) {
    for (std::size_t i = from; i < from + count; ++i)
      if (std::isdigit(static_cast<unsigned char>(text[i])) == 0) return -1;
    return std::atoi(text.substr(from, count).c_str());
  };
  if (text.size() != 10 || text[2] != '/' || text[5] != '/') return std::nullopt;
  const int day = digits(0, 2), month = digits(3, 2), year = digits(6, 4);
  if (day < 0 || month < 0 || year < 1901) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day))};
  if (!date.ok()) return std::nullopt;
  return std::chrono::sys_days(date);
}

// A sheet holds a day as a number, counted from the end of 1899.
int sheetDay(std::chrono::sys_days day) {
  constexpr std::chrono::sys_days kNought = std::chrono::year(1899) / 12 / 30;
  return static_cast<int>((day - kNought).count());
}

// Sheets have names of 31 characters at most, without some signs.
std::string sheetName(std::string name) {
  std::erase_if(name, [](char c) { return std::string_view("[]:*?/\\'").find(c) != std::string_view::npos; });
  return name.substr(0, byteOfCharacter(name, 31));
}

class Formats {
 public:
  explicit Formats(lxw_workbook* book) : m_book(book) {}

  lxw_format* of(Rgb back, Rgb fore, bool bold, bool date) {
    lxw_format*& format = m_made[{back, fore, bold, date}];
    if (format == nullptr) {
      format = workbook_add_format(m_book);
      format_set_align(format, LXW_ALIGN_CENTER);
      format_set_border(format, LXW_BORDER_HAIR);
      if (back != kWhite) format_set_bg_color(format, back);
      if (const Rgb ink = readableInk(fore, back); ink != kInk) format_set_font_color(format, ink);
      if (bold) format_set_bold(format);
      if (date) format_set_num_format(format, "dd/mm/yyyy");
    }
    return format;
  }

 private:
  lxw_workbook* m_book;
  std::map<std::tuple<Rgb, Rgb, bool, bool>, lxw_format*> m_made;
};

// The longest text of a cell, in units of UTF-16; a longer one ends in "…".
constexpr qsizetype kLongestCell = 32767;
constexpr double kWidestColumn = 100;  // in characters

std::string cellText(const std::string& text) {
  const std::string exported = exportableText(trimmed(text));
  if (static_cast<qsizetype>(exported.size()) <= kLongestCell) return exported;
  QString cut = qs(exported);
  if (cut.size() <= kLongestCell) return exported;
  cut.truncate(kLongestCell - 1);
  if (cut.back().isHighSurrogate()) cut.chop(1);
  return (cut + u'…').toStdString();
}

std::vector<std::vector<std::string>> exportedTexts(const Grid& grid) {
  const std::vector<int> columns = visibleColumns(grid);
  std::vector<std::vector<std::string>> texts;
  for (const int row : visibleRows(grid)) {
    std::vector<std::string>& line = texts.emplace_back();
    for (const int column : columns) line.push_back(cellText(grid.at(row, column).text));
  }
  return texts;
}

// What the sheet holds of these texts: days are numbers there.
std::vector<std::vector<std::string>> writtenTexts(const Grid& grid, std::vector<std::vector<std::string>> texts) {
  const std::vector<int> rows = visibleRows(grid);
  for (std::size_t row = 0; row < texts.size(); ++row) {
    if (rows[row] < grid.headingRows()) continue;
    for (std::string& text : texts[row])
      if (const auto day = dayOf(text)) text = std::to_string(sheetDay(*day));
  }
  return texts;
}

[[noreturn]] void fail(const std::filesystem::path& file, const std::string& reason, std::string details = {}) {
  throw UserError(fmt::format("Il file \"{}\" non può essere scritto: {}.", file.string(), reason), "Avviso",
                  std::move(details));
}

void fillSheet(lxw_workbook* book, lxw_worksheet* sheet, const Grid& grid,
               const std::vector<std::vector<std::string>>& texts) {
  Formats formats(book);
  const std::vector<int> rows = visibleRows(grid), columns = visibleColumns(grid);
  std::vector<std::size_t> longest(columns.size(), 2);
  for (std::size_t r = 0; r < rows.size(); ++r) {
    const bool heading = rows[r] < grid.headingRows();
    for (std::size_t c = 0; c < columns.size(); ++c) {
      const Cell& cell = grid.at(rows[r], columns[c]);
      const std::string& text = texts[r][c];
      const auto row = static_cast<lxw_row_t>(r);
      const auto column = static_cast<lxw_col_t>(c);
      const std::optional<std::chrono::sys_days> date = heading ? std::nullopt : dayOf(text);
      lxw_format* const format = formats.of(heading && cell.back == kWhite ? 0xE3E7EB : cell.back, cell.fore,
                                            cell.bold || heading, date.has_value());
      if (text.empty())
        worksheet_write_blank(sheet, row, column, format);
      else if (date)
        worksheet_write_number(sheet, row, column, sheetDay(*date), format);
      else if (isPlainNumber(text))
        worksheet_write_number(sheet, row, column, std::strtod(text.c_str(), nullptr), format);
      else
        worksheet_write_string(sheet, row, column, text.c_str(), format);
      longest[c] = std::max(longest[c], text.size());
    }
  }
  for (std::size_t c = 0; c < columns.size(); ++c) {
    const auto column = static_cast<lxw_col_t>(c);
    worksheet_set_column(sheet, column, column, std::min(static_cast<double>(longest[c]) + 2, kWidestColumn), nullptr);
  }
  if (grid.headingRows() > 0) worksheet_freeze_panes(sheet, 1, 0);
}

}  // namespace

void writeXlsx(const std::filesystem::path& file, const Grid& grid, const std::string& name) {
  PendingFile pending(file);
  lxw_workbook* const book = workbook_new(pending.path().c_str());
  if (book == nullptr) fail(file, "la memoria non basta");
  const std::vector<std::vector<std::string>> texts = exportedTexts(grid);
  const std::string called = sheetName(name);
  fillSheet(book, workbook_add_worksheet(book, called.empty() ? nullptr : called.c_str()), grid, texts);
  if (const lxw_error error = workbook_close(book); error != LXW_NO_ERROR)
    fail(file, "il disco o la cartella dei file temporanei non lo accettano", lxw_strerror(error));
  // The library doesn't look whether its temporary files, of which it makes the workbook, were written whole.
  std::string details;
  bool whole = false;
  try {
    whole = readWorkbook(pending.path()) == writtenTexts(grid, texts);
  } catch (const UserError& error) {
    details = error.details();
  }
  if (whole) return pending.commit(Existing::Replace);
  fail(file,
       fmt::format("il risultato non è intero, forse è piena la cartella dei file temporanei ({})",
                   std::filesystem::temp_directory_path().string()),
       details);
}

}  // namespace trv5
