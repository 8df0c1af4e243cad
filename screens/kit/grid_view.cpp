#include "screens/kit/grid_view.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "screens/kit/grid_delegate.h"
#include "screens/kit/theme.h"
#include "screens/kit/user_events.h"

namespace trv5 {

GridView::GridView(GridControl& grid, GridLook look, QWidget* parent)
    : QTableView(parent), m_grid(grid), m_look(std::move(look)), m_model(new GridModel(grid, this)) {
  setObjectName(qs(grid.name()));
  setAccessibleName(m_look.name.isEmpty() ? qs(grid.name()) : m_look.name);
  setProperty("grid", true);
  setModel(m_model);
  setItemDelegate(new GridDelegate(*this));
  setHorizontalHeader(new GridHeading(*this));
  setShowGrid(false);
  setCornerButtonEnabled(false);
  setTabKeyNavigation(false);
  setEditTriggers(NoEditTriggers);
  setSelectionBehavior(SelectItems);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollMode(ScrollPerItem);
  verticalHeader()->setVisible(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(1);
  horizontalHeader()->setVisible(m_look.heading && grid.headingRows() > 0);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
    // A column that is hidden or shown again is resized too.
    if (!m_layingOut && !m_following && width > 0) noteUserWidth(column, width);
  });
  connect(m_model, &GridModel::synced, this, &GridView::followGrid);
  connect(&Theme::current(), &Theme::aboutToChange, this, [this] { m_keepEnd = atEnd(); });
  connect(&Theme::current(), &Theme::changed, this, [this] {
    followTheme();
    updateGeometries();
    if (m_keepEnd) scrollToBottom();
  });
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &GridView::columnsLaidOut);
  m_grid.setListener([this] { followControl(); }, [this] { setFocus(Qt::OtherFocusReason); });
  new UserEvents(*this, grid);
  setLook(m_look);
  followControl();
  followGrid();
}

GridView::~GridView() {
  m_grid.setListener({});
}

void GridView::setLook(GridLook look) {
  m_look = std::move(look);
  const bool keys = m_look.pad || m_look.fixedHeight || m_look.whole;
  setSelectionMode(m_look.pad ? NoSelection : ExtendedSelection);
  setVerticalScrollBarPolicy(keys ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  const bool fits = keys || (m_look.even && m_look.minColumn == 0 && !m_look.sideways);
  setHorizontalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  followTheme();
}

void GridView::followTheme() {
  const Theme& theme = Theme::current();
  // Kept here: a style sheet may give the widgets themselves other fonts than asked for.
  m_cellFont = theme.base();
  if (m_look.points > 0) m_cellFont.setPointSizeF(m_look.points);
  m_strongFont = m_cellFont;
  m_strongFont.setWeight(QFont::DemiBold);
  m_headingFont = theme.small(true);
  m_cellAdvances.clear();
  m_headingAdvances.clear();
  m_gridWidths.clear();  // of the font before
  horizontalHeader()->setFixedHeight(theme.heading());
  // A strip of keys stands among buttons and lists, as high as they are.
  const int row = m_look.pad && m_look.fixedHeight ? theme.control() - 2 * frameWidth() : theme.row();
  verticalHeader()->setDefaultSectionSize(std::max(row, QFontMetrics(m_cellFont).height() + 2));
  if (m_look.fixedHeight)
    setFixedHeight(minimumSizeHint().height());
  else if (m_look.whole)
    setMaximumHeight(sizeHint().height());
  updateGeometry();
  layoutColumns();
  layoutRows();
}

void GridView::followControl() {
  setEnabled(m_grid.enabled());
  setToolTip(qs(m_grid.toolTip()));
  viewport()->update();
}

void GridView::followGrid() {
  m_following = true;
  const int heading = m_model->gridRow(0), rows = m_model->rowCount();
  const std::set<int>& hidden = m_grid.hiddenRows();
  if (hidden != m_hiddenRows) {
    for (const int row : m_hiddenRows)
      if (!hidden.contains(row) && m_model->modelRow(row) < rows) setRowHidden(m_model->modelRow(row), false);
    for (const int row : hidden)
      if (row >= heading) setRowHidden(m_model->modelRow(row), true);
    m_hiddenRows = hidden;
  }
  for (int column = 0; column < m_model->columnCount(); ++column) {
    bool away = m_grid.columnHidden(column);
    if (!away && std::find(m_look.folded.begin(), m_look.folded.end(), column) != m_look.folded.end()) {
      away = true;
      for (int row = heading; away && row < m_grid.rows(); ++row) away = m_grid.text(row, column).empty();
    }
    if (isColumnHidden(column) != away) setColumnHidden(column, away);
  }
  const int current = m_grid.current();
  if (current < heading) {
    if (!m_look.pad || !hasFocus()) selectionModel()->clear();
  } else if (currentIndex().row() != m_model->modelRow(current) || currentIndex().column() != m_grid.currentColumn()) {
    const QModelIndex index = m_model->index(m_model->modelRow(current), m_grid.currentColumn());
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  }
  m_following = false;
  if (m_fitsAsked != m_grid.fitsAsked()) {
    m_fitsAsked = m_grid.fitsAsked();
    fitAsAsked();
  }
  layoutColumns();
  layoutRows();
  if (m_look.atEnd && m_lastRows != rows) scrollToBottom();
  if (m_scrollsAsked != m_grid.scrollsAsked()) {
    m_scrollsAsked = m_grid.scrollsAsked();
    // Rows that have just come have no place yet.
    executeDelayedItemsLayout();
    updateGeometries();
    scrollTo(m_model->index(m_model->modelRow(m_grid.topRow()), std::max(0, columnAt(0))), PositionAtTop);
  }
  m_lastRows = rows;
  if (const auto [asked, row] = m_grid.showsAsked(); m_showsAsked != asked) {
    m_showsAsked = asked;
    scrollTo(m_model->index(m_model->modelRow(row), 1), PositionAtCenter);
  }
  viewport()->update();
}

Cell GridView::drawnCell(int row, int column) const {
  Cell cell = m_grid.at(row, column);
  if (!m_look.colours || row < m_grid.headingRows()) return cell;
  const Cell colours = m_look.colours(column);
  if (cell.back == kWhite) cell.back = colours.back;
  if (cell.fore == kBlack) cell.fore = colours.fore;
  cell.bold = cell.bold || colours.bold;
  return cell;
}

bool GridView::continuesAbove(int row, int column) const {
  if (!m_grid.mergedColumns().contains(column) || row <= m_grid.headingRows() || row >= m_grid.rows()) return false;
  int above = row - 1;
  while (above >= m_grid.headingRows() && m_grid.rowHidden(above)) --above;
  if (above < m_grid.headingRows()) return false;
  const std::string& text = m_grid.text(row, column);
  return !text.empty() && m_grid.text(above, column) == text;
}

void GridView::resizeEvent(QResizeEvent* event) {
  const bool keepEnd = atEnd();
  QTableView::resizeEvent(event);
  layoutColumns();
  layoutRows();
  if (keepEnd) scrollToBottom();
}

void GridView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::EnabledChange) viewport()->update();
}

bool GridView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip && m_look.toolTip) {
    const auto* const help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    const QString text = index.isValid() ? m_look.toolTip(m_model->gridRow(index.row()), index.column()) : QString();
    QToolTip::showText(help->globalPos(), text, viewport());
    return true;
  }
  return QTableView::viewportEvent(event);
}

// Scrolling moves the picture; what depends on the place of the view's top must be painted anew.
void GridView::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (dy != 0 && !m_grid.mergedColumns().empty()) viewport()->update();
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (!m_following && current.isValid()) m_grid.moveTo(m_model->gridRow(current.row()), current.column());
  viewport()->update();
}

}  // namespace trv5
