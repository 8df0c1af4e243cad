#include "screens/kit/layouts.h"

#include <QBoxLayout>
#include <QLabel>
#include <algorithm>

#include "screens/kit/theme.h"

namespace trv5 {
namespace {

QBoxLayout* box(QBoxLayout::Direction direction, const std::vector<Piece>& pieces) {
  auto* const layout = new QBoxLayout(direction);
  layout->setContentsMargins(0, 0, 0, 0);
  for (const Piece& piece : pieces) {
    if (piece.widget != nullptr)
      layout->addWidget(piece.widget, piece.stretch);
    else if (piece.layout != nullptr)
      layout->addLayout(piece.layout, piece.stretch);
    else if (piece.stretch > 0)
      layout->addStretch(piece.stretch);
    else
      layout->addSpacing(Theme::current().unit());
  }
  return layout;
}

}  // namespace

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent) {
  setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() {
  for (QLayoutItem* const item : m_items) delete item;
}

void FlowLayout::addItem(QLayoutItem* item) {
  m_items.push_back(item);
}

QLayoutItem* FlowLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
  QLayoutItem* const item = itemAt(index);
  if (item != nullptr) m_items.erase(m_items.begin() + index);
  return item;
}

void FlowLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  place(rect, true);
}

QSize FlowLayout::sizeHint() const {
  int width = 0, height = 0;
  for (const QLayoutItem* const item : m_items) {
    width += item->sizeHint().width() + (width > 0 ? Theme::current().unit() : 0);
    height = std::max(height, item->sizeHint().height());
  }
  return {width, height};
}

QSize FlowLayout::minimumSize() const {
  QSize size;
  for (const QLayoutItem* const item : m_items) size = size.expandedTo(item->minimumSize());
  return size;
}

// Item by item into lines; the items of a line stand on one middle.
int FlowLayout::place(const QRect& rect, bool apply) const {
  const int gap = Theme::current().unit();
  int y = rect.y();
  std::size_t next = 0;
  while (next < m_items.size()) {
    std::vector<std::size_t> line;
    int width = 0, height = 0;
    for (; next < m_items.size(); ++next) {
      if (m_items[next]->isEmpty()) continue;
      const QSize size = m_items[next]->sizeHint();
      const int with = width + (line.empty() ? 0 : gap) + size.width();
      if (!line.empty() && with > rect.width()) break;
      line.push_back(next);
      width = with;
      height = std::max(height, size.height());
    }
    if (line.empty()) break;
    if (y > rect.y()) y += gap;
    int x = rect.x();
    bool pushed = m_rightFrom < 0;
    for (const std::size_t i : line) {
      if (!pushed && static_cast<int>(i) >= m_rightFrom) {
        x += std::max(0, rect.width() - width);
        pushed = true;
      }
      const QSize size = m_items[i]->sizeHint();
      const QPoint corner(x, y + (height - size.height()) / 2);
      if (apply) m_items[i]->setGeometry(QRect(corner, size.boundedTo({rect.width(), size.height()})));
      x += size.width() + gap;
    }
    y += height;
  }
  return y - rect.y();
}

Panel::Panel(const QString& title, QWidget* parent) : QFrame(parent), m_body(new QVBoxLayout(this)) {
  setProperty("panel", true);
  if (title.isNull()) return;
  m_title = new QLabel(title);
  m_title->setProperty("type", QStringLiteral("title"));
  m_head = row({m_title, Piece::gap()});
  m_body->addLayout(m_head);
}

void Panel::setTitle(const QString& title) {
  if (m_title != nullptr) m_title->setText(title);
}

void Panel::setBare() {
  setProperty("bare", true);
}

QBoxLayout* row(const std::vector<Piece>& pieces) {
  return box(QBoxLayout::LeftToRight, pieces);
}

QBoxLayout* column(const std::vector<Piece>& pieces) {
  return box(QBoxLayout::TopToBottom, pieces);
}

FlowLayout* flow(const std::vector<QWidget*>& widgets, const std::vector<QWidget*>& right) {
  auto* const layout = new FlowLayout;
  for (QWidget* const widget : widgets) layout->addWidget(widget);
  if (!right.empty()) layout->setRightFrom(layout->count());
  for (QWidget* const widget : right) layout->addWidget(widget);
  return layout;
}

QWidget* holding(QLayout* layout) {
  auto* const widget = new QWidget;
  layout->setContentsMargins(0, 0, 0, 0);
  widget->setLayout(layout);
  return widget;
}

void padAsPage(QWidget& page) {
  page.setProperty("page", true);
  page.layout()->setContentsMargins(-1, -1, -1, -1);  // as the style tells, which follows the theme
}

QFrame* separator(Qt::Orientation orientation) {
  auto* const line = new QFrame;
  line->setProperty("line", true);
  if (orientation == Qt::Horizontal)
    line->setFixedHeight(1);
  else
    line->setFixedWidth(1);
  return line;
}

}  // namespace trv5
