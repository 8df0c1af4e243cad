#pragma once

#include <array>

namespace trv5 {

/// A property of each number, indexed by the number 1..90; element 0 (wheel not drawn) is 0.
using NumberTable = std::array<int, 91>;

/// The remainder of `value` by 90, never negative.
constexpr int residue90(int value) {
  const int r = value % 90;
  return r < 0 ? r + 90 : r;
}

/// The fold into 1..90: the remainder by 90 with 0 read as 90. All arithmetic on numbers ends with it.
constexpr int fold90(int value) {
  const int r = residue90(value);
  return r == 0 ? 90 : r;
}

namespace detail {

template <class Rule>
constexpr NumberTable makeNumberTable(Rule rule) {
  NumberTable table{};
  for (int n = 1; n <= 90; ++n) table[static_cast<std::size_t>(n)] = rule(n);
  return table;
}

constexpr int diametraleDecina(int n) {
  if (n == 90) return 5;
  if (n == 5) return 90;
  const int digit = n % 10;
  return digit >= 5 ? n - 5 : n + 5;
}

// Doubles have no swap of their own and x9 would swap beyond 90: they are each other's vertible.
constexpr int vertibile(int n) {
  const int tens = n / 10, units = n % 10;
  if (tens == units) return tens * 10 + 9;
  if (units == 9 && tens > 0) return tens * 11;
  return units * 10 + tens;
}

constexpr int gruppo(int n) {
  for (int i = 1; i <= 8; ++i)
    if (n == i || n == 10 * i || n == 11 * i || n == 10 * i + 9) return i;
  return 0;
}

}  // namespace detail

/// "DEC": the decade by first digit, 0..8; 90 stands in decade 0.
inline constexpr NumberTable TabDecina = detail::makeNumberTable([](int n) { return n == 90 ? 0 : n / 10; });
/// "CAD": the last digit, 0..9.
inline constexpr NumberTable TabCadenza = detail::makeNumberTable([](int n) { return n % 10; });
/// "FIG": the remainder by 9 with 0 read as 9.
inline constexpr NumberTable TabFigura = detail::makeNumberTable([](int n) { return n % 9 == 0 ? 9 : n % 9; });
/// "DIAM": the number 45 away.
inline constexpr NumberTable TabDiametrale = detail::makeNumberTable([](int n) { return n <= 45 ? n + 45 : n - 45; });
/// "DIDE": the number 5 away inside its decade; 5 and 90 are a pair.
inline constexpr NumberTable TabDiametraleDecina = detail::makeNumberTable(detail::diametraleDecina);
/// "VERT": the digits swapped, inside 1..90; its own inverse.
inline constexpr NumberTable TabVertibile = detail::makeNumberTable(detail::vertibile);
/// The group 1..8 of i, 10i, 11i, 10i + 9; 0 for a number outside the groups.
inline constexpr NumberTable TabGruppo = detail::makeNumberTable(detail::gruppo);

}  // namespace trv5
