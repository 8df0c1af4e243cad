#pragma once

#include <array>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string_view>
#include <vector>

#include "core/archive.h"
#include "core/numbers.h"
#include "core/wheels.h"

namespace trv5 {

/// The 55 numbers of a draw as they count, 0..90, by wheel 0..10 and position 1..5 less one. 0: not drawn.
using DrawNumbers = std::array<std::array<std::uint8_t, kPositions>, kWheels>;

/// The numbers of a draw of the archive, 91..99 taken as 0.
DrawNumbers numbersOfDraw(const Archive& archive, int drawIndex);

/// Two numbers of a draw are taken together in one of three ways.
enum class Family { Horizontal, Vertical, Diagonal };
inline constexpr int kFamilies = 3;

/// What makes the pairs of a family, and what they are called.
struct FamilyTraits {
  std::string_view label;       ///< "Orizzontale"
  std::string_view pairs;       ///< of several of them: "orizzontali"
  bool oneWheel;                ///< both numbers on one wheel, else on two
  bool (*takes)(int a, int b);  ///< whether the positions a of the first number and b of the second make a pair
};
inline constexpr std::array<FamilyTraits, kFamilies> kFamilyTraits = {{
    {"Orizzontale", "orizzontali", true, [](int a, int b) { return b > a; }},
    {"Verticale", "verticali", false, [](int a, int b) { return b == a; }},
    {"Diagonale", "diagonali", false, [](int a, int b) { return b != a; }},
}};
constexpr const FamilyTraits& traitsOf(Family family) {
  return kFamilyTraits[static_cast<std::size_t>(family)];
}

/// The places of the two numbers of a pair: wheels 0..10, positions 1..5.
struct NumberPair {
  std::uint8_t wheel1, position1, wheel2, position2;
  bool operator==(const NumberPair&) const = default;
};

/// All pairs of a family, 110, 275 or 1100, by first wheel, second wheel, first position, second position.
std::span<const NumberPair> pairsOf(Family family);

inline int firstNumber(const DrawNumbers& numbers, const NumberPair& pair) {
  return numbers[pair.wheel1][pair.position1 - 1U];
}
inline int secondNumber(const DrawNumbers& numbers, const NumberPair& pair) {
  return numbers[pair.wheel2][pair.position2 - 1U];
}

/// What is worked out of the two numbers of a pair, each 0..90.
enum class Measure { Sum, Distance, Difference };
inline constexpr int kMeasures = 3;

/// 1..90.
constexpr int sumOf(int p, int q) {
  return fold90(p + q);
}
/// 1..45: two equal numbers, which only different wheels can hold, are 45 apart, and so are 0 and 90.
constexpr int distanceOf(int p, int q) {
  const int gap = p > q ? p - q : q - p;
  const int way = gap > 45 ? 90 - gap : gap;
  return way == 0 ? 45 : way;
}
/// 0..89, and 90 for a 90 against a 0.
constexpr int differenceOf(int p, int q) {
  return p > q ? p - q : q - p;
}

struct MeasureTraits {
  std::string_view label;
  int (*of)(int p, int q);
};
inline constexpr std::array<MeasureTraits, kMeasures> kMeasureTraits = {{
    {"Somma", sumOf},
    {"Distanza", distanceOf},
    {"Differenza", differenceOf},
}};
constexpr const MeasureTraits& traitsOf(Measure measure) {
  return kMeasureTraits[static_cast<std::size_t>(measure)];
}

/// How often each value 0..90 comes up: nine blocks, sums, distances and differences of the horizontal, vertical and
/// diagonal pairs.
using Frequencies = std::array<std::array<std::int16_t, 91>, kMeasures * kFamilies>;

constexpr std::size_t blockOf(Measure measure, Family family) {
  return static_cast<std::size_t>(measure) * kFamilies + static_cast<std::size_t>(family);
}

Frequencies frequenciesOf(const DrawNumbers& numbers);

/// The pairs of the family whose measure is `value`, in their order.
std::vector<NumberPair> pairsWith(const DrawNumbers& numbers, Measure measure, Family family, int value);

/// The pairs of the family whose two numbers have the same entry in `table`, in their order.
std::vector<NumberPair> pairsAlike(const DrawNumbers& numbers, const NumberTable& table, Family family);

}  // namespace trv5
