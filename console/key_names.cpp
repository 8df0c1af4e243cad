#include "console/key_names.h"

#include <string>
#include <utility>

namespace trv5 {
namespace {

constexpr std::pair<std::string_view, Qt::Key> kNamed[] = {{"Enter", Qt::Key_Return},
                                                           {"Esc", Qt::Key_Escape},
                                                           {"Left", Qt::Key_Left},
                                                           {"Right", Qt::Key_Right},
                                                           {"Up", Qt::Key_Up},
                                                           {"Down", Qt::Key_Down},
                                                           {"Tab", Qt::Key_Tab},
                                                           {"Home", Qt::Key_Home},
                                                           {"End", Qt::Key_End},
                                                           {"PageUp", Qt::Key_PageUp},
                                                           {"PageDown", Qt::Key_PageDown},
                                                           {"Backspace", Qt::Key_Backspace},
                                                           {"Delete", Qt::Key_Delete},
                                                           {"Space", Qt::Key_Space}};

}  // namespace

std::optional<KeyPress> keyOf(std::string_view name) {
  KeyPress press;
  const auto strip = [&](std::string_view prefix, Qt::KeyboardModifier modifier) {
    if (!name.starts_with(prefix) || name.size() == prefix.size()) return false;
    name.remove_prefix(prefix.size());
    press.modifiers |= modifier;
    return true;
  };
  while (strip("Ctrl+", Qt::ControlModifier) || strip("Alt+", Qt::AltModifier) || strip("Shift+", Qt::ShiftModifier)) {
  }
  const bool plain = !(press.modifiers & (Qt::ControlModifier | Qt::AltModifier));
  for (const auto& [known, key] : kNamed) {
    if (name != known) continue;
    press.key = key;
    // Tab backwards is a key of its own to Qt.
    if (key == Qt::Key_Tab && (press.modifiers & Qt::ShiftModifier)) press.key = Qt::Key_Backtab;
    if (plain && key == Qt::Key_Return) press.text = QStringLiteral("\r");
    if (plain && key == Qt::Key_Space) press.text = QStringLiteral(" ");
    return press;
  }
  if (name.size() > 1 && name[0] == 'F') {
    int number = 0;
    for (const char c : name.substr(1)) {
      if (c < '0' || c > '9') return std::nullopt;
      number = number * 10 + (c - '0');
    }
    if (number < 1 || number > 12) return std::nullopt;
    press.key = static_cast<Qt::Key>(Qt::Key_F1 + number - 1);
    return press;
  }
  const QString text = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
  if (text.size() != 1) return std::nullopt;
  // Qt's codes of printable keys are those of their capital letters.
  press.key = static_cast<Qt::Key>(text[0].toUpper().unicode());
  if (plain) press.text = text;
  return press;
}

}  // namespace trv5
