#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/cell.h"
#include "core/grid_state.h"

namespace trv5 {

/// What a grid tells its listener.
struct GridChange {
  enum class What { Cell, All, Current } what = What::All;
  int row = 0, column = 0;  ///< of the cell, where one cell changed
};

/// A table of text cells with colours: the working store of the workbench. Operations communicate through grids, and
/// through the colours of their cells, so a grid is a value that tests copy and compare. Rows and columns count from 0;
/// with a heading (headingRows() == 1) row 0 holds it and the data begins at row 1.
class Grid {
 public:
  Grid() = default;
  /// `rows` x `columns` blank cells, no heading.
  Grid(int rows, int columns);
  /// A heading row alone: one column a piece of `heading` between '|'.
  explicit Grid(std::string_view heading);

  // The listener belongs to one grid: copies have none, and assignment keeps the target's and tells it.
  Grid(const Grid& other);
  Grid& operator=(const Grid& other);
  ~Grid() = default;

  int rows() const { return m_rows; }
  int columns() const { return m_columns; }
  int headingRows() const { return m_headingRows; }
  /// True when the heading has a text: one without is there for operations that count rows.
  bool headingHasText() const;
  /// Rows below the heading.
  int dataRows() const { return m_rows - m_headingRows; }
  bool hasData() const { return m_rows > m_headingRows; }

  const Cell& at(int row, int column) const { return m_cells[index(row, column)]; }
  const std::string& text(int row, int column) const { return at(row, column).text; }
  /// The cell read as a number: leading digits, 0 when there are none.
  int number(int row, int column) const;
  Rgb back(int row, int column) const { return at(row, column).back; }

  void setText(int row, int column, std::string_view text);
  void setNumber(int row, int column, int value);
  void setBack(int row, int column, Rgb back);
  void setFore(int row, int column, Rgb fore);
  void setBold(int row, int column, bool bold = true);
  void setCell(int row, int column, const Cell& cell);
  void clearTexts();  ///< all texts, colours stay

  /// Sets the row count: grows by blank rows, or cuts from the end. A cut clears the current row.
  void setRows(int rows);
  void cutToHeading() { setRows(m_headingRows); }
  /// Appends a blank row; returns its index.
  int appendRow();
  /// Removes a data row and clears the current row.
  void removeRow(int row);
  /// Keeps the data rows for which `keep` holds, in their order; clears the current row when one goes.
  void keepRows(const std::function<bool(int row)>& keep);
  /// Sets the column count; new cells are blank.
  void setColumns(int columns);

  /// Stable sort of the data rows by the cells of one column read as numbers. The current row keeps its index.
  void sortByNumber(int column, bool descending);
  /// Stable sort of the data rows by the numbers of several columns, ascending, the first column first.
  void sortByNumbers(const std::vector<int>& columns);

  /// The current row, -1 for none.
  int current() const { return m_current; }
  int currentColumn() const { return m_currentColumn; }
  void setCurrent(int row, int column = 0);

  bool rowHidden(int row) const { return m_hiddenRows.contains(row); }
  void setRowHidden(int row, bool hidden);
  const std::set<int>& hiddenRows() const { return m_hiddenRows; }
  bool columnHidden(int column) const { return m_hiddenColumns.contains(column); }
  void setColumnHidden(int column, bool hidden = true);
  const std::set<int>& hiddenColumns() const { return m_hiddenColumns; }
  /// Columns whose equal neighbouring cells are shown as one.
  const std::set<int>& mergedColumns() const { return m_merged; }
  void setMerged(std::set<int> columns);
  const std::map<std::pair<int, int>, Bar>& bars() const { return m_bars; }
  void setBar(int row, int column, Bar bar);
  void removeBar(int row, int column);
  void clearBars();
  /// Width of a column as told in the grid's own unit, 0 where none is told.
  int width(int column) const;
  void setWidth(int column, int width);
  /// Asks the view to fit the columns to what they hold, once.
  void fitColumns();
  /// How often that was asked.
  int fitsAsked() const { return m_fitsAsked; }
  /// Asks the view to bring a row into sight, once; the current row stays.
  void showRow(int row);
  /// How often that was asked, and for which row the last time.
  std::pair<int, int> showsAsked() const { return {m_showsAsked, m_shownRow}; }
  /// Asks the view to bring a row to its top, as far as the rows below it fill the view, once.
  void scrollTo(int row);
  /// Which row was asked for last, -1 for none, and how often one was.
  int topRow() const { return m_topRow; }
  int scrollsAsked() const { return m_scrollsAsked; }
  /// Height of the rows and width of the columns as told in the grid's own unit, 0 where none is told.
  int cellSize() const { return m_cellSize; }
  void setCellSize(int size);
  /// Choices offered when a cell of the column is edited; columns without are not editable.
  const std::vector<std::string>* choices(int column) const;
  void setChoices(int column, std::vector<std::string> choices);

  /// Equal when all that a user could see or an operation read is equal.
  bool operator==(const Grid& other) const;

  /// Counts the changes of what it holds and shows; the current row alone doesn't count.
  std::uint64_t cellsRevision() const { return m_cellsRevision; }
  /// The same, with the current row.
  std::uint64_t revision() const { return m_revision; }
  /// Shares its cells with the state taken before while they are the same.
  GridState state() const;
  /// Puts a state back, with one notice; none where nothing differs.
  void restore(const GridState& state);

  /// Called after each change, or once after a batch; empty when who listens goes. Throws std::logic_error when the
  /// grid has a listener.
  void setListener(std::function<void(const GridChange&)> listener);

  /// Groups all changes made during its life into one notice.
  class Batch {
   public:
    explicit Batch(Grid& grid) : m_grid(grid) { ++m_grid.m_batch; }
    ~Batch();
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

   private:
    Grid& m_grid;
  };

 private:
  std::size_t index(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) + static_cast<std::size_t>(column);
  }
  Cell& cell(int row, int column) { return m_cells[index(row, column)]; }
  void reorder(const std::vector<int>& order);  // order[i]: the old row that becomes data row i
  void notify(GridChange change);

  int m_rows = 0, m_columns = 0, m_headingRows = 0;
  std::vector<Cell> m_cells;  // row by row
  int m_current = -1, m_currentColumn = 0;
  std::set<int> m_hiddenRows, m_hiddenColumns, m_merged;
  std::map<std::pair<int, int>, Bar> m_bars;
  std::map<int, int> m_widths;
  int m_cellSize = 0;
  // Of the view, no part of the value.
  int m_fitsAsked = 0, m_showsAsked = 0, m_shownRow = 0, m_topRow = -1, m_scrollsAsked = 0;
  std::map<int, std::vector<std::string>> m_choices;

  std::function<void(const GridChange&)> m_listener;
  int m_batch = 0;
  bool m_pending = false;

  std::uint64_t m_revision = 0, m_cellsRevision = 0;
  // The cells as the last state holds them, and when that was.
  mutable std::shared_ptr<const PackedCells> m_packed;
  mutable std::uint64_t m_packedAt = 0;
};

}  // namespace trv5
