// What the mouse and the keys do in a grid.
#include <QMouseEvent>

#include "screens/kit/grid_view.h"

namespace trv5 {

void GridView::clickCell(int row, int column) {
  m_grid.clickCell(row, column);
}

void GridView::clickHeading() {
  m_grid.clickHeading();
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
  // The cells of a pad are keys: who comes by the keyboard stands on the first of them, or where he stood.
  const Qt::FocusReason reason = event->reason();
  const bool byKey = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
  const bool onKey = m_look.pad && (byKey || currentIndex().isValid());
  // Qt makes the first cell current with the focus; the current row is data here, and stays as it is.
  m_following = true;
  QTableView::focusInEvent(event);
  if (m_grid.current() < m_grid.headingRows() && !onKey) selectionModel()->clearCurrentIndex();
  m_following = false;
  viewport()->update();
}

void GridView::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  viewport()->update();
}

}  // namespace trv5
