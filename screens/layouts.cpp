#include "screens/layouts.h"

#include <QBoxLayout>
#include <QLabel>
#include <algorithm>

#include "screens/theme.h"

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

int FlowLayout::place(const QRect& rect, bool apply) const {
  const int gap = Theme::current().unit();
  int x = rect.x(), y = rect.y(), line = 0;
  for (QLayoutItem* const item : m_items) {
    if (item->isEmpty()) continue;
    const QSize size = item->sizeHint();
    if (x > rect.x() && x + size.width() > rect.x() + rect.width()) {
      x = rect.x();
      y += line + gap;
      line = 0;
    }
    if (apply) item->setGeometry(QRect(QPoint(x, y), size));
    x += size.width() + gap;
    line = std::max(line, size.height());
  }
  return y + line - rect.y();
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

FlowLayout* flow(const std::vector<QWidget*>& widgets) {
  auto* const layout = new FlowLayout;
  for (QWidget* const widget : widgets) layout->addWidget(widget);
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
