#include "screens/kit/icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include "screens/kit/theme.h"

namespace trv5 {
namespace {

QByteArray drawing(const QString& name) {
  QFile file(QStringLiteral(":/screens/icons/%1.svg").arg(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The drawings are black; the colour of the moment takes its place.
QPixmap rendered(QByteArray drawing, const QSize& pixels, const QColor& colour) {
  QPixmap pixmap(pixels);
  pixmap.fill(Qt::transparent);
  QSvgRenderer renderer(drawing.replace("#000000", colour.name().toLatin1()));
  QPainter painter(&pixmap);
  const int side = qMin(pixels.width(), pixels.height());
  renderer.render(&painter, QRectF(0, 0, side, side));
  return pixmap;
}

QColor colourOf(IconInk ink, QIcon::Mode mode) {
  const ChromeColours& c = Theme::current().colours();
  if (mode == QIcon::Disabled) return toColor(ink == IconInk::OnAccent ? c.text2 : c.disabled);
  switch (ink) {
    case IconInk::OnAccent:
      return toColor(c.onAccent);
    case IconInk::Danger:
      return toColor(c.danger);
    case IconInk::Quiet:
      return toColor(c.text2);
    case IconInk::Text:
      break;
  }
  return toColor(mode == QIcon::Selected ? c.onAccent : c.text);
}

class LineIcon : public QIconEngine {
 public:
  LineIcon(QByteArray drawing, IconInk ink) : m_drawing(std::move(drawing)), m_ink(ink) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatio();
    painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1);
  }
  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal) override {
    const QColor colour = colourOf(m_ink, mode);
    // Room asked for beyond the square parts the picture from the caption at its right.
    if (m_last.isNull() || m_last.size() != size || m_lastColour != colour) {
      m_last = rendered(m_drawing, size, colour);
      m_lastColour = colour;
    }
    return m_last;
  }
  QIconEngine* clone() const override { return new LineIcon(m_drawing, m_ink); }

 private:
  QByteArray m_drawing;
  IconInk m_ink;
  QPixmap m_last;  // a button asks for the same picture at each painting
  QColor m_lastColour;
};

}  // namespace

QIcon icon(const QString& name, IconInk ink) {
  return QIcon(new LineIcon(drawing(name), ink));
}

QIcon programMark() {
  return QApplication::windowIcon();
}

IconLabel::IconLabel(QIcon shown, int size, QWidget* parent) : QWidget(parent), m_icon(std::move(shown)), m_size(size) {
  setFixedSize(size, size);
}

void IconLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  m_icon.paint(&painter, rect());
}

}  // namespace trv5
