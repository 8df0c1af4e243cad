#pragma once

#include <QHash>
#include <QTableView>
#include <functional>
#include <map>
#include <set>
#include <vector>

#include "core/controls.h"
#include "screens/kit/grid_model.h"

namespace trv5 {

/// How a grid looks: what the layout of a screen tells about it, beside what the grid itself carries.
struct GridLook {
  /// What the user calls the grid: read by screen readers, offered as the name of exported files, printed.
  QString name = {};
  /// The widest text of each column ("88/88/8888"); for columns beyond the list, or an empty entry, the heading with
  /// its padding blanks.
  std::vector<QString> samples = {};
  int freePlaces = 0;                ///< free places drawn as faint lines below the last row
  std::vector<int> folded = {};      ///< columns out of sight as long as they are empty in all rows
  std::vector<int> heavyAfter = {};  ///< columns followed by a heavier line
  std::vector<int> alike = {};       ///< columns of one width, whichever of them the user draws
  bool fitsFill = false;         ///< columns share all the room left over, also those that the grid asks to be fitted
  int restTo = -1;               ///< the column that takes the room left over; -1: the last in sight
  bool pad = false;              ///< cells are keys: click, drag to paint, Space; no row frame, no selection
  bool even = false;             ///< all columns equally wide, filling the view
  int evenFrom = 0;              ///< the first of the even columns; those before it are as wide as their text
  bool heading = true;           ///< false: for a heading without text, which takes no room then
  bool sideways = false;         ///< an even grid scrolls sideways where its columns find no room
  std::vector<int> strong = {};  ///< columns written in weight 600
  bool tight = false;            ///< little padding in the cells
  int minColumn = 0;             ///< least width of an even column in pixels; 0: the widest text
  int minRow = 0, maxRow = 0;    ///< rows stretch with the view between these heights; 0: the theme's row height
  bool whole = false;            ///< with stretching rows: all of them are in sight, the view is no higher
  double points = 0;             ///< size of the cells' font; 0: the base font
  bool fixedHeight = false;      ///< as high as its rows, no scroll bar
  bool atEnd = false;            ///< opens scrolled to its last row, and stays there when its size changes
  /// What a cell without colours of its own is drawn with, by its column; the grid itself stays as it is.
  std::function<Cell(int column)> colours = {};
  /// The tooltip of a cell, given its place in the grid.
  std::function<QString(int row, int column)> toolTip = {};
};

/// The one view of all grids. White paper in every theme; below the last row the view shows where the table ends, and
/// in an empty grid what to press. Its objectName is the grid's name.
class GridView : public QTableView {
  Q_OBJECT
 public:
  explicit GridView(GridControl& grid, GridLook look = {}, QWidget* parent = nullptr);
  ~GridView() override;

  GridControl& grid() const { return m_grid; }
  GridModel& gridModel() const { return *m_model; }
  const GridLook& look() const { return m_look; }
  void setLook(GridLook look);

  /// What the user's mouse does, without the mouse: rows count as in the grid, heading included.
  void clickCell(int row, int column);
  void clickHeading();
  void doubleClickCell(int row, int column);

  /// Text and HTML table of the chosen cells (the current one when none is chosen) onto the clipboard.
  void copySelection();
  void copyTable();
  void exportCsv();
  void exportXlsx();
  void printTable();
  /// Fits all columns to what they hold now; they keep these widths.
  void fitColumns();

  const QFont& cellFont(bool strong) const { return strong ? m_strongFont : m_cellFont; }
  const QFont& headingFont() const { return m_headingFont; }
  /// Catches up with the grid now, without waiting for the event loop.
  void sync() { m_model->sync(); }
  /// The cell as it is drawn: its own colours, else those of its column.
  Cell drawnCell(int row, int column) const;
  /// True when the cell shows the same as the one above it in a merged column, so that no line parts them.
  bool continuesAbove(int row, int column) const;
  /// Left edge of a column of the grid inside this view and its width, for what stands exactly under it.
  std::pair<int, int> columnSpan(int column) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  /// Column widths or places are others.
  void columnsLaidOut();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void openEditor(const QModelIndex& index);
  void followTheme();
  void followControl();
  void followGrid();
  void layoutColumns();
  void layoutRows();
  int naturalWidth(int column) const;
  int padding() const;
  int fittedWidth(int column, const std::vector<int>& rows) const;
  void fitAsAsked();
  bool isAlike(int column) const;
  std::vector<int> ownWidths(const std::vector<int>& columns, int room) const;
  void noteUserWidth(int column, int width);
  int leastRow() const;
  int evenWidth() const;
  int visibleRowCount() const;
  bool atEnd() const;
  QRect emptyTextRoom(int top) const;
  void paintFreePlaces(QPainter& painter, int rows, int& bottom);
  void paintEmptyText(QPainter& painter, int top);
  void paintLowRows(QPainter& painter);
  void paintFrames(QPainter& painter);
  QRect rowRect(int modelRow) const;
  std::vector<std::pair<int, int>> chosenCells() const;
  Grid drawnGrid() const;
  std::vector<std::string> printHeader() const;
  FileBox exportBox(const char* title, const char* filter, const char* extension) const;

  GridControl& m_grid;
  GridLook m_look;
  GridModel* m_model;
  QFont m_cellFont, m_strongFont, m_headingFont;
  mutable QHash<QString, int> m_cellAdvances, m_headingAdvances;  // widths of texts already met in these fonts
  std::set<int> m_hiddenRows;                                     // as last given to the view, grid's counting
  std::map<int, int> m_userWidths;                                // of columns that the user or "Adatta colonne" set
  std::map<int, int> m_gridWidths;  // of columns that the grid asked to be fitted, where these share the room
  int m_lastRows = 0;               // of the model when the view last followed it
  int m_fitsAsked = 0, m_showsAsked = 0, m_scrollsAsked = 0;  // by the grid, as far as the view has followed
  bool m_keepEnd = false;                                     // the theme changes while the last row is in sight
  bool m_layingOut = false, m_following = false;
  bool m_afterDoubleClick = false;          // the release that ends a double click is no click
  std::pair<int, int> m_pressed{-1, -1};    // cell under the press, grid's counting
  std::set<std::pair<int, int>> m_painted;  // cells already met by this drag over a pad
  Rgb m_paintOver = kWhite;                 // back of the first of them before the press: only such cells follow
};

}  // namespace trv5
