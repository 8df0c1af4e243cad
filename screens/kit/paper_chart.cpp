#include "screens/kit/paper_chart.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <utility>

#include "screens/kit/grid_delegate.h"
#include "screens/kit/ink.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// The sheet is white under every theme, so what is drawn on it has the colours of the light one.
const ChromeColours& paper() {
  return kLightColours;
}

QFontMetrics smallMetrics(bool strong = false) {
  return QFontMetrics(Theme::current().small(strong));
}

int pad() {
  return Theme::current().unit() * 2;
}

void write(QPainter& painter, const QRectF& place, int at, const QString& text, Rgb ink, bool strong = false) {
  painter.setFont(Theme::current().small(strong));
  painter.setPen(toColor(ink));
  painter.drawText(place, at | Qt::TextSingleLine | Qt::TextDontClip, text);
}

void line(QPainter& painter, double left, double right, double y, Rgb colour) {
  painter.setPen(QPen(toColor(colour), 1));
  const double at = std::round(y) + 0.5;
  painter.drawLine(QPointF(left, at), QPointF(right, at));
}

// The label of the own bar, with a point at it; it stays on the sheet.
void paintOwn(QPainter& painter, const BarChart& chart, double middle, double top, const QRectF& sheet) {
  const QFontMetrics metrics = smallMetrics(true);
  const double width = metrics.horizontalAdvance(chart.ownText) + 2.0 * metrics.height(),
               point = metrics.height() / 2.5;
  const double left = std::clamp(middle - width / 2, sheet.left(), std::max(sheet.left(), sheet.right() - width));
  const QRectF box(std::round(left) + 0.5, std::round(top + point) + 0.5, std::round(width), metrics.height() + 4);
  QPainterPath outline;
  outline.addRect(box);
  QPainterPath tip;
  tip.moveTo(middle - point, box.top());
  tip.lineTo(middle, box.top() - point);
  tip.lineTo(middle + point, box.top());
  tip.closeSubpath();
  painter.setPen(QPen(toColor(kInk), 1.5));
  painter.setBrush(toColor(chart.rare ? Verde : kPaper));
  painter.drawPath(outline.united(tip));
  write(painter, box, Qt::AlignCenter, chart.ownText, kInk, true);
}

void paintBars(QPainter& painter, const BarChart& chart, const QRectF& sheet) {
  const QFontMetrics metrics = smallMetrics();
  const double textLine = metrics.height(), base = sheet.bottom() - 3.2 * textLine - 4;
  const double top = sheet.top() + 1.5 * textLine, each = sheet.width() / static_cast<double>(chart.bars.size());
  double most = 0;
  int widest = 1;
  for (const BarChart::Bar& bar : chart.bars) {
    most = std::max(most, bar.height);
    widest = std::max(widest, metrics.horizontalAdvance(bar.value.size() > bar.label.size() ? bar.value : bar.label));
  }
  for (int quarter = 1; quarter <= 4; ++quarter)
    line(painter, sheet.left(), sheet.right(), base - (base - top) * quarter / 4, kGridLine);
  // Where not every text finds its room, every n-th is written, and the own one.
  const int every = std::max(1, static_cast<int>(std::ceil((widest + 4) / each)));
  for (std::size_t i = 0; i < chart.bars.size(); ++i) {
    const BarChart::Bar& bar = chart.bars[i];
    const double left = sheet.left() + each * static_cast<double>(i), inset = std::max(1.0, each * 0.09);
    const double height = most > 0 ? (base - top) * bar.height / most : 0;
    if (height > 0)
      painter.fillRect(QRectF(left + inset, base - height, each - 2 * inset, height),
                       toColor(bar.reaches ? paper().accent : paper().edge));
    const bool own = static_cast<int>(i) == chart.own;
    if (static_cast<int>(i) % every != 0 && !own) continue;
    write(painter, QRectF(left, base - height - textLine - 2, each, textLine), Qt::AlignCenter, bar.value,
          bar.height > 0 ? kInk : paper().text2);
    write(painter, QRectF(left, base + 4, each, textLine), Qt::AlignCenter, bar.label, kInk, own);
  }
  line(painter, sheet.left(), sheet.right(), base, paper().edge);
  if (chart.own >= 0 && static_cast<std::size_t>(chart.own) < chart.bars.size())
    paintOwn(painter, chart, sheet.left() + each * (chart.own + 0.5), base + textLine + 6, sheet);
}

// What the three signs mean, in one line at the head of the sheet.
void paintLegend(QPainter& painter, const CurveChart& chart, const QRectF& place) {
  const QFontMetrics metrics = smallMetrics();
  const double sign = metrics.height() * 1.5, gap = metrics.height() / 2.0, middle = place.center().y();
  const QString* const texts[] = {&chart.curve, &chart.expected, &chart.band};
  double width = -2 * gap;
  for (const QString* const text : texts) width += sign + gap + metrics.horizontalAdvance(*text) + 2 * gap;
  double left = std::max(place.left(), place.center().x() - width / 2);
  for (int i = 0; i < 3; ++i) {
    if (i == 2) {
      painter.setPen(toColor(paper().edge));
      painter.setBrush(toColor(paper().voidArea));
      painter.drawRect(QRectF(std::round(left) + 0.5, std::round(middle - gap) + 0.5, std::round(sign), 2 * gap));
    } else {
      painter.setPen(i == 0 ? QPen(toColor(paper().accent), 2) : QPen(toColor(paper().edge), 1.5, Qt::DashLine));
      painter.drawLine(QPointF(left, middle), QPointF(left + sign, middle));
    }
    left += sign + gap;
    write(painter, QRectF(left, place.top(), 1, place.height()), Qt::AlignLeft | Qt::AlignVCenter, *texts[i], kInk);
    left += metrics.horizontalAdvance(*texts[i]) + 2 * gap;
  }
}

// Where a step and a value stand.
struct Scales {
  QRectF plot;
  double steps = 1, most = 1;
  QPointF at(double step, double value) const {
    return {plot.left() + plot.width() * step / steps, plot.center().y() - plot.height() / 2 * value / most};
  }
};

void paintBandOfLuck(QPainter& painter, const CurveChart& chart, const Scales& scales) {
  QPolygonF band{scales.at(0, 0)};
  for (std::size_t i = 0; i < chart.points.size(); ++i)
    band << scales.at(static_cast<double>(i + 1), chart.points[i].high);
  for (std::size_t i = chart.points.size(); i-- > 0;)
    band << scales.at(static_cast<double>(i + 1), chart.points[i].low);
  painter.setPen(QPen(toColor(paper().edge), 1));
  painter.setBrush(toColor(paper().voidArea));
  painter.drawPolygon(band);
}

void paintScale(QPainter& painter, const Scales& scales, const QRectF& sheet, double labels) {
  const double textLine = smallMetrics().height();
  const int lines = std::max(1, static_cast<int>(scales.plot.height() / (5 * textLine)));
  const int step = scaleStep(scales.most, lines);
  for (int value = -step * lines; value <= step * lines; value += step) {
    if (std::abs(value) > scales.most) continue;
    const double y = scales.at(0, value).y();
    if (value != 0) line(painter, scales.plot.left(), scales.plot.right(), y, kGridLine);
    const QString text =
        value == 0 ? QStringLiteral("0")
                   : (value > 0 ? QStringLiteral("+") : QStringLiteral("\u2212")) + QString::number(std::abs(value));
    write(painter, QRectF(sheet.left(), y - textLine / 2, labels, textLine), Qt::AlignRight | Qt::AlignVCenter, text,
          paper().text2);
  }
}

void paintTicks(QPainter& painter, const CurveChart& chart, const Scales& scales, double axis) {
  const QFontMetrics metrics = smallMetrics();
  line(painter, scales.plot.left(), scales.plot.right(), axis, paper().edge);
  double free = scales.plot.left() - metrics.height();
  for (const CurveChart::Tick& tick : chart.ticks) {
    const double x = std::round(scales.at(tick.step, 0).x()) + 0.5, half = metrics.horizontalAdvance(tick.text) / 2.0;
    if (x - half < free || x + half > scales.plot.right() + pad()) continue;
    painter.setPen(toColor(paper().edge));
    painter.drawLine(QPointF(x, axis), QPointF(x, axis + 4));
    write(painter, QRectF(x - half, axis + 5, 2 * half, metrics.height()), Qt::AlignCenter, tick.text, paper().text2);
    free = x + half + metrics.height() / 2.0;
  }
}

void paintCurve(QPainter& painter, const CurveChart& chart, const QRectF& sheet) {
  const QFontMetrics metrics = smallMetrics();
  const double textLine = metrics.height(), axis = sheet.bottom() - textLine - 6;
  paintLegend(painter, chart, QRectF(sheet.left(), sheet.top(), sheet.width(), textLine));
  Scales scales;
  scales.steps = static_cast<double>(chart.points.size());
  for (const CurveChart::Point& point : chart.points)
    scales.most = std::max({scales.most, std::abs(point.value), std::abs(point.low), std::abs(point.high)});
  scales.most *= 1.05;
  const double labels = metrics.horizontalAdvance(QStringLiteral("+888"));
  scales.plot = QRectF(QPointF(sheet.left() + labels + 6, sheet.top() + 2 * textLine),
                       QPointF(sheet.right(), axis - textLine / 2));
  paintBandOfLuck(painter, chart, scales);
  paintScale(painter, scales, sheet, labels);
  painter.setPen(QPen(toColor(paper().edge), 1.5, Qt::DashLine));
  painter.drawLine(scales.at(0, 0), scales.at(scales.steps, 0));
  paintTicks(painter, chart, scales, axis);
  QPolygonF curve{scales.at(0, 0)};
  for (std::size_t i = 0; i < chart.points.size(); ++i)
    curve << scales.at(static_cast<double>(i + 1), chart.points[i].value);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(toColor(paper().accent), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(curve);
}

}  // namespace

int scaleStep(double most, int lines) {
  for (int power = 1; power < 100'000'000; power *= 10)
    for (const int step : {power, 2 * power, 5 * power})
      if (most / step < lines + 1) return step;
  return 100'000'000;
}

PaperChart::PaperChart(const QString& title, QWidget* parent) : QWidget(parent), m_title(title) {
  setAccessibleName(title);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  withTheme(*this, [this] {
    updateGeometry();
    update();
  });
}

void PaperChart::setTitle(const QString& title) {
  m_title = title;
  setAccessibleName(title);
  update();
}

void PaperChart::setEmptyText(const QString& text) {
  m_emptyText = text;
  update();
}

void PaperChart::setBars(BarChart bars) {
  m_bars = std::move(bars);
  m_curve = {};
  tell();
}

void PaperChart::setCurve(CurveChart curve) {
  m_curve = std::move(curve);
  m_bars = {};
  tell();
}

void PaperChart::clear() {
  setBars({});
}

// Who doesn't see the picture hears its figures.
void PaperChart::tell() {
  QStringList figures;
  for (const BarChart::Bar& bar : m_bars.bars) figures << bar.label + QStringLiteral(": ") + bar.value;
  if (!m_bars.ownText.isEmpty()) figures << m_bars.ownText;
  setAccessibleDescription(figures.join(QStringLiteral("; ")));
  update();
}

QSize PaperChart::sizeHint() const {
  const QFontMetrics metrics = smallMetrics();
  return {metrics.averageCharWidth() * 60, metrics.height() * 16};
}

QSize PaperChart::minimumSizeHint() const {
  const QFontMetrics metrics = smallMetrics();
  return {metrics.averageCharWidth() * 30, metrics.height() * 9};
}

void PaperChart::paintBand(QPainter& painter, const QRect& band) const {
  const ChromeColours& c = Theme::current().colours();
  painter.fillRect(band, toColor(c.heading));
  painter.fillRect(band.left(), band.bottom(), band.width(), 1, toColor(c.line));
  const QString text = smallMetrics(true).elidedText(m_title, Qt::ElideRight, band.width() - pad());
  write(painter, band, Qt::AlignCenter, text, c.headingText, true);
}

void PaperChart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect inner = rect().adjusted(1, 1, -1, -1);
  const int heading = std::min(Theme::current().heading(), inner.height());
  const QRect sheet = inner.adjusted(0, heading, 0, 0);
  painter.fillRect(rect(), toColor(Theme::current().colours().edge));
  painter.fillRect(sheet, toColor(kPaper));
  paintBand(painter, QRect(inner.topLeft(), QSize(inner.width(), heading)));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(sheet);
  const QRectF room = QRectF(sheet).adjusted(pad(), pad() / 2.0, -pad(), -pad() / 2.0);
  if (!m_bars.bars.empty()) {
    paintBars(painter, m_bars, room);
  } else if (!m_curve.points.empty()) {
    paintCurve(painter, m_curve, room);
  } else {
    painter.setFont(Theme::current().base());
    painter.setPen(toColor(paper().text2));
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
  }
}

}  // namespace trv5
