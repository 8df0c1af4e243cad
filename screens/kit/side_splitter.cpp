#include "screens/kit/side_splitter.h"

#include <QFontMetrics>
#include <QSettings>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// Height of a line at the font for which the widths are told.
constexpr int kToldLine = 18;

int scaled(int width) {
  return width * QFontMetrics(Theme::current().base()).height() / kToldLine;
}

}  // namespace

SideSplitter::SideSplitter(QString name, QWidget* left, QWidget* middle, QWidget* right, int leftWidth, int rightWidth)
    : QSplitter(Qt::Horizontal), m_name(std::move(name)), m_leftWidth(leftWidth), m_rightWidth(rightWidth) {
  setChildrenCollapsible(false);
  for (QWidget* const part : {left, middle, right}) addWidget(part);
  setStretchFactor(0, 0);
  setStretchFactor(1, 1);
  setStretchFactor(2, 0);
  withTheme(*this, [this] {
    setHandleWidth(Theme::current().unit());
    layOut();
  });
  connect(this, &QSplitter::splitterMoved, this, [this] { m_moved[memoryKey()] = {sizes().first(), sizes().last()}; });
}

QString SideSplitter::memoryKey() const {
  const bool compact = Theme::current().density() == Theme::Density::Compact;
  return m_name + (compact ? QStringLiteral("/compatta") : QStringLiteral("/comoda"));
}

void SideSplitter::layOut() {
  const auto moved = m_moved.find(memoryKey());
  const auto [left, right] =
      moved == m_moved.end() ? std::pair(scaled(m_leftWidth), scaled(m_rightWidth)) : moved->second;
  setSizes({left, std::max(1, width() - left - right - 2 * handleWidth()), right});
}

void SideSplitter::resizeEvent(QResizeEvent* event) {
  QSplitter::resizeEvent(event);
  layOut();
}

void SideSplitter::fill(QWidget& screen) {
  auto* const layout = new QVBoxLayout(&screen);
  layout->addWidget(this);
  withTheme(screen, [layout] {
    const int unit = Theme::current().unit();
    layout->setContentsMargins(unit, unit, unit, unit);
  });
}

void SideSplitter::restore(const QSettings& settings) {
  for (const QString& density : {QStringLiteral("/compatta"), QStringLiteral("/comoda")}) {
    const QVariantList widths = settings.value(m_name + density).toList();
    if (widths.size() == 2) m_moved[m_name + density] = {widths[0].toInt(), widths[1].toInt()};
  }
  layOut();
}

void SideSplitter::store(QSettings& settings) const {
  for (const auto& [key, widths] : m_moved) settings.setValue(key, QVariantList{widths.first, widths.second});
}

}  // namespace trv5
