#pragma once

#include <string>

namespace trv5 {

/// A key that reaches a control, in the terms of no window system. A digit of the numeric pad is a character like that
/// of the row above the letters, its Enter the same as the other.
struct Key {
  enum class Code {
    Character,  ///< `text` tells which
    Enter,
    Escape,
    Tab,
    BackTab,
    Left,
    Right,
    Up,
    Down,
    Home,
    End,
    PageUp,
    PageDown,
    Backspace,
    Delete,
    Other  ///< a key without a meaning here
  };
  Code code = Code::Character;
  std::string text = {};  ///< the character, UTF-8; empty for all other keys
  bool control = false, alt = false, shift = false;
  bool operator==(const Key&) const = default;
};

}  // namespace trv5
