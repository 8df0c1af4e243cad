#include "core/grid.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <numeric>
#include <stdexcept>

#include "core/text.h"

namespace trv5 {

Grid::Grid(int rows, int columns)
    : m_rows(rows), m_columns(columns), m_cells(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns)) {}

Grid::Grid(std::string_view heading) : m_rows(1), m_headingRows(1) {
  for (std::string& piece : split(heading, '|')) m_cells.push_back({.text = std::move(piece)});
  m_columns = static_cast<int>(m_cells.size());
}

Grid::Grid(const Grid& other) {
  *this = other;
}

Grid& Grid::operator=(const Grid& other) {
  if (this == &other) return *this;
  m_rows = other.m_rows;
  m_columns = other.m_columns;
  m_headingRows = other.m_headingRows;
  m_cells = other.m_cells;
  m_current = other.m_current;
  m_currentColumn = other.m_currentColumn;
  m_hiddenRows = other.m_hiddenRows;
  m_hiddenColumns = other.m_hiddenColumns;
  m_merged = other.m_merged;
  m_bars = other.m_bars;
  m_widths = other.m_widths;
  m_cellSize = other.m_cellSize;
  m_choices = other.m_choices;
  notify({});
  return *this;
}

bool Grid::operator==(const Grid& other) const {
  return m_rows == other.m_rows && m_columns == other.m_columns && m_headingRows == other.m_headingRows &&
         m_current == other.m_current && m_cells == other.m_cells && m_hiddenRows == other.m_hiddenRows &&
         m_hiddenColumns == other.m_hiddenColumns && m_merged == other.m_merged && m_bars == other.m_bars;
}

bool Grid::headingHasText() const {
  for (int column = 0; m_headingRows > 0 && column < m_columns; ++column)
    if (!text(0, column).empty()) return true;
  return false;
}

int Grid::number(int row, int column) const {
  return numberOf(text(row, column));
}

void Grid::setText(int row, int column, std::string_view text) {
  std::string& own = cell(row, column).text;
  if (own == text) return;
  own.assign(text);
  notify({GridChange::What::Cell, row, column});
}

void Grid::setNumber(int row, int column, int value) {
  char digits[12];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), value);
  setText(row, column, std::string_view(digits, static_cast<std::size_t>(end.ptr - digits)));
}

void Grid::setBack(int row, int column, Rgb back) {
  Rgb& own = cell(row, column).back;
  if (own == back) return;
  own = back;
  notify({GridChange::What::Cell, row, column});
}

void Grid::setFore(int row, int column, Rgb fore) {
  Rgb& own = cell(row, column).fore;
  if (own == fore) return;
  own = fore;
  notify({GridChange::What::Cell, row, column});
}

void Grid::setBold(int row, int column, bool bold) {
  bool& own = cell(row, column).bold;
  if (own == bold) return;
  own = bold;
  notify({GridChange::What::Cell, row, column});
}

void Grid::setCell(int row, int column, const Cell& value) {
  Cell& own = cell(row, column);
  if (own == value) return;
  own = value;
  notify({GridChange::What::Cell, row, column});
}

void Grid::clearTexts() {
  for (Cell& c : m_cells) c.text.clear();
  notify({});
}

void Grid::setRows(int rows) {
  rows = std::max(rows, 0);
  if (rows == m_rows) return;
  if (rows < m_rows) {
    m_current = -1;
    m_hiddenRows.erase(m_hiddenRows.lower_bound(rows), m_hiddenRows.end());
    m_bars.erase(m_bars.lower_bound({rows, 0}), m_bars.end());
  }
  m_rows = rows;
  m_cells.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(m_columns));
  notify({});
}

int Grid::appendRow() {
  setRows(m_rows + 1);
  return m_rows - 1;
}

void Grid::removeRow(int row) {
  keepRows([row](int r) { return r != row; });
}

void Grid::keepRows(const std::function<bool(int row)>& keep) {
  std::vector<int> order;
  for (int row = m_headingRows; row < m_rows; ++row)
    if (keep(row)) order.push_back(row);
  const int left = m_headingRows + static_cast<int>(order.size());
  if (left == m_rows) return;
  reorder(order);
  m_current = -1;
  m_rows = left;
  m_cells.resize(static_cast<std::size_t>(left) * static_cast<std::size_t>(m_columns));
  notify({});
}

void Grid::setColumns(int columns) {
  if (columns == m_columns) return;
  std::vector<Cell> cells(static_cast<std::size_t>(m_rows) * static_cast<std::size_t>(columns));
  for (int r = 0; r < m_rows; ++r)
    for (int c = 0; c < std::min(columns, m_columns); ++c)
      cells[static_cast<std::size_t>(r) * static_cast<std::size_t>(columns) + static_cast<std::size_t>(c)] =
          std::move(cell(r, c));
  m_cells = std::move(cells);
  m_columns = columns;
  notify({});
}

void Grid::sortByNumber(int column, bool descending) {
  std::vector<int> keys;
  for (int row = m_headingRows; row < m_rows; ++row) {
    const int n = number(row, column);
    keys.push_back(descending ? -n : n);
  }
  std::vector<int> order(keys.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(),
                   [&](int a, int b) { return keys[static_cast<std::size_t>(a)] < keys[static_cast<std::size_t>(b)]; });
  for (int& row : order) row += m_headingRows;
  reorder(order);
}

void Grid::sortByNumbers(const std::vector<int>& columns) {
  std::vector<std::vector<int>> keys;
  for (int row = m_headingRows; row < m_rows; ++row) {
    std::vector<int>& key = keys.emplace_back();
    for (int column : columns) key.push_back(number(row, column));
  }
  std::vector<int> order(keys.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(),
                   [&](int a, int b) { return keys[static_cast<std::size_t>(a)] < keys[static_cast<std::size_t>(b)]; });
  for (int& row : order) row += m_headingRows;
  reorder(order);
}

void Grid::reorder(const std::vector<int>& order) {
  std::vector<Cell> cells;
  cells.reserve(m_cells.size());
  const auto move = [&](int row) {
    for (int c = 0; c < m_columns; ++c) cells.push_back(std::move(cell(row, c)));
  };
  std::set<int> hidden;
  std::map<std::pair<int, int>, Bar> bars;
  for (int row = 0; row < m_headingRows; ++row) move(row);
  for (std::size_t i = 0; i < order.size(); ++i) {
    move(order[i]);
    const int row = m_headingRows + static_cast<int>(i);
    if (m_hiddenRows.contains(order[i])) hidden.insert(row);
    for (auto it = m_bars.lower_bound({order[i], 0}); it != m_bars.end() && it->first.first == order[i]; ++it)
      bars[{row, it->first.second}] = it->second;
  }
  m_cells = std::move(cells);
  m_hiddenRows = std::move(hidden);
  m_bars = std::move(bars);
  notify({});
}

void Grid::setCurrent(int row, int column) {
  if (row < 0 || row >= m_rows) row = -1;
  if (m_current == row && m_currentColumn == column) return;
  m_current = row;
  m_currentColumn = column;
  notify({GridChange::What::Current, row, column});
}

void Grid::setRowHidden(int row, bool hidden) {
  if (rowHidden(row) == hidden) return;
  if (hidden)
    m_hiddenRows.insert(row);
  else
    m_hiddenRows.erase(row);
  notify({});
}

void Grid::setColumnHidden(int column, bool hidden) {
  if (columnHidden(column) == hidden) return;
  if (hidden)
    m_hiddenColumns.insert(column);
  else
    m_hiddenColumns.erase(column);
  notify({});
}

void Grid::setMerged(std::set<int> columns) {
  if (m_merged == columns) return;
  m_merged = std::move(columns);
  notify({});
}

void Grid::setBar(int row, int column, Bar bar) {
  m_bars[{row, column}] = bar;
  notify({GridChange::What::Cell, row, column});
}

void Grid::removeBar(int row, int column) {
  if (m_bars.erase({row, column}) > 0) notify({GridChange::What::Cell, row, column});
}

void Grid::clearBars() {
  if (m_bars.empty()) return;
  m_bars.clear();
  notify({});
}

int Grid::width(int column) const {
  const auto it = m_widths.find(column);
  return it == m_widths.end() ? 0 : it->second;
}

void Grid::setWidth(int column, int width) {
  m_widths[column] = width;
  notify({});
}

void Grid::fitColumns() {
  ++m_fitsAsked;
  notify({});
}

void Grid::showRow(int row) {
  ++m_showsAsked;
  m_shownRow = row;
  notify({});
}

void Grid::scrollTo(int row) {
  m_topRow = row;
  ++m_scrollsAsked;
  notify({});
}

void Grid::setCellSize(int size) {
  m_cellSize = size;
  notify({});
}

const std::vector<std::string>* Grid::choices(int column) const {
  const auto it = m_choices.find(column);
  return it == m_choices.end() ? nullptr : &it->second;
}

void Grid::setChoices(int column, std::vector<std::string> choices) {
  m_choices[column] = std::move(choices);
}

void Grid::setListener(std::function<void(const GridChange&)> listener) {
  if (m_listener && listener) throw std::logic_error("a second listener of a grid");
  m_listener = std::move(listener);
}

void Grid::notify(GridChange change) {
  ++m_revision;
  if (change.what != GridChange::What::Current) ++m_cellsRevision;
  if (m_batch > 0) {
    m_pending = true;
  } else if (m_listener) {
    m_listener(change);
  }
}

Grid::Batch::~Batch() {
  if (--m_grid.m_batch > 0 || !m_grid.m_pending) return;
  m_grid.m_pending = false;
  if (m_grid.m_listener) m_grid.m_listener({});
}

}  // namespace trv5
