#include "screens/shell/rail_button.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "screens/kit/icons.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

constexpr int kIcon = 24;

}  // namespace

RailButton::RailButton(const QString& iconName, QWidget* parent) : QToolButton(parent) {
  setIcon(trv5::icon(iconName));
  setFocusPolicy(Qt::TabFocus);  // a click leaves the keys to the screen in front
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void RailButton::setWide(bool wide) {
  m_wide = wide;
  updateGeometry();
  update();
}

void RailButton::setMark(Mark mark) {
  if (m_mark == mark) return;
  m_mark = mark;
  update();
}

QSize RailButton::sizeHint() const {
  const int height = std::max(44, Theme::current().control() + 14);
  if (!m_wide) return {52, height};
  const QFontMetrics metrics(m_large ? Theme::current().large() : font());
  return {52 + metrics.horizontalAdvance(text()) + 12, height};
}

// In a low window with a large font the buttons draw together before anything is cut.
QSize RailButton::minimumSizeHint() const {
  const QSize hint = sizeHint();
  const QFontMetrics metrics(m_large ? Theme::current().large() : font());
  return {hint.width(), std::min(hint.height(), std::max(kIcon, metrics.height()) + 8)};
}

void RailButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    click();
  else
    QToolButton::keyPressEvent(event);
}

void RailButton::paintEvent(QPaintEvent*) {
  const ChromeColours& c = Theme::current().colours();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRect inside = rect().adjusted(m_wide ? 8 : 6, 3, m_wide ? -8 : -6, -3);
  if (m_mark == Mark::Current) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(toColor(c.panel));
    painter.drawRoundedRect(inside, 4, 4);
    painter.fillRect(QRect(0, inside.top() + 2, 3, inside.height() - 4), toColor(c.accent));
  } else if (underMouse() && isEnabled()) {
    painter.setPen(toColor(c.edge));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(inside).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  }
  const QRect place(m_wide ? 16 : (width() - kIcon) / 2, (height() - kIcon) / 2, kIcon, kIcon);
  icon().paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
  if (m_mark == Mark::Open) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(toColor(c.text));
    painter.drawEllipse(QPointF(place.right() + 5, place.center().y() + 0.5), 2.5, 2.5);
  }
  if (m_wide) {
    painter.setFont(m_large ? Theme::current().large() : font());
    painter.setPen(toColor(isEnabled() ? c.text : c.disabled));
    painter.drawText(rect().adjusted(52, 0, -4, 0), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, text());
  }
  if (hasFocus()) {
    painter.setPen(QPen(toColor(c.accent), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect().adjusted(2, 2, -2, -2), 4, 4);
  }
}

}  // namespace trv5
