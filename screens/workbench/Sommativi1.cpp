#include "screens/workbench/Sommativi1.h"

#include <QMdiSubWindow>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QVBoxLayout>

#include "screens/kit/page_pair.h"
#include "screens/kit/theme.h"
#include "screens/workbench/cases.h"
#include "screens/workbench/forecasts.h"
#include "screens/workbench/reference_bar.h"
#include "screens/workbench/search.h"
#include "screens/workbench/selections.h"
#include "screens/workbench/statistics.h"

namespace trv5 {
namespace {

// From this width on nothing need stand behind a tab: that of a window of 1600 pixels less the shell's folded panel.
constexpr int kWide = 1600 - 52;
// From here on the bars of the statistics have their told width beside all tabs of the forecasts.
constexpr int kRoomy = 1700;

QSplitter* splitterOf(Qt::Orientation orientation, std::initializer_list<QWidget*> parts, int growing) {
  auto* const splitter = new QSplitter(orientation);
  splitter->setChildrenCollapsible(false);
  for (QWidget* const part : parts) splitter->addWidget(part);
  splitter->setStretchFactor(growing, 1);
  return splitter;
}

// Sizes of the screen are meant at the base font: a larger one needs more room.
int scaled(int pixels) {
  const bool compact = Theme::current().density() == Theme::Density::Compact;
  return pixels * QFontMetrics(Theme::current().base()).height() / (compact ? 18 : 19);
}

}  // namespace

Sommativi1Screen::Sommativi1Screen(Workbench& form)
    : Screen(form),
      m_w(form),
      m_bar(new WorkbenchReferenceBar(form)),
      m_pages(new PagePair(form.SSTab1, {new WorkbenchSelections(form), new WorkbenchCases(form)}, true)),
      m_search(new WorkbenchSearch(form)),
      m_forecasts(new WorkbenchForecasts(form)),
      m_statistics(new WorkbenchStatistics(form)) {
  m_top = splitterOf(Qt::Horizontal, {m_pages, m_search}, 1);
  m_bottom = splitterOf(Qt::Horizontal, {m_forecasts, m_statistics}, 0);
  m_rows = splitterOf(Qt::Vertical, {m_top, m_bottom}, 0);
  m_rows->setStretchFactor(1, 1);
  m_handles = {{m_rows, "righe"}, {m_top, "sopra"}, {m_pages->splitter(), "pagine"}, {m_bottom, "sotto"}};
  for (const Handle& handle : m_handles)
    connect(handle.splitter, &QSplitter::splitterMoved, this,
            [this, handle] { m_moved[memoryKey(handle.name)] = handle.splitter->sizes(); });

  // With the usual fonts all of it fits; with a large one in a small window it scrolls rather than being cut.
  m_scroll = new QScrollArea;
  m_scroll->setFrameShape(QFrame::NoFrame);
  m_scroll->setFocusPolicy(Qt::NoFocus);
  m_scroll->setWidgetResizable(true);
  m_scroll->setWidget(new QWidget);
  m_scroll->viewport()->setAutoFillBackground(false);
  m_scroll->widget()->setAutoFillBackground(false);
  auto* const whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(m_scroll);
  auto* const parts = new QVBoxLayout(m_scroll->widget());
  parts->setSpacing(0);
  parts->addWidget(m_bar);
  parts->addWidget(m_rows, 1);
  connect(m_forecasts, &WorkbenchForecasts::tabInFront, m_search, &WorkbenchSearch::followTab);
  // Once all parts have the new font: what they need decides what the handles can do.
  const auto again = [this] {
    m_laidOut.clear();
    layOut();
  };
  connect(&Theme::current(), &Theme::changed, this, again, Qt::QueuedConnection);
  withTheme(*this, [parts] {
    const int unit = Theme::current().unit();
    parts->setContentsMargins(unit, 0, unit, unit);
  });
  setFocusPolicy(Qt::ClickFocus);  // no ring before the first key; Tab then starts at the top
  buildKeys();
  orderTabs();
}

QString Sommativi1Screen::memoryKey(const char* splitter) const {
  const bool compact = Theme::current().density() == Theme::Density::Compact;
  return QStringLiteral("Sommativi1/%1%2/%3")
      .arg(compact ? QStringLiteral("compatta") : QStringLiteral("comoda"),
           m_pages->sideBySide() ? QStringLiteral("Larga") : QString(), QLatin1String(splitter));
}

void Sommativi1Screen::restore(const QSettings& settings) {
  for (const QString& name : settings.allKeys()) {
    if (!name.startsWith(QStringLiteral("Sommativi1/"))) continue;
    QList<int> sizes;
    for (const QVariant& size : settings.value(name).toList()) sizes.append(size.toInt());
    if (sizes.size() == 2) m_moved[name] = sizes;
  }
  m_laidOut.clear();
  layOut();
}

void Sommativi1Screen::store(QSettings& settings) const {
  for (auto it = m_moved.begin(); it != m_moved.end(); ++it) {
    QVariantList sizes;
    for (const int size : it.value()) sizes.append(size);
    settings.setValue(it.key(), sizes);
  }
}

QList<int> Sommativi1Screen::defaultSizes(const char* splitter) const {
  const auto pair = [](int first, int total) { return QList<int>{first, std::max(1, total - first)}; };
  const bool wide = m_pages->sideBySide();
  const QLatin1String name(splitter);
  const QSize whole = size().expandedTo(m_scroll->widget()->minimumSizeHint());
  const int inside = whole.width() - 3 * Theme::current().unit();
  if (name == QLatin1String("righe")) {
    const int high = whole.height() - m_bar->height() - 2 * Theme::current().unit();
    // A low window of many columns has its search in more lines.
    if (wide && high < scaled(900)) return pair(high * 63 / 100, high);
    return pair(wide ? high * 54 / 100 : std::min(high * 57 / 100, high - scaled(292)), high);
  }
  if (name == QLatin1String("sopra")) {
    // The candidates want the width of their buttons in one line.
    const int left = wide ? std::min(scaled(560 + 570 + 8), inside - scaled(600))
                          : std::max(scaled(540), std::min(scaled(592), inside * 45 / 100));
    return pair(left, inside);
  }
  if (name == QLatin1String("pagine")) return pair(scaled(560), m_pages->width());
  // The forecasts want the width of their tabs in one line.
  const int right = wide ? std::min(scaled(560), inside - scaled(1085)) : std::min(scaled(196), inside * 15 / 100);
  return pair(inside - right, inside);
}

void Sommativi1Screen::layOut() {
  const bool wide = width() >= scaled(kWide);
  m_bar->setWide(wide);
  m_pages->setSideBySide(wide);
  m_forecasts->setWide(wide);
  m_statistics->setWide(wide, wide && width() >= scaled(kRoomy));
  const QString now = memoryKey("");
  const bool other = now != m_laidOut;
  m_laidOut = now;
  for (const Handle& handle : m_handles) {
    const auto moved = m_moved.find(memoryKey(handle.name));
    // What the user set follows the window as Qt shares it out; it is put back when its layout comes back.
    if (moved == m_moved.end())
      handle.splitter->setSizes(defaultSizes(handle.name));
    else if (other)
      handle.splitter->setSizes(moved.value());
  }
}

QSize Sommativi1Screen::minimumSizeHint() const {
  return {640, 480};
}

void Sommativi1Screen::resizeEvent(QResizeEvent* event) {
  Screen::resizeEvent(event);
  // On its way to the full size of the shell's area a window has others.
  const auto* const frame = qobject_cast<const QMdiSubWindow*>(parentWidget());
  if (frame == nullptr || frame->isMaximized()) layOut();
}

}  // namespace trv5
