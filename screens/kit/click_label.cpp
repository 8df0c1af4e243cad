#include "screens/kit/click_label.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>
#include <algorithm>

#include "screens/kit/theme.h"

namespace trv5 {

ClickLabel::ClickLabel(QWidget* parent) : QLabel(parent) {
  setFocusPolicy(Qt::TabFocus);
  setCursor(Qt::PointingHandCursor);
}

void ClickLabel::setSwatch(Rgb colour) {
  m_swatch = colour;
  updateGeometry();
  update();
}

void ClickLabel::setCaptionShown(bool shown) {
  m_captionShown = shown;
  updateGeometry();
  update();
}

int ClickLabel::swatchSize() const {
  return fontMetrics().ascent() - 1;
}

QSize ClickLabel::sizeHint() const {
  if (!m_swatch) return QLabel::sizeHint().expandedTo({0, fontMetrics().height() + 4});
  const int caption = m_captionShown ? fontMetrics().horizontalAdvance(text()) + 6 : 0;
  // A swatch alone is still as large as the smallest control.
  return {std::max(24, swatchSize() + 6 + caption), std::max(24, fontMetrics().height() + 4)};
}

void ClickLabel::paintEvent(QPaintEvent* event) {
  if (!m_swatch) {
    QLabel::paintEvent(event);
  } else {
    QPainter painter(this);
    const int size = swatchSize();
    const int left = m_captionShown ? 3 : (width() - size) / 2;
    const QRect square(left, (height() - size) / 2, size, size);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(toColor(*m_swatch));
    painter.drawRoundedRect(square.adjusted(0, 0, -1, -1), 2, 2);
    if (m_captionShown) {
      painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
      painter.drawText(rect().adjusted(left + size + 6, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, text());
    }
  }
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->pos())) Q_EMIT clicked();
}

void ClickLabel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    Q_EMIT clicked();
  else
    QLabel::keyPressEvent(event);
}

void ClickLabel::focusInEvent(QFocusEvent* event) {
  QLabel::focusInEvent(event);
  update();
}

void ClickLabel::focusOutEvent(QFocusEvent* event) {
  QLabel::focusOutEvent(event);
  update();
}

QSize ElidedLabel::sizeHint() const {
  return {fontMetrics().horizontalAdvance(text()) + 18, Theme::current().control()};
}

QSize ElidedLabel::minimumSizeHint() const {
  return {120, Theme::current().control()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  painter.setPen(palette().color(QPalette::Text));
  const QRect inside = rect().adjusted(9, 0, -9, 0);
  painter.drawText(inside, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                   fontMetrics().elidedText(text(), Qt::ElideMiddle, inside.width()));
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
  }
  return QLabel::event(event);
}

}  // namespace trv5
