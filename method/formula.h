#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/numbers.h"

namespace trv5 {

/// What an alteration makes of each drawn number, indexed by the number 0..90 (0 = wheel not drawn); not yet passed
/// through the zero rule. "C91" of 0 is 91.
using ElementTable = std::array<std::uint8_t, 91>;

/// The literals of the alterations, in the order of their list; the first is "no alteration".
inline constexpr std::array<std::string_view, 9> kAlterations = {"",     "C91",   "CAD", "DEC", "DIAM",
                                                                 "DIDE", "D x U", "FIG", "VERT"};

/// The table of an alteration literal, made once for the whole run; null for a text that is none.
const ElementTable* findElementTable(std::string_view alteration);

/// A table that gives `element` whatever was drawn.
ElementTable constantTable(int element);

/// The zero rule: an element that comes out 0 is read as 90 before an operator sees it.
constexpr int zeroAs90(int element) {
  return element == 0 ? 90 : element;
}

/// How two elements make a raw value.
enum class Operator : std::uint8_t { Sum, FirstLessSecond, SecondLessFirst, Product, Tens1Units2, Tens2Units1 };

/// The literals of the operators by their index 0..5.
inline constexpr std::array<std::string_view, 6> kOperators = {"N1 + N2", "N1 - N2", "N2 - N1",
                                                               "N1 X N2", "D1 e U2", "D2 e U1"};
/// What stands for an operator in the rows of three summed elements.
inline constexpr std::string_view kSumOfThree = "N1+N2+N3";

/// The operator of a literal; nothing for a text that is none.
std::optional<Operator> operatorOf(std::string_view literal);

/// The raw value, 0..89, of two elements that have passed the zero rule (1..91). Digits are those of the two-digit
/// text.
constexpr int combine(Operator op, int a, int b) {
  switch (op) {
    case Operator::Sum:
      return (a + b) % 90;
    case Operator::FirstLessSecond:
      return residue90(a - b);
    case Operator::SecondLessFirst:
      return residue90(b - a);
    case Operator::Product:
      return a * b % 90;
    case Operator::Tens1Units2:
      return (a / 10 * 10 + b % 10) % 90;
    case Operator::Tens2Units1:
      return (b / 10 * 10 + a % 10) % 90;
  }
  return 0;
}

}  // namespace trv5
