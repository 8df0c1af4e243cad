#include "screens/workbench/luck_line.h"

#include <QEvent>
#include <QPainter>

#include "screens/kit/theme.h"

namespace trv5 {
namespace {

QFont figureFont() {
  QFont font = Theme::current().small();
  font.setWeight(QFont::DemiBold);
  return font;
}

int lineHeight() {
  return QFontMetrics(figureFont()).height();
}

}  // namespace

FigureNote::FigureNote(QWidget* parent) : QLabel(parent) {
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  withTheme(*this, [this] { updateGeometry(); });
}

QString FigureNote::words() const {
  return text().left(text().indexOf(QLatin1Char(':')) + 1);
}

int FigureNote::wholeWidth() const {
  const QString quiet = words();
  return QFontMetrics(Theme::current().small()).horizontalAdvance(quiet) +
         QFontMetrics(figureFont()).horizontalAdvance(text().mid(quiet.size())) + 2;
}

QSize FigureNote::sizeHint() const {
  return {0, lineHeight()};
}

void FigureNote::paintEvent(QPaintEvent*) {
  if (text().isEmpty()) return;
  QPainter painter(this);
  const QString quiet = words();
  const auto write = [&](const QFont& font, Rgb ink, const QString& part, int left) {
    painter.setFont(font);
    painter.setPen(toColor(ink));
    const QString shown = QFontMetrics(font).elidedText(part, Qt::ElideRight, width() - left);
    painter.drawText(rect().adjusted(left, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
  };
  write(Theme::current().small(), Theme::current().colours().text2, quiet, 0);
  write(figureFont(), Theme::current().colours().text, text().mid(quiet.size()),
        QFontMetrics(Theme::current().small()).horizontalAdvance(quiet));
}

LuckLine::LuckLine(FigureNote* expected, QLabel* balance, QWidget* parent)
    : QWidget(parent), m_expected(expected), m_balance(balance) {
  expected->setParent(this);
  balance->setParent(this);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LuckLine::setTwoLines(bool two) {
  m_twoLines = two;
  updateGeometry();
  place();
}

QSize LuckLine::sizeHint() const {
  return {0, lineHeight() * (m_twoLines ? 2 : 1)};
}

void LuckLine::place() {
  // Empty, it lets the pointer through to what shares its place.
  setAttribute(Qt::WA_TransparentForMouseEvents, m_expected->text().isEmpty() && m_balance->text().isEmpty());
  const int line = lineHeight();
  if (m_twoLines) {
    m_expected->setGeometry(0, 0, width(), line);
    m_balance->setGeometry(0, line, width(), line);
    return;
  }
  const int first = std::min(m_expected->wholeWidth(), width()), gap = Theme::current().unit();
  const int rest = width() - first - gap;
  m_expected->setGeometry(0, 0, first, height());
  m_balance->setGeometry(first + gap, 0, std::max(0, rest), height());
}

bool LuckLine::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize || event->type() == QEvent::Show)
    place();
  return QWidget::event(event);
}

}  // namespace trv5
