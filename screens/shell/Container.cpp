#include "screens/shell/Container.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QSettings>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWindow>
#include <QWindowStateChangeEvent>
#include <algorithm>

#include "screens/kit/grid_view.h"
#include "screens/kit/icons.h"
#include "screens/kit/theme.h"
#include "screens/shell/rail_button.h"

namespace trv5 {
namespace {

constexpr int kWideRail = 304, kNarrowRail = 52;
// The area keeps this much beside an open panel; where it can't, the panel lies over it.
constexpr int kLeastArea = 1228;

bool hasShortcut(const QWidget* screen, const QKeySequence& key) {
  if (screen == nullptr) return false;
  const auto shortcuts = screen->findChildren<QShortcut*>();
  const auto actions = screen->findChildren<QAction*>();
  return std::any_of(shortcuts.begin(), shortcuts.end(), [&](const QShortcut* s) { return s->key() == key; }) ||
         std::any_of(actions.begin(), actions.end(), [&](const QAction* a) { return a->shortcut() == key; });
}
}  // namespace

ContainerScreen::ContainerScreen(Container& form)
    : m_form(form), m_kit(form), m_centre(new QWidget), m_rail(new QWidget(m_centre)), m_area(new QMdiArea(m_centre)) {
  setObjectName(qs(form.name()));
  setWindowTitle(qs(form.title()));
  setMinimumSize(1024, 600);
  m_form.titleChanged = [this] {
    setWindowTitle(qs(m_form.title()));
    showTitle();
  };
  setCentralWidget(m_centre);
  m_centre->installEventFilter(this);
  buildArea();
  buildRail();
  buildStatusBar();
  buildKeys();
  connect(&m_draws->gridModel(), &GridModel::synced, this, &ContainerScreen::showTitle);
  connect(&Theme::current(), &Theme::aboutToChange, this, &ContainerScreen::noteFittedWindows);
  connect(&Theme::current(), &Theme::changed, this, [this] {
    m_area->setBackground(toColor(Theme::current().colours().voidArea));
    fitChip();
    layoutParts();
    // Once the screens have laid out their parts anew: their least sizes are others then.
    QMetaObject::invokeMethod(this, &ContainerScreen::fitSmallWindows, Qt::QueuedConnection);
  });
  setWide(true);
  Theme::edit().dressWindow(*this);
}

ContainerScreen::~ContainerScreen() {
  m_form.titleChanged = {};
}

void ContainerScreen::buildArea() {
  m_area->setFrameShape(QFrame::NoFrame);
  m_area->setBackground(toColor(Theme::current().colours().voidArea));
  m_area->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(m_area, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
    if (window != nullptr && window->widget() != nullptr) Q_EMIT activatedByUser(window->widget()->objectName());
  });

  m_empty = new QWidget(m_area);
  auto* const picture = new IconLabel(icon(QStringLiteral("workbench"), IconInk::Quiet), 56);
  QLabel* const title = Kit::text(QStringLiteral("Nessuna finestra aperta"), Type::Lead);
  QLabel* const hint = Kit::text(
      QStringLiteral(
          "Premi <b>TRV5</b> per costruire un metodo, <b>Gestione archivio</b> per aggiornare le estrazioni."),
      Type::Hint);
  for (QLabel* const label : {title, hint}) label->setAlignment(Qt::AlignCenter);
  auto* const layout = new QVBoxLayout(m_empty);
  layout->addStretch();
  layout->addWidget(picture, 0, Qt::AlignHCenter);
  for (QLabel* const label : {title, hint}) layout->addWidget(label);
  layout->addStretch();
}

void ContainerScreen::buildKeys() {
  const auto key = [this](const QKeySequence& sequence, auto run) -> QAction* {
    auto* const action = new QAction(this);
    action->setShortcut(sequence);
    connect(action, &QAction::triggered, this, run);
    addAction(action);
    return action;
  };
  key(Qt::Key_F1, [this] { Q_EMIT helpWanted(); });
  key(Qt::Key_F4, [this] { toggleRail(); });
  key(Qt::Key_F11, [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
  key(Qt::CTRL | Qt::Key_Tab, [this] { Q_EMIT nextScreenWanted(); });
  key(Qt::CTRL | Qt::Key_Plus, [] { Theme::edit().stepBase(0.5); });
  key(Qt::CTRL | Qt::Key_Equal, [] { Theme::edit().stepBase(0.5); });
  key(Qt::CTRL | Qt::Key_Minus, [] { Theme::edit().stepBase(-0.5); });
  m_resetBase = key(Qt::CTRL | Qt::Key_0, [] { Theme::edit().setBasePoints(0); });
}

void ContainerScreen::toggleRail() {
  if (m_wide) return foldRail();
  (m_anyOpen ? m_wideOpen : m_wideEmpty) = true;
  m_focusBefore = focusWidget();
  setWide(true);
  m_buttons.front().button->setFocus(Qt::ShortcutFocusReason);
  if (m_anyOpen) qApp->installEventFilter(this);
}

// The focus goes back to where it was, unless it has left the panel already.
void ContainerScreen::foldRail() {
  if (!m_wide) return;
  qApp->removeEventFilter(this);
  (m_anyOpen ? m_wideOpen : m_wideEmpty) = false;
  const QWidget* const focused = focusWidget();
  const bool inside = focused != nullptr && m_rail->isAncestorOf(focused);
  setWide(false);
  if (inside && m_focusBefore != nullptr) m_focusBefore->setFocus(Qt::OtherFocusReason);
  m_focusBefore = nullptr;
}

void ContainerScreen::setWork(std::function<QStringList()> work) {
  m_work = std::move(work);
  showTitle();
}

// Only the desktop's title tells more: the window's own stays the form's.
void ContainerScreen::showTitle() {
  QStringList parts = {windowTitle()};
  if (m_work) parts += m_work();
  parts.removeAll(QString());
  if (QWindow* const window = windowHandle())
    if (const QString title = parts.join(QStringLiteral(" · ")); window->title() != title) window->setTitle(title);
}

// With its frame the window stays on the desktop, so that the status bar is in sight.
void ContainerScreen::fitDesktop() {
  if (isMaximized() || isFullScreen()) return;
  const QSize most = screen()->availableSize() - (frameGeometry().size() - size());
  if (height() > most.height() || width() > most.width()) {
    m_toFit = false;
    resize(size().boundedTo(most));
  }
  const QRect desktop = screen()->availableGeometry(), frame = frameGeometry();
  if (!desktop.contains(frame))
    move(std::clamp(frame.x(), desktop.x(), std::max(desktop.x(), desktop.right() + 1 - frame.width())),
         std::clamp(frame.y(), desktop.y(), std::max(desktop.y(), desktop.bottom() + 1 - frame.height())));
}

void ContainerScreen::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange) return;
  if (static_cast<QWindowStateChangeEvent*>(event)->oldState() & (Qt::WindowMaximized | Qt::WindowFullScreen))
    m_toFit = true;
}

void ContainerScreen::setWide(bool wide) {
  m_wide = wide;
  for (RailButton* const button : m_otherButtons) button->setWide(wide);
  for (const ScreenButton& entry : m_buttons) entry.button->setWide(wide);
  m_wideOnly->setVisible(wide);
  m_filler->setVisible(!wide);
  m_bottom->setDirection(wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  layoutParts();
}

int ContainerScreen::railWidth() const {
  return m_wide ? std::max(kWideRail, m_rail->minimumSizeHint().width()) : kNarrowRail;
}

void ContainerScreen::layoutParts() {
  const QSize size = m_centre->size();
  const int rail = railWidth();
  const bool over = m_anyOpen && size.width() - rail < kLeastArea;
  const int left = over ? kNarrowRail : rail;
  m_rail->setGeometry(0, 0, rail, size.height());
  const int widthBefore = m_area->width();
  m_area->setGeometry(left, 0, size.width() - left, size.height());
  m_empty->setGeometry(m_area->rect());
  keepInSight(widthBefore);
  m_rail->raise();
}

void ContainerScreen::setOpenScreens(std::vector<std::string> names) {
  m_open = names;
  const std::string own = m_form.name();
  const auto isOpen = [&](const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  for (const ScreenButton& entry : m_buttons) {
    const bool front = !names.empty() && names.back() == entry.screen;
    entry.button->setChecked(front);
    entry.button->setMark(front                  ? RailButton::Mark::Current
                          : isOpen(entry.screen) ? RailButton::Mark::Open
                                                 : RailButton::Mark::None);
  }
  // A screen may have a better use for Ctrl+0 (its tenth tab): while it is in front it has the key.
  const QWidget* const front = names.empty() ? nullptr : m_area->findChild<QWidget*>(qs(names.back()));
  m_resetBase->setEnabled(!hasShortcut(front, m_resetBase->shortcut()));
  const bool any = std::any_of(names.begin(), names.end(), [&](const std::string& name) { return name != own; });
  m_empty->setVisible(!any);
  if (any == m_anyOpen) return;
  m_anyOpen = any;
  qApp->removeEventFilter(this);
  setWide(any ? m_wideOpen : m_wideEmpty);
}

void ContainerScreen::showStatus(const QString& text) {
  m_status->setText(text);
  showOffer({}, {}, {});
}

void ContainerScreen::showOffer(const QString& caption, const QString& toolTip, std::function<void()> taken) {
  if (caption.isEmpty() && m_offer->isHidden()) return;
  m_offer->setText(caption);
  m_offer->setToolTip(toolTip);
  m_offer->setVisible(!caption.isEmpty());
  m_offerTaken = std::move(taken);
}

bool ContainerScreen::restore(const QSettings& settings) {
  m_wideEmpty = settings.value(QStringLiteral("Container/pannello"), true).toBool();
  m_wideOpen = settings.value(QStringLiteral("Container/pannelloConFinestre"), false).toBool();
  setWide(m_anyOpen ? m_wideOpen : m_wideEmpty);
  return restoreGeometry(settings.value(QStringLiteral("Container/geometria")).toByteArray());
}

void ContainerScreen::store(QSettings& settings) const {
  settings.setValue(QStringLiteral("Container/geometria"), saveGeometry());
  settings.setValue(QStringLiteral("Container/pannello"), m_wideEmpty);
  settings.setValue(QStringLiteral("Container/pannelloConFinestre"), m_wideOpen);
}

void ContainerScreen::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  Theme::edit().setWindowHeight(height());
  // The desktop tells the size that it gives back after the change of the state.
  if (m_toFit) QMetaObject::invokeMethod(this, &ContainerScreen::fitDesktop, Qt::QueuedConnection);
}

void ContainerScreen::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (m_shownOnce) return;
  m_shownOnce = true;
  layoutParts();
  m_draws->sync();
  showTitle();
  setFocus();  // no ring before the first key; Tab then starts at the top of the panel
}

// The cross of the window is FINE; the program then ends by itself.
void ContainerScreen::closeEvent(QCloseEvent* event) {
  event->ignore();
  m_form.get<Button>("Command45").press();
}

bool ContainerScreen::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_centre && event->type() == QEvent::Resize) layoutParts();
  if (event->type() == QEvent::MouseButtonPress) {
    // Only while the panel was opened beside or over a screen. A press that nobody takes comes by again as its
    // parents'.
    const auto* const pressed = qobject_cast<const QWidget*>(watched);
    const QPoint at = static_cast<const QMouseEvent*>(event)->globalPosition().toPoint();
    const bool outside =
        pressed != nullptr && pressed->window() == this && !m_rail->rect().contains(m_rail->mapFromGlobal(at));
    if (m_wide && m_anyOpen && outside) foldRail();
    return false;
  }
  // A window without a frame has nothing to draw in another style; Qt would take it out of its full size and back, and
  // move the focus on.
  if (event->type() == QEvent::StyleChange)
    if (const auto* const window = qobject_cast<const QMdiSubWindow*>(watched);
        window != nullptr && (window->windowFlags() & Qt::FramelessWindowHint) != 0)
      return true;
  if (event->type() == QEvent::Close) {
    if (auto* const window = qobject_cast<QMdiSubWindow*>(watched); window != nullptr && window->widget() != nullptr) {
      event->ignore();
      Q_EMIT closedByUser(window->widget()->objectName());
      return true;
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

}  // namespace trv5
