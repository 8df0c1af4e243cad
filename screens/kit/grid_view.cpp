#include "screens/kit/grid_view.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "screens/kit/grid_delegate.h"
#include "screens/kit/theme.h"
#include "screens/kit/user_events.h"

namespace trv5 {

GridView::GridView(GridControl& grid, GridLook look, QWidget* parent)
    : QTableView(parent), m_grid(grid), m_look(std::move(look)), m_model(new GridModel(grid, this)) {
  setObjectName(qs(grid.name()));
  setAccessibleName(qs(grid.name()));
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
  horizontalHeader()->setVisible(grid.headingRows() > 0);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
    if (m_layingOut) return;
    m_userWidths[column] = width;
    Q_EMIT columnsLaidOut();
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
  const bool keys = m_look.pad || m_look.fixedHeight;
  setSelectionMode(m_look.pad ? NoSelection : ExtendedSelection);
  setVerticalScrollBarPolicy(keys ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  const bool fits = keys || (m_look.even && m_look.minColumn == 0);
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
  horizontalHeader()->setFixedHeight(theme.heading());
  // A strip of keys stands among buttons and lists, as high as they are.
  const int row = m_look.pad && m_look.fixedHeight ? theme.control() - 2 * frameWidth() : theme.row();
  verticalHeader()->setDefaultSectionSize(std::max(row, QFontMetrics(m_cellFont).height() + 2));
  if (m_look.fixedHeight) setFixedHeight(minimumSizeHint().height());
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
    selectionModel()->clear();
  } else if (currentIndex().row() != m_model->modelRow(current) || currentIndex().column() != m_grid.currentColumn()) {
    const QModelIndex index = m_model->index(m_model->modelRow(current), m_grid.currentColumn());
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  }
  m_following = false;
  layoutColumns();
  layoutRows();
  if (m_look.atEnd && m_lastRows != rows) scrollToBottom();
  m_lastRows = rows;
  viewport()->update();
}

bool GridView::continuesAbove(int row, int column) const {
  if (!m_grid.mergedColumns().contains(column) || row <= m_grid.headingRows() || row >= m_grid.rows()) return false;
  int above = row - 1;
  while (above >= m_grid.headingRows() && m_grid.rowHidden(above)) --above;
  if (above < m_grid.headingRows()) return false;
  const std::string& text = m_grid.text(row, column);
  return !text.empty() && m_grid.text(above, column) == text;
}

bool GridView::atEnd() const {
  return m_look.atEnd && verticalScrollBar()->value() == verticalScrollBar()->maximum();
}

std::pair<int, int> GridView::columnSpan(int column) const {
  const int left = horizontalHeader()->sectionViewportPosition(column) + viewport()->x();
  return {left, isColumnHidden(column) ? 0 : columnWidth(column)};
}

int GridView::naturalWidth(int column) const {
  const QFontMetrics cells(m_cellFont), headings(m_headingFont);
  int width = cells.horizontalAdvance(u'8');
  if (column >= m_grid.columns()) return width;  // gone from the grid, not yet from the model
  const QString heading = m_grid.headingRows() > 0 ? qs(m_grid.text(0, column)) : QString();
  const QString sample = static_cast<std::size_t>(column) < m_look.samples.size()
                             ? m_look.samples[static_cast<std::size_t>(column)]
                             : QString();
  if (m_look.even && m_look.minColumn > 0 && column >= m_look.evenFrom) return m_look.minColumn;
  width = std::max({width, cells.horizontalAdvance(sample),
                    headings.horizontalAdvance(sample.isEmpty() ? heading : heading.trimmed())});
  if (sample.isEmpty() && heading.isEmpty() && m_grid.width(column) > 0)
    return m_grid.width(column) / 15;  // the grid's own unit is a twentieth of a point, 15 of them a pixel
  if (sample.isEmpty() && heading.isEmpty() && m_grid.hasData())
    width = std::max(width, cells.horizontalAdvance(qs(m_grid.text(m_grid.headingRows(), column))));
  return width + (m_look.tight ? 4 : Theme::current().unit() + 4);
}

int GridView::evenWidth() const {
  int width = 0;
  for (int column = m_look.evenFrom; column < m_model->columnCount(); ++column)
    if (!isColumnHidden(column)) width = std::max(width, naturalWidth(column));
  return width;
}

void GridView::layoutColumns() {
  std::vector<int> columns;
  for (int column = 0; column < m_model->columnCount(); ++column)
    if (!isColumnHidden(column)) columns.push_back(column);
  if (columns.empty()) return;

  m_layingOut = true;
  int room = viewport()->width();
  std::vector<int> widths;
  if (m_look.even) {
    for (const int column : columns) {
      if (column >= m_look.evenFrom) break;
      widths.push_back(naturalWidth(column));
      room -= widths.back();
    }
    const int count = static_cast<int>(columns.size() - widths.size());
    const int least = evenWidth();
    for (int i = 0; i < count; ++i) widths.push_back(std::max(least, room * (i + 1) / count - room * i / count));
  } else {
    int total = 0, free = 0;  // free: of columns whose width nobody set
    for (const int column : columns) {
      const auto user = m_userWidths.find(column);
      widths.push_back(user != m_userWidths.end() ? user->second : naturalWidth(column));
      total += widths.back();
      if (user == m_userWidths.end()) free += widths.back();
    }
    if (total < room && free > 0) {
      const double factor = std::min(1.6, 1.0 + double(room - total) / free);
      int used = 0;
      for (std::size_t i = 0; i < columns.size(); ++i) {
        if (!m_userWidths.contains(columns[i])) widths[i] = static_cast<int>(widths[i] * factor);
        used += widths[i];
      }
      if (used < room) widths.back() += room - used;
    }
  }
  for (std::size_t i = 0; i < columns.size(); ++i)
    if (columnWidth(columns[i]) != widths[i]) horizontalHeader()->resizeSection(columns[i], widths[i]);
  m_layingOut = false;
  Q_EMIT columnsLaidOut();
}

int GridView::visibleRowCount() const {
  return m_model->rowCount() - static_cast<int>(m_hiddenRows.size());
}

void GridView::layoutRows() {
  const int rows = visibleRowCount();
  if (m_look.maxRow <= 0 || rows <= 0) return;
  const int least = std::max(m_look.minRow, m_look.minColumn > 0 ? 1 : QFontMetrics(m_cellFont).height() + 2);
  const int room = std::clamp(viewport()->height(), rows * least, rows * std::max(least, m_look.maxRow));
  int i = 0;
  for (int row = 0; row < m_model->rowCount(); ++row) {
    if (isRowHidden(row)) continue;
    const int height = room * (i + 1) / rows - room * i / rows;
    if (rowHeight(row) != height) verticalHeader()->resizeSection(row, height);
    ++i;
  }
}

QSize GridView::sizeHint() const {
  int width = 2 * frameWidth();
  const int even = m_look.even ? evenWidth() : 0;
  for (int column = 0; column < m_model->columnCount(); ++column)
    if (!isColumnHidden(column)) width += m_look.even && column >= m_look.evenFrom ? even : naturalWidth(column);
  if (verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff) width += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  const int heading = m_grid.headingRows() > 0 ? horizontalHeader()->height() : 0;
  const int rows = m_look.pad || m_look.fixedHeight ? visibleRowCount() : 8;
  const int row = std::max(m_look.minRow, verticalHeader()->defaultSectionSize());
  return {width, heading + rows * row + 2 * frameWidth()};
}

QSize GridView::minimumSizeHint() const {
  const QSize hint = sizeHint();
  const bool whole = m_look.pad || m_look.fixedHeight;
  const int heading = m_grid.headingRows() > 0 ? horizontalHeader()->height() : 0;
  const int row = m_look.minRow > 0 ? std::max(m_look.minRow, QFontMetrics(m_cellFont).height() + 2)
                                    : verticalHeader()->defaultSectionSize();
  return {whole ? hint.width() : std::min(hint.width(), 120),
          heading + (whole ? visibleRowCount() : 2) * row + 2 * frameWidth()};
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
  if (!m_following && current.isValid()) m_grid.setCurrent(m_model->gridRow(current.row()), current.column());
  viewport()->update();
}

void GridView::clickCell(int row, int column) {
  m_grid.clickCell(row, column);
}

void GridView::doubleClickCell(int row, int column) {
  m_grid.doubleClickCell(row, column);
}

void GridView::mousePressEvent(QMouseEvent* event) {
  sync();
  const QModelIndex index = indexAt(event->pos());
  m_pressed = index.isValid() ? std::pair(m_model->gridRow(index.row()), index.column()) : std::pair(-1, -1);
  m_afterDoubleClick = false;
  if (!m_look.pad) {
    QTableView::mousePressEvent(event);
    return;
  }
  m_painted.clear();
  if (!index.isValid() || event->button() != Qt::LeftButton) return;
  m_paintOver = m_grid.back(m_pressed.first, m_pressed.second);
  m_painted.insert(m_pressed);
  clickCell(m_pressed.first, m_pressed.second);
}

// Dragging over a pad does to each cell what the press did to the first.
void GridView::mouseMoveEvent(QMouseEvent* event) {
  if (!m_look.pad) {
    QTableView::mouseMoveEvent(event);
    return;
  }
  if (!(event->buttons() & Qt::LeftButton) || m_painted.empty()) return;
  const QModelIndex index = indexAt(event->pos());
  if (!index.isValid()) return;
  const std::pair cell(m_model->gridRow(index.row()), index.column());
  if (!m_painted.insert(cell).second || m_grid.back(cell.first, cell.second) != m_paintOver) return;
  clickCell(cell.first, cell.second);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  if (m_look.pad) return;
  QTableView::mouseReleaseEvent(event);
  const QModelIndex index = indexAt(event->pos());
  const bool plain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
  if (!plain || !index.isValid() || m_afterDoubleClick) return;
  if (m_pressed == std::pair(m_model->gridRow(index.row()), index.column()))
    clickCell(m_pressed.first, m_pressed.second);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (m_look.pad) {
    mousePressEvent(event);
    return;
  }
  sync();
  m_afterDoubleClick = true;
  const QModelIndex index = indexAt(event->pos());
  if (!index.isValid() || event->button() != Qt::LeftButton) return;
  if (index.flags() & Qt::ItemIsEditable)
    openEditor(index);
  else
    doubleClickCell(m_model->gridRow(index.row()), index.column());
}

void GridView::openEditor(const QModelIndex& index) {
  if (state() != EditingState) edit(index);
}

void GridView::keyPressEvent(QKeyEvent* event) {
  sync();
  const QModelIndex index = currentIndex();
  const int row = m_model->gridRow(index.row());
  const bool control = event->modifiers() == Qt::ControlModifier;
  if (event->matches(QKeySequence::Copy)) {
    copySelection();
  } else if (event->key() == Qt::Key_C && event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier)) {
    copyTable();
  } else if (event->key() == Qt::Key_P && control) {
    printTable();
  } else if (event->key() == Qt::Key_Space && index.isValid()) {
    clickCell(row, index.column());
  } else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && !control) {
    if (!index.isValid())
      event->ignore();
    else if (index.flags() & Qt::ItemIsEditable)
      openEditor(index);
    else
      doubleClickCell(row, index.column());
  } else if (!event->text().isEmpty() && event->text().at(0).isPrint() && event->modifiers() == Qt::NoModifier) {
    event->ignore();  // letters don't search: they belong to nobody here
  } else {
    QTableView::keyPressEvent(event);
  }
}

void GridView::focusInEvent(QFocusEvent* event) {
  // Qt makes the first cell current with the focus; the current row is data here, and stays as it is.
  m_following = true;
  QTableView::focusInEvent(event);
  if (m_grid.current() < m_grid.headingRows()) selectionModel()->clearCurrentIndex();
  m_following = false;
  viewport()->update();
}

void GridView::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  viewport()->update();
}

QRect GridView::rowRect(int modelRow) const {
  const int right = std::min(viewport()->width(), horizontalHeader()->length() - horizontalHeader()->offset());
  return {0, rowViewportPosition(modelRow), right, rowHeight(modelRow)};
}

void GridView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  QPainter painter(viewport());
  const int rows = visibleRowCount();
  int bottom = rows > 0 ? verticalHeader()->length() - verticalHeader()->offset() : 0;
  if (rows < m_look.freePlaces) {
    const int height = verticalHeader()->defaultSectionSize();
    for (int i = rows; i < m_look.freePlaces; ++i) {
      bottom += height;
      painter.fillRect(0, bottom - 1, viewport()->width(), 1, toColor(Theme::current().colours().line));
    }
  }
  if (rows == 0) paintEmptyText(painter, bottom);
  paintLowRows(painter);
  paintFrames(painter);
}

void GridView::paintEmptyText(QPainter& painter, int top) {
  const QString text = qs(m_grid.emptyText());
  if (text.isEmpty()) return;
  QRect room = viewport()->rect().adjusted(8, 0, -8, 0);
  // Below the free places where two lines find room, else over them.
  if (viewport()->height() - top >= 2 * QFontMetrics(m_cellFont).height() + 4) room.setTop(top);
  painter.setFont(m_cellFont);
  painter.setPen(toColor(Theme::current().colours().text2));
  painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, text);
}

// Rows too low for a text leave out the numbers of their head columns; every n-th is written over the rows below it.
void GridView::paintLowRows(QPainter& painter) {
  const QFontMetrics metrics(m_headingFont);
  const int count = m_model->rowCount(), height = count > 0 ? rowHeight(0) : 0;
  if (m_look.evenFrom == 0 || height == 0 || height >= metrics.height()) return;
  const int step = metrics.height() / height + 1;
  painter.setFont(m_headingFont);
  painter.setPen(toColor(kBlack));
  for (int row = 0; row < count; row += step) {
    for (int column = 0; column < m_look.evenFrom; ++column) {
      const QRect room(columnViewportPosition(column), rowViewportPosition(row), columnWidth(column), height * step);
      painter.drawText(room, Qt::AlignTop | Qt::AlignHCenter,
                       m_model->data(m_model->index(row, column), Qt::DisplayRole).toString());
    }
  }
}

// Frames lie over the cells: the paper is white in every theme, so their colours are those of the light one.
void GridView::paintFrames(QPainter& painter) {
  const auto frame = [&](const QRect& r, int left, int width, const QColor& colour) {
    painter.fillRect(r.left(), r.top(), r.width(), width, colour);
    painter.fillRect(r.left(), r.bottom() - width + 1, r.width(), width, colour);
    painter.fillRect(r.left(), r.top(), left, r.height(), colour);
    painter.fillRect(r.right() - width + 1, r.top(), width, r.height(), colour);
  };
  const QColor accent = toColor(kLightColours.accent);
  const QModelIndexList chosen = m_look.pad ? QModelIndexList() : selectedIndexes();
  if (chosen.size() > 1) {
    QColor veil = accent;
    veil.setAlphaF(0.12F);
    for (const QModelIndex& index : chosen) {
      const QRect r = visualRect(index).adjusted(0, 0, -1, -1);
      if (!r.intersects(viewport()->rect())) continue;
      painter.fillRect(r, veil);
      frame(r, 1, 1, accent);
    }
  }
  const int current = m_model->modelRow(m_grid.current());
  if (current < 0 || current >= m_model->rowCount() || isRowHidden(current)) return;
  const QRect row = rowRect(current);
  if (!m_look.pad && row.intersects(viewport()->rect())) frame(row.adjusted(0, 0, 0, -1), 3, 2, toColor(kRowFrame));
  if (hasFocus() && currentIndex().isValid() && chosen.size() <= 1)
    frame(visualRect(currentIndex()).adjusted(0, 0, -1, -1), 2, 2, accent);
}

}  // namespace trv5
