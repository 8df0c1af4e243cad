// What a grid paints over and below its cells.
#include <QHeaderView>
#include <QPainter>
#include <algorithm>

#include "screens/kit/grid_delegate.h"
#include "screens/kit/grid_view.h"
#include "screens/kit/theme.h"

namespace trv5 {

QRect GridView::rowRect(int modelRow) const {
  const int right = std::min(viewport()->width(), horizontalHeader()->length() - horizontalHeader()->offset());
  return {0, rowViewportPosition(modelRow), right, rowHeight(modelRow)};
}

void GridView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  QPainter painter(viewport());
  const int rows = visibleRowCount();
  int bottom = rows > 0 ? verticalHeader()->length() - verticalHeader()->offset() : 0;
  paintFreePlaces(painter, rows, bottom);
  if (rows == 0) paintEmptyText(painter, bottom);
  paintLowRows(painter);
  paintFrames(painter);
}

// Free places are faint lines; none crosses the message of an empty grid.
void GridView::paintFreePlaces(QPainter& painter, int rows, int& bottom) {
  const int height = verticalHeader()->defaultSectionSize();
  const int whole = bottom + std::max(0, m_look.freePlaces - rows) * height;
  QRect message;
  if (rows == 0 && !m_grid.emptyText().empty())
    message = QFontMetrics(m_cellFont)
                  .boundingRect(emptyTextRoom(whole), Qt::AlignCenter | Qt::TextWordWrap, qs(m_grid.emptyText()))
                  .adjusted(-8, -2, 8, 2);
  const QColor line = toColor(Theme::current().colours().line);
  for (bottom += height; bottom <= whole; bottom += height) {
    const int y = bottom - 1, width = viewport()->width();
    const bool crosses = y >= message.top() && y <= message.bottom();
    painter.fillRect(0, y, crosses ? message.left() : width, 1, line);
    if (crosses) painter.fillRect(message.right() + 1, y, width - message.right() - 1, 1, line);
  }
  bottom = whole;
}

// Below the free places where two lines find room, else over them.
QRect GridView::emptyTextRoom(int top) const {
  QRect room = viewport()->rect().adjusted(8, 0, -8, 0);
  if (viewport()->height() - top >= 2 * QFontMetrics(m_cellFont).height() + 4) room.setTop(top);
  return room;
}

void GridView::paintEmptyText(QPainter& painter, int top) {
  const QString text = qs(m_grid.emptyText());
  if (text.isEmpty()) return;
  painter.setFont(m_cellFont);
  painter.setPen(toColor(Theme::current().colours().text2));
  painter.drawText(emptyTextRoom(top), Qt::AlignCenter | Qt::TextWordWrap, text);
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
  const bool inSight = current >= 0 && current < m_model->rowCount() && !isRowHidden(current);
  const QRect row = inSight ? rowRect(current) : QRect();
  if (!m_look.pad && row.intersects(viewport()->rect())) frame(row.adjusted(0, 0, 0, -1), 3, 2, toColor(kRowFrame));
  if ((inSight || m_look.pad) && hasFocus() && currentIndex().isValid() && chosen.size() <= 1)
    frame(visualRect(currentIndex()).adjusted(0, 0, -1, -1), 2, 2, accent);
}

}  // namespace trv5
