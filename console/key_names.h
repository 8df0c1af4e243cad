#pragma once

#include <QString>
#include <Qt>
#include <optional>
#include <string_view>

namespace trv5 {

struct KeyPress {
  Qt::Key key = Qt::Key_unknown;
  Qt::KeyboardModifiers modifiers;
  QString text;  ///< what the key types; empty for the others
};

/// The key of a name: "Enter", "Shift+Tab", "Ctrl+F5", "Alt+Left", "7", "é"; nothing for an unknown one.
std::optional<KeyPress> keyOf(std::string_view name);

}  // namespace trv5
