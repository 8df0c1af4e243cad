#include "screens/shell/qt_shell.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QScreen>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "core/errors.h"
#include "core/grid_text.h"
#include "help/help_pages.h"
#include "provision/old_conversion.h"
#include "screens/kit/lazy_page.h"
#include "screens/kit/theme.h"
#include "screens/shell/Container.h"
#include "screens/shell/help_viewer.h"

namespace trv5 {

namespace {

// As the settings name them, in the order of Theme::Scheme.
const QStringList kSchemes = {QStringLiteral("sistema"), QStringLiteral("chiaro"), QStringLiteral("scuro")};

}  // namespace

QtShell::Open::~Open() {
  // Before the form, which it shows; with the frame that it stands in.
  if (widget == nullptr) return;
  QWidget* const frame = qobject_cast<QMdiSubWindow*>(widget->parentWidget());
  delete (frame != nullptr ? frame : widget.data());
}

QtShell::QtShell(std::vector<ScreenEntry> screens) : m_screens(std::move(screens)) {}

QtShell::~QtShell() {
  closeAll();
  m_closed.clear();
}

void QtShell::attach(Program& program) {
  m_program = &program;
  program.screenExists = [this](std::string_view screen) { return hasScreen(screen); };
  program.oldFiles = oldFilesReader();
}

void QtShell::useSettings(const std::filesystem::path& file) {
  m_settings = std::make_unique<QSettings>(qs(file.string()), QSettings::IniFormat);
  Theme::edit().setBasePoints(m_settings->value(QStringLiteral("carattere"), 0).toDouble());
  const int scheme =
      static_cast<int>(kSchemes.indexOf(m_settings->value(QStringLiteral("aspetto"), kSchemes.front()).toString()));
  Theme::edit().setScheme(static_cast<Theme::Scheme>(std::max(0, scheme)));
}

const ScreenEntry* QtShell::entryOf(std::string_view name) const {
  const auto it =
      std::find_if(m_screens.begin(), m_screens.end(), [&](const ScreenEntry& entry) { return entry.name == name; });
  return it == m_screens.end() ? nullptr : &*it;
}

QtShell::Open* QtShell::find(std::string_view screen) const {
  for (const std::unique_ptr<Open>& opened : m_open)
    if (opened->entry->name == screen) return opened.get();
  return nullptr;
}

std::vector<std::string> QtShell::openScreens() const {
  std::vector<std::string> names;
  for (const std::unique_ptr<Open>& opened : m_open) names.push_back(opened->entry->name);
  return names;
}

Form* QtShell::form(std::string_view screen) const {
  const Open* const opened = find(screen);
  return opened == nullptr ? nullptr : opened->form.get();
}

QWidget* QtShell::widget(std::string_view screen) const {
  const Open* const opened = find(screen);
  return opened == nullptr ? nullptr : opened->widget.data();
}

QWidget* QtShell::widget(std::string_view screen, std::string_view control) const {
  const QWidget* const top = widget(screen);
  if (top == nullptr) return nullptr;
  const QString name = QString::fromUtf8(control.data(), static_cast<qsizetype>(control.size()));
  const auto search = [top, &name]() -> QWidget* {
    for (QWidget* const found : top->findChildren<QWidget*>(name)) {
      const QWidget* owner = found->parentWidget();
      while (owner != top && qobject_cast<const Screen*>(owner) == nullptr) owner = owner->parentWidget();
      if (owner == top) return found;
    }
    return nullptr;
  };
  QWidget* found = search();
  // It may stand on a page that nobody has seen yet.
  while (found == nullptr && makeOnePage(*top)) found = search();
  return found;
}

ContainerScreen* QtShell::shellWindow() const {
  for (const std::unique_ptr<Open>& opened : m_open)
    if (auto* const window = qobject_cast<ContainerScreen*>(opened->widget.data())) return window;
  return nullptr;
}

QWidget* QtShell::front() const {
  if (QWidget* const active = QApplication::activeWindow()) return active;
  if (ContainerScreen* const window = shellWindow()) return window;
  return m_open.empty() ? nullptr : m_open.back()->widget.data();
}

Form& QtShell::show(std::string_view screen) {
  const ScreenEntry* const entry = entryOf(screen);
  if (entry == nullptr || m_program == nullptr)
    throw UserError("La schermata \"" + std::string(screen) + "\" non esiste in questa versione del programma.");
  Open* opened = find(screen);
  if (opened == nullptr) opened = &open(*entry);
  toFront(screen);
  return *opened->form;
}

QtShell::Open& QtShell::open(const ScreenEntry& entry) {
  auto made = std::make_unique<Open>();
  made->entry = &entry;
  made->form = entry.makeForm(*m_program);
  made->widget = entry.makeWidget(*made->form);
  Open& opened = *m_open.emplace_back(std::move(made));
  try {
    entry.load(*opened.form);
  } catch (...) {
    close(entry.name);
    throw;
  }
  // The panel folds first: a screen is laid out once, for the room that it keeps.
  tellShellWindow();
  place(opened);
  return opened;
}

QStringList QtShell::work() const {
  QStringList parts = {qs(m_program->loadedArchive.stem().string())};
  for (const std::unique_ptr<Open>& opened : m_open) parts += qs(opened->entry->work(*opened->form));
  return parts;
}

void QtShell::place(Open& opened) {
  QWidget& widget = *opened.widget;
  if (opened.entry->place == Place::Window) {
    // With its frame a window is larger: one that would fill the desktop leaves some of it free.
    const QSize desktop = widget.screen()->availableSize(), natural = opened.entry->size;
    const bool fits = natural.width() < desktop.width() && natural.height() < desktop.height();
    widget.resize(fits ? natural : natural.boundedTo(desktop * 9 / 10));
    bool maximised = false;
    if (auto* const window = qobject_cast<ContainerScreen*>(&widget)) {
      maximised = m_settings != nullptr && !window->restore(*m_settings);
      window->setWork([this] { return work(); });
      m_afterOperations = operations().whenSettled([this] {
        drawAgain();
        if (ContainerScreen* const shown = shellWindow()) shown->showTitle();
      });
      connect(window, &ContainerScreen::helpWanted, this, &QtShell::helpOfFront);
      connect(window, &ContainerScreen::nextScreenWanted, this, &QtShell::showNext);
      connect(window, &ContainerScreen::closedByUser, this, [this](const QString& name) { close(name.toStdString()); });
      connect(window, &ContainerScreen::activatedByUser, this, [this](const QString& name) {
        if (!m_opening && find(name.toStdString()) != nullptr) toFront(name.toStdString());
      });
    }
    maximised ? widget.showMaximized() : widget.show();
    return;
  }
  if (ContainerScreen* const window = shellWindow()) {
    m_opening = true;
    window->place(widget, *opened.entry);
    m_opening = false;
  } else {
    widget.show();
  }
  if (auto* const screen = qobject_cast<Screen*>(&widget); screen != nullptr && m_settings)
    screen->restore(*m_settings);
}

void QtShell::toFront(std::string_view screen) {
  const auto it = std::find_if(m_open.begin(), m_open.end(),
                               [&](const std::unique_ptr<Open>& opened) { return opened->entry->name == screen; });
  if (it == m_open.end()) return;
  std::rotate(it, it + 1, m_open.end());
  tellShellWindow();
  QWidget* const widget = m_open.back()->widget;
  if (widget == nullptr) return;
  m_opening = true;
  if (ContainerScreen* const window = shellWindow(); window != nullptr && window != widget)
    window->bringToFront(*widget);
  else
    widget->raise();
  m_opening = false;
}

void QtShell::tellShellWindow() {
  if (ContainerScreen* const window = shellWindow()) window->setOpenScreens(openScreens());
}

void QtShell::close(std::string_view screen) {
  const auto it = std::find_if(m_open.begin(), m_open.end(),
                               [&](const std::unique_ptr<Open>& opened) { return opened->entry->name == screen; });
  if (it == m_open.end()) return;
  // Out of the list first: taking a window away brings another one to the front.
  Open& closed = *m_closed.emplace_back(std::move(*it));
  m_open.erase(it);
  if (QWidget* const widget = closed.widget) {
    if (m_settings) {
      if (auto* const own = qobject_cast<Screen*>(widget)) own->store(*m_settings);
      if (auto* const window = qobject_cast<ContainerScreen*>(widget)) window->store(*m_settings);
      m_settings->setValue(QStringLiteral("carattere"), Theme::current().chosenPoints());
      m_settings->setValue(QStringLiteral("aspetto"), kSchemes[static_cast<int>(Theme::current().scheme())]);
    }
    if (ContainerScreen* const window = shellWindow()) window->takeAway(*widget);
    widget->hide();
  }
  tellShellWindow();
  if (m_purgeAsked) return;
  m_purgeAsked = true;
  QTimer::singleShot(0, this, &QtShell::purge);
}

void QtShell::purge() {
  if (operations().running()) {
    QTimer::singleShot(50, this, &QtShell::purge);
    return;
  }
  m_purgeAsked = false;
  m_closed.clear();
}

void QtShell::closeAll() {
  for (const std::unique_ptr<Open>& opened : m_open) {
    try {
      opened->entry->end(*opened->form);
    } catch (const std::exception&) {
      // The program ends all the same; what was saved is saved.
    }
  }
  // The screens inside the shell's window go before the window.
  const auto inside = [](const std::unique_ptr<Open>& opened) { return opened->entry->place != Place::Window; };
  while (!m_open.empty()) {
    const auto it = std::find_if(m_open.begin(), m_open.end(), inside);
    close(std::string((it == m_open.end() ? m_open.back() : *it)->entry->name));
  }
  m_help.reset();
}

void QtShell::showNext() {
  for (const std::unique_ptr<Open>& opened : m_open) {
    if (opened->entry->place == Place::Window) continue;
    toFront(opened->entry->name);
    return;
  }
}

HelpViewer& QtShell::helpWindow() {
  if (m_help == nullptr) m_help = std::make_unique<HelpViewer>();
  return *m_help;
}

void QtShell::help(int context) {
  helpWindow().open(helpPage(context), m_open.empty() ? nullptr : m_open.back()->widget.data());
}

void QtShell::helpOfFront() {
  if (m_open.empty()) return;
  const Form& front = *m_open.back()->form;
  helpWindow().open(front.helpContext() > 0 ? helpPage(front.helpContext()) : helpPageOfScreen(qs(front.name())),
                    m_open.back()->widget);
}

std::string QtShell::clipboard() {
  return QGuiApplication::clipboard()->text().toStdString();
}

void QtShell::setClipboard(const std::string& text) {
  // Beside the text, exactly as it was given, a table goes as one: text editors then paste it with its cells.
  auto* const copied = new QMimeData;
  copied->setText(qs(text));
  if (text.find('\t') != std::string::npos) copied->setHtml(qs(tabbedHtml(text)));
  QGuiApplication::clipboard()->setMimeData(copied);
}

void QtShell::openAddress(const std::string& url) {
  QDesktopServices::openUrl(QUrl(qs(url), QUrl::StrictMode));
}

void QtShell::progress(int value, int maximum) {
  if (m_program == nullptr || m_program->container == nullptr) return;
  if (operations().running() && value < maximum) keepPictures();
  m_program->container->Pb1.set(value, maximum);
  if (value >= maximum) drawAgain();
  if (m_emptyAsked || !(operations().running() || value >= maximum)) return;
  m_emptyAsked = true;
  QTimer::singleShot(0, this, &QtShell::emptyProgress);
}

// The bar of a work that is over, or was given up, is empty.
void QtShell::emptyProgress() {
  if (operations().running()) {
    QTimer::singleShot(50, this, &QtShell::emptyProgress);
    return;
  }
  m_emptyAsked = false;
  if (m_program != nullptr && m_program->container != nullptr)
    m_program->container->Pb1.set(0, m_program->container->Pb1.maximum());
}

// The bar that moves draws what waits to be drawn, and so does a box: in the midst of a work that is half done. Until
// it is over the screens keep the picture that they had before it.
void QtShell::keepPictures() {
  if (std::exchange(m_keepsPictures, true)) return;
  for (const std::unique_ptr<Open>& opened : m_open)
    if (opened->widget != nullptr && opened->entry->place != Place::Window) opened->widget->setUpdatesEnabled(false);
}

void QtShell::drawAgain() {
  if (!std::exchange(m_keepsPictures, false)) return;
  for (const std::unique_ptr<Open>& opened : m_open)
    if (opened->widget != nullptr) opened->widget->setUpdatesEnabled(true);
}

void QtShell::status(const std::string& text) {
  if (ContainerScreen* const window = shellWindow()) window->showStatus(qs(text));
}

// The screen may be closed before the user answers: it is looked for by name then.
void QtShell::offer(const Button* button) {
  ContainerScreen* const window = shellWindow();
  if (window == nullptr) return;
  if (button == nullptr) return window->showOffer({}, {}, {});
  window->showOffer(qs(button->caption()), qs(button->toolTip()),
                    [this, screen = button->form().name(), name = button->name()] {
                      if (Form* const owner = form(screen)) owner->get<Button>(name).press();
                    });
}

void QtShell::hourglass(bool shown) {
  shown ? QGuiApplication::setOverrideCursor(Qt::WaitCursor) : QGuiApplication::restoreOverrideCursor();
}

void QtShell::inSteps(std::function<bool()> step) {
  constexpr int kPause = 15;  // milliseconds
  auto* const timer = new QTimer(this);
  connect(timer, &QTimer::timeout, timer, [this, timer, step = std::move(step)] {
    if (operations().running()) return;  // one that shows a box lets timers run
    timer->stop();                       // the step may show a box too
    if (step())
      timer->start(kPause);
    else
      timer->deleteLater();
  });
  timer->start(kPause);
}

DateTime QtShell::now() {
  const QDateTime moment = QDateTime::currentDateTime();
  const QDate date = moment.date();
  const QTime time = moment.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

void QtShell::quit() {
  QTimer::singleShot(0, this, [this] {
    closeAll();
    QCoreApplication::quit();
  });
}

}  // namespace trv5
