#include "screens/kit/state_mark.h"

#include <QEvent>
#include <QPainter>

#include "screens/kit/icons.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// Quiet in both themes, and of the small type.
void paintSmall(QPainter& painter, const QRect& place, const QString& text, Qt::Alignment at) {
  painter.setFont(Theme::current().small());
  painter.setPen(toColor(Theme::current().colours().text2));
  painter.drawText(place, static_cast<int>(at | Qt::AlignVCenter) | Qt::TextSingleLine, text);
}

}  // namespace

StateMark::StateMark(const QString& widest, QWidget* parent)
    : QLabel(parent), m_widest(widest), m_clock(icon(QStringLiteral("clock"), IconInk::Quiet)) {
  withTheme(*this, [this] { updateGeometry(); });
}

int StateMark::iconSize() {
  return std::max(16, QFontMetrics(Theme::current().small()).height());
}

void StateMark::takeRest() {
  m_rest = true;
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

int StateMark::wholeWidth() const {
  return iconSize() + 4 + QFontMetrics(Theme::current().small()).horizontalAdvance(m_widest) + 2;
}

QSize StateMark::sizeHint() const {
  const QFontMetrics metrics(Theme::current().small());
  const int least = text().isEmpty() ? 0 : iconSize();
  return {m_rest ? least : wholeWidth(), std::max(iconSize(), metrics.height())};
}

void StateMark::paintEvent(QPaintEvent*) {
  if (text().isEmpty()) return;
  QPainter painter(this);
  const int size = iconSize(), whole = wholeWidth();
  const int left = std::max(0, width() - (width() < whole ? size : whole));
  m_clock.paint(&painter, QRect(left, (height() - size) / 2, size, size));
  if (width() >= whole) paintSmall(painter, rect().adjusted(left + size + 4, 0, 0, 0), text(), Qt::AlignLeft);
}

SmallNote::SmallNote(Qt::TextElideMode gives, Qt::Alignment at, QWidget* parent) : QLabel(parent), m_gives(gives) {
  setAlignment(at);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  withTheme(*this, [this] { updateGeometry(); });
}

QSize SmallNote::sizeHint() const {
  return {0, QFontMetrics(Theme::current().small()).height()};
}

void SmallNote::paintEvent(QPaintEvent*) {
  if (text().isEmpty()) return;
  QPainter painter(this);
  const QFontMetrics metrics(Theme::current().small());
  paintSmall(painter, rect(), metrics.elidedText(text(), m_gives, width()), alignment() & Qt::AlignHorizontal_Mask);
}

NoteAndMark::NoteAndMark(SmallNote* note, StateMark* mark, QWidget* parent)
    : QWidget(parent), m_note(note), m_mark(mark) {
  note->setParent(this);
  mark->setParent(this);
  mark->takeRest();
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void NoteAndMark::keepPlace() {
  m_keepsPlace = true;
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize NoteAndMark::sizeHint() const {
  const QSize mark = m_mark->sizeHint();
  return {m_keepsPlace ? m_mark->wholeWidth() : mark.width(), mark.height()};
}

bool NoteAndMark::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize || event->type() == QEvent::Show) {
    const int mark = m_mark->text().isEmpty() ? 0 : std::min(m_mark->wholeWidth(), width());
    const int gap = mark == 0 ? 0 : Theme::current().unit();
    m_mark->setGeometry(width() - mark, 0, mark, height());
    m_note->setGeometry(0, 0, std::max(0, width() - mark - gap), height());
  }
  return QWidget::event(event);
}

}  // namespace trv5
