#include "screens/workbench/last_draw_label.h"

#include <QPainter>

#include "screens/kit/bindings.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

constexpr int kChipPadding = 6;

QFont fontOf(bool chip) {
  return Theme::current().small(chip);
}

}  // namespace

LastDrawLabel::LastDrawLabel(Workbench& w, QWidget* parent) : ClickLabel(parent), m_w(w) {
  bind(*this, w.LblUltima);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  withTheme(*this, [this] { updateGeometry(); });
}

bool LastDrawLabel::isChip() const {
  return m_w.EstrazioneRiferimento < m_w.archive.UltimaEstrazione();
}

void LastDrawLabel::setShort(bool isShort) {
  if (m_short == isShort) return;
  m_short = isShort;
  updateGeometry();
  update();
}

QString LastDrawLabel::shownText() const {
  return m_short ? text().section(QStringLiteral(" · "), 1) : text();
}

QSize LastDrawLabel::sizeHint() const {
  return {widthOf(shownText()), std::max(isChip() ? 22 : 0, QFontMetrics(fontOf(isChip())).height() + 4)};
}

int LastDrawLabel::widthOf(const QString& text) const {
  return QFontMetrics(fontOf(isChip())).horizontalAdvance(text) + (isChip() ? 2 * kChipPadding : 0);
}

void LastDrawLabel::paintEvent(QPaintEvent*) {
  const ChromeColours& c = Theme::current().colours();
  const bool chip = isChip();
  QPainter painter(this);
  painter.setFont(fontOf(chip));
  if (chip || hasFocus()) {
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal line = hasFocus() ? 2 : 1;
    painter.setPen(QPen(toColor(c.accent), line));
    if (chip) painter.setBrush(toColor(c.field));
    painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), 4, 4);
  }
  painter.setPen(toColor(chip ? c.accent : c.text2));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, shownText());
}

}  // namespace trv5
