#include "screens/kit/grid_delegate.h"

#include <QApplication>
#include <QComboBox>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "screens/kit/grid_view.h"
#include "screens/kit/ink.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// Columns narrower than this are marks in a picture, not cells with a text: no line between them.
constexpr int kNarrowColumn = 6;

}  // namespace

GridDelegate::GridDelegate(GridView& view) : QStyledItemDelegate(&view), m_view(view) {}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const GridControl& grid = m_view.grid();
  const int row = m_view.gridModel().gridRow(index.row()), column = index.column();
  // The grid may be ahead of the model until control comes back to the event loop.
  if (row >= grid.rows() || column >= grid.columns()) return;
  const Cell cell = m_view.drawnCell(row, column);
  const QRect& r = option.rect;
  const bool narrow = r.width() < kNarrowColumn;
  painter->fillRect(r, toColor(cell.back));

  const QColor line = toColor(kGridLine);
  if (!m_view.continuesAbove(row + 1, column)) painter->fillRect(r.left(), r.bottom(), r.width(), 1, line);
  const std::vector<int>& heavy = m_view.look().heavyAfter;
  if (std::find(heavy.begin(), heavy.end(), column) != heavy.end())
    painter->fillRect(r.right() - 1, r.top(), 2, r.height(), toColor(kLightColours.edge));
  else if (!narrow)
    painter->fillRect(r.right(), r.top(), 1, r.height(), line);
  if (narrow) return;

  Rgb behind = cell.back;
  const QRect inside = r.adjusted(0, 0, -1, -1);
  if (const auto bar = grid.bars().find({row, column}); bar != grid.bars().end()) {
    const double part = std::clamp(bar->second.percent, 0.0, 100.0) / 100;
    QRect filled = inside.adjusted(0, 2, 0, -2);
    filled.setWidth(static_cast<int>(std::lround(filled.width() * part)));
    painter->fillRect(filled, toColor(bar->second.colour));
    if (part >= 0.5) behind = bar->second.colour;  // the text stands in the middle
  }

  if (cell.text.empty() ||
      (column < m_view.look().evenFrom && r.height() < QFontMetrics(m_view.headingFont()).height()))
    return;
  // A merged block has its text once, and again at the top of the view when the block begins above it.
  if (m_view.continuesAbove(row, column) && index.row() != m_view.rowAt(0)) return;
  const std::vector<int>& strongOnes = m_view.look().strong;
  const bool strong = cell.bold || (m_view.look().pad && cell.back != kWhite) ||
                      std::find(strongOnes.begin(), strongOnes.end(), column) != strongOnes.end();
  const QFont& font = m_view.cellFont(strong);
  painter->setFont(font);
  const Rgb ink = grid.aside() ? kLightColours.text2 : readableInk(cell.fore, behind);
  painter->setPen(toColor(m_view.isEnabled() ? ink : kLightColours.disabled));
  QString text = qs(cell.text);
  const QFontMetrics metrics(font, painter->device());
  if (text.size() > 2 && metrics.horizontalAdvance(text) > inside.width())
    text = metrics.elidedText(text, Qt::ElideRight, inside.width() - 2);
  painter->drawText(inside, Qt::AlignCenter | Qt::TextSingleLine, text);
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
  const std::vector<std::string>* const choices = m_view.grid().choices(index.column());
  if (choices == nullptr) return nullptr;
  auto* const list = new QComboBox(parent);
  for (const std::string& choice : *choices) list->addItem(qs(choice));
  return list;
}

void GridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  if (auto* const list = qobject_cast<QComboBox*>(editor))
    list->setCurrentIndex(list->findText(index.data(Qt::EditRole).toString()));
}

void GridDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
  if (auto* const list = qobject_cast<QComboBox*>(editor)) model->setData(index, list->currentText());
}

GridHeading::GridHeading(GridView& view) : QHeaderView(Qt::Horizontal, &view), m_view(view) {
  setSectionsClickable(false);
  setHighlightSections(false);
  setMinimumSectionSize(1);
  setDefaultAlignment(Qt::AlignCenter);
}

bool GridHeading::sparse() const {
  return m_view.look().even && m_view.look().minColumn > 0;
}

void GridHeading::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
  const ChromeColours& c = Theme::current().colours();
  painter->fillRect(rect, toColor(c.heading));
  painter->fillRect(rect.left(), rect.bottom(), rect.width(), 1, toColor(c.edge));
  if (sparse()) return;
  painter->fillRect(rect.right(), rect.top(), 1, rect.height() - 1, toColor(c.line));
  const QRect inside = rect.adjusted(1, 0, -1, -1);
  painter->setFont(m_view.headingFont());
  painter->setPen(toColor(c.headingText));
  const QString text = model()->headerData(logicalIndex, Qt::Horizontal).toString();
  painter->drawText(inside, Qt::AlignCenter | Qt::TextSingleLine,
                    QFontMetrics(m_view.headingFont()).elidedText(text, Qt::ElideRight, inside.width()));
}

void GridHeading::mousePressEvent(QMouseEvent* event) {
  m_pressed = event->pos();
  QHeaderView::mousePressEvent(event);
}

// Qt's own click of a section would select the column.
void GridHeading::mouseReleaseEvent(QMouseEvent* event) {
  QHeaderView::mouseReleaseEvent(event);
  const bool dragged = (event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance();
  if (event->button() == Qt::LeftButton && !dragged) m_view.clickHeading();
}

void GridHeading::paintEvent(QPaintEvent* event) {
  QHeaderView::paintEvent(event);
  if (!sparse() || count() == 0) return;
  const QFontMetrics metrics(m_view.headingFont());
  int widest = 0;
  const int first = m_view.look().evenFrom;
  if (count() <= first) return;
  for (int i = first; i < count(); ++i)
    widest = std::max(widest, metrics.horizontalAdvance(model()->headerData(i, Qt::Horizontal).toString()));
  const int step = std::max(1, (widest + 8) / std::max(1, sectionSize(first)) + 1);
  QPainter painter(viewport());
  painter.setFont(m_view.headingFont());
  painter.setPen(toColor(Theme::current().colours().headingText));
  for (int i = first; i < count(); i += step) {
    const QRect room(sectionViewportPosition(i), 0, sectionSize(i) * step, height() - 1);
    if (sectionPosition(i) + widest > length()) break;  // it would be cut
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft, model()->headerData(i, Qt::Horizontal).toString());
  }
}

}  // namespace trv5
