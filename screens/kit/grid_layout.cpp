// How wide the columns of a grid are and how high its rows.
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

#include "screens/kit/grid_view.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// Samples and headings are measured again at each layout of each column.
int advance(QHash<QString, int>& known, const QFont& font, const QString& text) {
  const auto found = known.constFind(text);
  return found != known.constEnd() ? *found : *known.insert(text, QFontMetrics(font).horizontalAdvance(text));
}

}  // namespace

bool GridView::atEnd() const {
  return m_look.atEnd && verticalScrollBar()->value() == verticalScrollBar()->maximum();
}

std::pair<int, int> GridView::columnSpan(int column) const {
  const int left = horizontalHeader()->sectionViewportPosition(column) + viewport()->x();
  return {left, isColumnHidden(column) ? 0 : columnWidth(column)};
}

int GridView::naturalWidth(int column) const {
  const auto inCells = [this](const QString& text) { return advance(m_cellAdvances, m_cellFont, text); };
  int width = inCells(QStringLiteral("8"));
  if (column >= m_grid.columns()) return width;  // gone from the grid, not yet from the model
  if (const auto fitted = m_gridWidths.find(column); fitted != m_gridWidths.end()) return fitted->second;
  const QString heading = m_grid.headingRows() > 0 ? qs(m_grid.text(0, column)) : QString();
  const QString sample = static_cast<std::size_t>(column) < m_look.samples.size()
                             ? m_look.samples[static_cast<std::size_t>(column)]
                             : QString();
  if (m_look.even && m_look.minColumn > 0 && column >= m_look.evenFrom) return m_look.minColumn;
  width = std::max({width, inCells(sample),
                    advance(m_headingAdvances, m_headingFont, sample.isEmpty() ? heading : heading.trimmed())});
  if (sample.isEmpty() && heading.isEmpty() && m_grid.width(column) > 0)
    return m_grid.width(column) / 15;  // the grid's own unit is a twentieth of a point, 15 of them a pixel
  if (sample.isEmpty() && heading.isEmpty() && m_grid.hasData())
    width = std::max(width, QFontMetrics(m_cellFont).horizontalAdvance(qs(m_grid.text(m_grid.headingRows(), column))));
  return width + padding();
}

int GridView::padding() const {
  return m_look.tight ? 4 : Theme::current().unit() + 4;
}

int GridView::evenWidth() const {
  int width = 0;
  for (int column = m_look.evenFrom; column < m_model->columnCount(); ++column)
    if (!isColumnHidden(column)) width = std::max(width, naturalWidth(column));
  return width;
}

bool GridView::isAlike(int column) const {
  return std::find(m_look.alike.begin(), m_look.alike.end(), column) != m_look.alike.end();
}

void GridView::noteUserWidth(int column, int width) {
  m_userWidths[column] = width;
  if (!isAlike(column)) {
    Q_EMIT columnsLaidOut();
    return;
  }
  for (const int other : m_look.alike) m_userWidths[other] = width;
  layoutColumns();
}

// As wide as their texts, or as the user wants them; the room left over is shared, as a rule up to 1.6 times, and what
// is left even so goes to one column.
std::vector<int> GridView::ownWidths(const std::vector<int>& columns, int room) const {
  std::vector<int> widths;
  int alike = 0;
  for (const int column : columns) {
    const auto user = m_userWidths.find(column);
    widths.push_back(user != m_userWidths.end() ? user->second : naturalWidth(column));
    if (isAlike(column)) alike = std::max({alike, widths.back(), naturalWidth(column)});
  }
  int total = 0, free = 0;  // free: of columns whose width nobody set
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (isAlike(columns[i])) widths[i] = alike;
    total += widths[i];
    if (!m_userWidths.contains(columns[i])) free += widths[i];
  }
  if (total >= room || free == 0) return widths;
  const double most = m_look.fitsFill ? room : 1.6;
  const double factor = std::min(most, 1.0 + double(room - total) / free);
  int used = 0;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!m_userWidths.contains(columns[i])) widths[i] = static_cast<int>(widths[i] * factor);
    used += widths[i];
  }
  const auto rest = std::find(columns.begin(), columns.end(), m_look.restTo);
  const auto last = rest == columns.end() ? columns.end() - 1 : rest;
  widths[static_cast<std::size_t>(last - columns.begin())] += std::max(0, room - used);
  return widths;
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
    widths = ownWidths(columns, room);
  }
  for (std::size_t i = 0; i < columns.size(); ++i)
    if (columnWidth(columns[i]) != widths[i]) horizontalHeader()->resizeSection(columns[i], widths[i]);
  m_layingOut = false;
  Q_EMIT columnsLaidOut();
}

int GridView::visibleRowCount() const {
  return m_model->rowCount() - static_cast<int>(m_hiddenRows.size());
}

// Of rows that stretch: a line of text, but for a map, which has none in its cells.
int GridView::leastRow() const {
  if (m_look.minRow > 0) return m_look.minRow;
  return m_look.minColumn > 0 ? 1 : QFontMetrics(m_cellFont).height();
}

void GridView::layoutRows() {
  const int rows = visibleRowCount();
  if (m_look.maxRow <= 0 || rows <= 0) return;
  const int least = leastRow();
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
  const int heading = m_look.heading && m_grid.headingRows() > 0 ? horizontalHeader()->height() : 0;
  const int rows = m_look.pad || m_look.fixedHeight || m_look.whole ? visibleRowCount() : 8;
  const int row = m_look.whole ? std::max(leastRow(), m_look.maxRow)
                               : std::max(m_look.minRow, verticalHeader()->defaultSectionSize());
  return {width, heading + rows * row + 2 * frameWidth()};
}

QSize GridView::minimumSizeHint() const {
  const QSize hint = sizeHint();
  const bool whole = m_look.pad || m_look.fixedHeight || m_look.whole;
  const int heading = m_look.heading && m_grid.headingRows() > 0 ? horizontalHeader()->height() : 0;
  const int row = m_look.minRow > 0 ? leastRow() : verticalHeader()->defaultSectionSize();
  return {whole ? hint.width() : std::min(hint.width(), 120),
          heading + (whole ? visibleRowCount() : 2) * row + 2 * frameWidth()};
}

}  // namespace trv5
