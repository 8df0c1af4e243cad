// The screens inside the shell's area: those that fill it, and the small ones above them.
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QShortcut>
#include <algorithm>
#include <cstdlib>

#include "screens/kit/theme.h"
#include "screens/shell/Container.h"

namespace trv5 {
namespace {

constexpr double kUsualPoints = 10.5;
constexpr int kEdgeGap = 8;  // of a small screen at the right edge of the area
// Properties of the frame of a small screen: the size told for the usual font; the one last given to the frame; whether
// it is to have its natural size again.
constexpr char kNaturalSize[] = "naturalSize", kFittedSize[] = "fittedSize", kToFit[] = "toFit";

bool standsAtRight(const QMdiSubWindow& window, int areaWidth) {
  return window.x() > 0 && window.x() + window.width() >= areaWidth - kEdgeGap;
}
}  // namespace

// A small screen at the right edge stays there, none is left outside an area that became smaller.
void ContainerScreen::keepInSight(int widthBefore) {
  for (QMdiSubWindow* const window : m_area->subWindowList()) {
    if (!window->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) continue;
    const int right = std::max(0, m_area->width() - window->width());
    const int bottom = std::max(0, m_area->height() - window->height());
    const bool atRight = standsAtRight(*window, widthBefore);
    const QPoint place(atRight ? std::max(0, right - kEdgeGap) : std::min(window->x(), right),
                       std::min(window->y(), bottom));
    if (place != window->pos()) window->move(place);
  }
}

// Natural sizes are told for the usual font.
QSize ContainerScreen::naturalSize(const QMdiSubWindow& window) const {
  const QSize told = window.property(kNaturalSize).toSize();
  const QSize natural =
      told.isValid() ? told * std::max(1.0, Theme::current().basePoints() / kUsualPoints) : window.sizeHint();
  return natural.boundedTo(m_area->size());
}

void ContainerScreen::noteFittedWindows() {
  for (QMdiSubWindow* const window : m_area->subWindowList())
    if (window->size() == window->property(kFittedSize).toSize()) window->setProperty(kToFit, true);
}

// Small screens grow and shrink with the font, unless the user gave them a size.
void ContainerScreen::fitSmallWindows() {
  for (QMdiSubWindow* const window : m_area->subWindowList()) {
    if (!window->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) continue;
    if (!window->property(kToFit).toBool()) continue;
    const bool atRight = standsAtRight(*window, m_area->width());
    window->resize(naturalSize(*window));
    window->setProperty(kFittedSize, window->size());
    window->setProperty(kToFit, false);
    if (atRight) window->move(std::max(0, m_area->width() - kEdgeGap - window->width()), window->y());
  }
  keepInSight(m_area->width());
}

QMdiSubWindow* ContainerScreen::windowOf(const QWidget& screen) const {
  return qobject_cast<QMdiSubWindow*>(screen.parentWidget());
}

void ContainerScreen::place(QWidget& screen, const ScreenEntry& entry) {
  auto* const window = new QMdiSubWindow;
  window->setAttribute(Qt::WA_DeleteOnClose, false);
  window->installEventFilter(this);
  m_area->addSubWindow(window);
  window->setWidget(&screen);  // once for all: each other parent would cost the whole screen its looks
  if (entry.place == Place::Fills) {
    window->setWindowFlags(Qt::SubWindow | Qt::FramelessWindowHint);
    window->showMaximized();
    return;
  }
  window->setWindowFlags(Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                         Qt::WindowStaysOnTopHint);
  window->setProperty(kNaturalSize, entry.size);
  const QSize size = naturalSize(*window);
  const int left = entry.atRight ? m_area->width() - size.width() - kEdgeGap : (m_area->width() - size.width()) / 2;
  window->resize(size);
  window->move(std::max(0, left), std::max(0, (m_area->height() - size.height()) / 3));
  auto* const escape = new QShortcut(QKeySequence(Qt::Key_Escape), window);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, window, &QMdiSubWindow::close);
  window->show();
  window->setProperty(kFittedSize, window->size());
  if (auto* const own = qobject_cast<Screen*>(&screen))
    connect(own, &Screen::naturalSizeChanged, window, [this, window] { refit(*window); });
}

// Where it stood in the middle it stays there.
void ContainerScreen::refit(QMdiSubWindow& window) {
  if (window.size() != window.property(kFittedSize).toSize()) return;
  const bool centred = std::abs(2 * window.x() + window.width() - m_area->width()) <= 2;
  window.setProperty(kToFit, true);
  fitSmallWindows();
  if (centred)
    window.move((m_area->width() - window.width()) / 2, std::max(0, (m_area->height() - window.height()) / 3));
}

void ContainerScreen::bringToFront(QWidget& screen) {
  QMdiSubWindow* const window = windowOf(screen);
  if (window == nullptr) return;
  window->show();
  m_area->setActiveSubWindow(window);
}

void ContainerScreen::takeAway(QWidget& screen) {
  if (QMdiSubWindow* const window = windowOf(screen)) {
    window->removeEventFilter(this);
    window->hide();
  }
}

}  // namespace trv5
