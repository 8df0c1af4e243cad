#include "configs/query_rows.h"

#include <fmt/format.h>

#include "core/errors.h"
#include "core/text.h"

namespace trv5 {

std::size_t QueryRows::column(std::string_view name) const {
  for (std::size_t i = 0; i < columns.size(); ++i)
    if (equalIgnoringCase(columns[i], name)) return i;
  throw UserError(fmt::format("Manca il campo {}.", name));
}

QueryRows readRows(Statement statement, std::size_t most) {
  QueryRows answer;
  for (int column = 0; column < statement.columns(); ++column) answer.columns.push_back(statement.columnName(column));
  while (statement.step()) {
    if (answer.rows.size() == most) throw UserError("Le righe sono troppe.");
    std::vector<std::string>& row = answer.rows.emplace_back();
    for (int column = 0; column < statement.columns(); ++column) row.push_back(statement.text(column));
  }
  return answer;
}

void bindGrid(Grid& grid, const QueryRows& answer) {
  const Grid::Batch batch(grid);
  grid.setRows(1);
  grid.setColumns(static_cast<int>(answer.columns.size()) + 1);
  const auto write = [&grid](int row, const std::vector<std::string>& texts) {
    grid.setText(row, 0, "");
    for (std::size_t i = 0; i < texts.size(); ++i) grid.setText(row, static_cast<int>(i) + 1, texts[i]);
  };
  write(0, answer.columns);
  for (std::size_t i = 0; i < answer.rows.size(); ++i) write(grid.appendRow(), answer.rows[i]);
  grid.setCurrent(-1);
}

}  // namespace trv5
