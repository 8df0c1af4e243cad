#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "core/numbers.h"

namespace trv5 {

/// The five ways to sort the numbers of a draw into classes.
enum class ClassKind { Decade, LastDigit, Figure, Root, Twin };
inline constexpr int kClassKinds = 5;

struct ClassTraits {
  std::string_view word;                 ///< the mode: "DEC"
  std::string_view name;                 ///< of one class: "Decina"
  std::optional<int> (*of)(int number);  ///< the class of a number 0..90; nothing where it has none
};

namespace detail {

template <const NumberTable& table>
std::optional<int> entryOf(int number) {
  return table[static_cast<std::size_t>(number)];
}

inline std::optional<int> rootOf(int number) {
  const int group = TabGruppo[static_cast<std::size_t>(number)];
  return group == 0 ? std::nullopt : std::optional(group);
}

// 0, a wheel that wasn't drawn, is a multiple of 11 too.
inline std::optional<int> twinOf(int number) {
  return number % 11 == 0 ? std::optional(number) : std::nullopt;
}

}  // namespace detail

inline constexpr std::array<ClassTraits, kClassKinds> kClassTraits = {{
    {"DEC", "Decina", detail::entryOf<TabDecina>},
    {"CAD", "Cadenza", detail::entryOf<TabCadenza>},
    {"FIG", "Figura", detail::entryOf<TabFigura>},
    {"RAD", "Radicale", detail::rootOf},
    {"GEM", "Gemello", detail::twinOf},
}};
constexpr const ClassTraits& traitsOf(ClassKind kind) {
  return kClassTraits[static_cast<std::size_t>(kind)];
}

}  // namespace trv5
