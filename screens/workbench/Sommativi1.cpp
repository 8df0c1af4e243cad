#include "screens/workbench/Sommativi1.h"

#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "cases/print_header.h"
#include "screens/kit/lazy_page.h"
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
// From here on the sentence on luck has its width beside the buttons of the foot of Ricerca.
constexpr int kSentence = 1850;

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
      m_selections(new WorkbenchSelections(form)),
      m_pages(new PagePair(form.SSTab1, {m_selections, new WorkbenchCases(form)}, true)),
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
  connect(&Theme::current(), &Theme::changed, this, &Sommativi1Screen::layOutLater);
  withTheme(*this, [parts] {
    const int unit = Theme::current().unit();
    parts->setContentsMargins(unit, 0, unit, unit);
  });
  setFocusPolicy(Qt::ClickFocus);  // no ring before the first key; Tab then starts at the top
  buildKeys();
  orderTabs();
  tellKeys();
  followPages();
}

// A page made later has its place in the order of Tab, its keys and its needs.
void Sommativi1Screen::followPages() {
  for (auto* const page : findChildren<LazyPage*>())
    connect(page, &LazyPage::made, this, [this] {
      orderTabs();
      tellKeys();
      layOutLater();
    });
}

// What isn't in sight is made when the first picture stands, a page at a time, so that no key waits for all of them.
void Sommativi1Screen::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  if (std::exchange(m_painted, true)) return;
  QTimer::singleShot(0, this, &Sommativi1Screen::makeNextPage);
}

void Sommativi1Screen::makeNextPage() {
  if (makeOnePage(*this)) QTimer::singleShot(0, this, &Sommativi1Screen::makeNextPage);
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
  m_laidOutFor.clear();
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
    const int high = whole.height() - m_bar->height() - 2 * Theme::current().unit() - m_rows->handleWidth();
    const int usual = wide ? high * 54 / 100 : std::min(high * 57 / 100, high - scaled(292));
    // The lower row keeps room for the scroll bar of a grid, which comes and goes.
    const int most = high - std::max(m_bottom->minimumSizeHint().height(), scaled(246));
    return pair(std::min(std::max(usual, leastTop(wide)), most), high);
  }
  if (name == QLatin1String("sopra")) {
    // The candidates want the width of their buttons in one line.
    const int left = wide ? std::min(scaled(560 + 570 + 8), inside - scaled(600))
                          : std::max(scaled(540), std::min(scaled(572), inside * 45 / 100));
    return pair(std::max(left, m_pages->minimumSizeHint().width()), inside);
  }
  if (name == QLatin1String("pagine"))
    return pair(std::max(scaled(560), m_pages->splitter()->widget(0)->minimumSizeHint().width()), m_pages->width());
  // The forecasts want the width of their tabs in one line.
  const int right = wide ? std::min(scaled(560), inside - scaled(1160)) : std::min(scaled(196), inside * 15 / 100);
  return pair(inside - right, inside);
}

// What the upper row is too low without: all of Selezioni behind its tab; beside the pages, where the search stands in
// more lines, some candidates.
int Sommativi1Screen::leastTop(bool wide) const {
  constexpr int kCandidates = 8;
  if (wide) return m_search->heightFor(kCandidates, defaultSizes("sopra").last());
  const QWidget& page = *m_selections;
  const int tabs = m_pages->minimumSizeHint().height() - page.parentWidget()->minimumSizeHint().height();
  return m_selections->wholeHeight() + tabs + Theme::current().unit();  // the pane of the tabs has a unit of its own
}

bool Sommativi1Screen::layOut() {
  const bool wide = width() >= scaled(kWide);
  m_bar->setWide(wide);
  m_pages->setSideBySide(wide);
  m_search->setNarrow(wide && width() < scaled(kSentence));
  m_forecasts->setWide(wide);
  m_statistics->setWide(wide, wide && width() >= scaled(kRoomy));
  // Handles are set from the outside in, each splitter at its own new size: pages that have just changed places would
  // otherwise share out the size of before.
  m_scroll->widget()->layout()->activate();
  const QSize top = m_top->minimumSizeHint(), bottom = m_bottom->minimumSizeHint();
  const QList<int> now = {
      width(),         height(),         wide,           static_cast<int>(Theme::current().density()),
      top.width(),     top.height(),     bottom.width(), bottom.height(),
      m_rows->width(), m_rows->height(), leastTop(wide)};
  const bool settled = std::exchange(m_laidOutFor, now) == now;
  for (const Handle& handle : m_handles) {
    if (QLayout* const around = handle.splitter->parentWidget()->layout()) around->activate();
    const auto moved = m_moved.find(memoryKey(handle.name));
    const QList<int> wanted = moved == m_moved.end() ? defaultSizes(handle.name) : moved.value();
    // A part that has only now become smaller may have held a handle back.
    if (!settled || handle.splitter->sizes() != wanted) handle.splitter->setSizes(wanted);
  }
  return !settled;
}

// Again until the parts have settled: how much they need depends on their widths.
void Sommativi1Screen::layOutLater() {
  if (m_layOutAsked) return;
  m_layOutAsked = true;
  const auto later = [this] {
    m_layOutAsked = false;
    if (layOut()) layOutLater();
  };
  QMetaObject::invokeMethod(this, later, Qt::QueuedConnection);
}

std::vector<std::string> Sommativi1Screen::printHeader(const GridControl& grid) const {
  std::vector<std::string> lines = Screen::printHeader(grid);
  for (std::string& line : methodHeader(m_w, m_w.shell().now())) lines.push_back(std::move(line));
  return lines;
}

QSize Sommativi1Screen::minimumSizeHint() const {
  return {640, 480};
}

void Sommativi1Screen::resizeEvent(QResizeEvent* event) {
  Screen::resizeEvent(event);
  if (!isVisible()) return;  // on its way into the shell's area
  layOut();
  layOutLater();
}

void Sommativi1Screen::showEvent(QShowEvent* event) {
  Screen::showEvent(event);
  layOut();
  layOutLater();
}

}  // namespace trv5
