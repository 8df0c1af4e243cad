// The lines that need the windows as the user sees them: keys, focus, pictures.
#include <fmt/format.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDeadlineTimer>
#include <QImage>
#include <QKeyEvent>
#include <QScreen>
#include <QTest>
#include <algorithm>
#include <nlohmann/json.hpp>

#include "console/arguments.h"
#include "console/console.h"
#include "console/key_names.h"
#include "core/errors.h"
#include "screens/kit/theme.h"
#include "screens/kit/user_events.h"
#include "screens/shell/Container.h"

namespace trv5 {
namespace {

// Lets the windows catch up: sizes, grids, paintings.
void settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
}

// A mnemonic holds its button down for a moment before it clicks.
void waitForPressedButtons() {
  const auto held = [] {
    const QWidgetList widgets = QApplication::allWidgets();
    return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* widget) {
      const auto* const button = qobject_cast<const QAbstractButton*>(widget);
      return button != nullptr && button->isDown();
    });
  };
  for (const QDeadlineTimer limit(2000); held() && !limit.hasExpired();)
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

// Where a script wants to see a screen; sizes are those of its window.
struct Looks {
  QSize size;
  double scale = 1;
  std::optional<bool> dark;
  std::optional<double> points;
};

int sideOf(const nlohmann::json& value) {
  const int pixels = wholeNumber(value);
  // No screen is larger, and the memory for its picture has an end.
  if (pixels < 1 || pixels > 8192) throw LineError(fmt::format("dimensione fuori limite: {}", pixels));
  return pixels;
}

Looks looksOf(const nlohmann::json& line) {
  Looks looks;
  if (line.size() < 4) return looks;
  const nlohmann::json& wanted = line[3];
  if (!wanted.is_object()) throw LineError("l'aspetto dev'essere un oggetto JSON");
  for (const auto& [name, value] : wanted.items()) {
    if (name == "width")
      looks.size.setWidth(sideOf(value));
    else if (name == "height")
      looks.size.setHeight(sideOf(value));
    else if (name == "scale" && value.is_number())
      looks.scale = value.get<double>();
    else if (name == "dark" && value.is_boolean())
      looks.dark = value.get<bool>();
    else if (name == "points" && value.is_number())
      looks.points = value.get<double>();
    else
      throw LineError("aspetto sconosciuto: " + name);
  }
  return looks;
}

const QScreen* screenOfScale(double scale) {
  for (const QScreen* const screen : QGuiApplication::screens())
    if (qFuzzyCompare(screen->devicePixelRatio(), scale)) return screen;
  throw LineError(fmt::format("scala sconosciuta: {}", scale));
}

}  // namespace

std::string Console::key(const Arguments& line) {
  const Target found = enabledTarget(line);
  const std::optional<KeyPress> press = keyOf(textArgument(line, 3));
  if (!press) throw LineError("tasto sconosciuto: " + textArgument(line, 3));
  if (found.widget == nullptr) {
    found.control->key(keyFrom(QKeyEvent(QEvent::KeyPress, press->key, press->modifiers, press->text)));
    return {};
  }
  QWidget* const window = found.widget->window();
  window->activateWindow();
  settle();
  found.widget->setFocus(Qt::OtherFocusReason);
  settle();
  // An operation behind the key may close the widget's window: it dies only after this.
  QTest::sendKeyEvent(QTest::Click, found.widget, press->key, press->text, press->modifiers);
  settle();
  waitForPressedButtons();
  return {};
}

std::string Console::focus(const Arguments&) {
  settle();
  std::string screen, control;
  for (QWidget* widget = QApplication::focusWidget(); widget != nullptr; widget = widget->parentWidget()) {
    const std::string name = widget->objectName().toStdString();
    if (shell().widget(name) == widget) {
      screen = name;
      break;
    }
    if (control.empty() && !name.empty()) control = name;
  }
  // Widgets have names that are nobody's control.
  if (const Form* const form = shell().form(screen); form != nullptr && form->find(control) == nullptr) control.clear();
  return "\"screen\":" + nlohmann::json(screen).dump() + ",\"control\":" + nlohmann::json(control).dump();
}

std::string Console::shot(const Arguments& line) {
  QWidget* const screen = screenOf(line).screen;
  const std::string path = textArgument(line, 2);
  const Looks looks = looksOf(line);
  QWidget* const window = screen->window();
  const QSize usual = window->size();
  const QPoint place = window->pos();
  const QScreen* const at = screenOfScale(looks.scale);
  const bool dark = m_theme.dark();
  const double points = m_theme.chosenPoints();
  if (looks.dark) m_theme.setDark(*looks.dark);
  if (looks.points) m_theme.setBasePoints(*looks.points);
  QSize size = looks.size;
  if (size.width() <= 0) size.setWidth(usual.width());
  if (size.height() <= 0) size.setHeight(usual.height());
  // The offscreen platform has a screen for each scale, side by side.
  window->move(at->geometry().topLeft());
  window->resize(size);
  settle();
  const bool saved = screen->grab().toImage().convertToFormat(QImage::Format_RGB32).save(qs(path), "PNG");

  m_theme.setDark(dark);
  m_theme.setBasePoints(points);
  window->move(place);
  window->resize(usual);
  if (!saved) throw LineError("l'immagine non può essere scritta: " + path);
  return {};
}

}  // namespace trv5
