#include "tools/draw_pairs.h"

#include <algorithm>

namespace trv5 {
namespace {

constexpr std::size_t kHorizontal = 110, kVertical = 275, kDiagonal = 1100;
constexpr std::size_t kAllPairs = kHorizontal + kVertical + kDiagonal;
// Where each family begins in the list of all pairs, and where the last one ends.
constexpr std::array<std::size_t, kFamilies + 1> kBegins = {0, kHorizontal, kHorizontal + kVertical, kAllPairs};

constexpr std::array<NumberPair, kAllPairs> makePairs() {
  std::array<NumberPair, kAllPairs> pairs{};
  std::size_t count = 0;
  for (const FamilyTraits& family : kFamilyTraits)
    for (int w = 0; w < kWheels; ++w)
      for (int v = family.oneWheel ? w : w + 1; v < (family.oneWheel ? w + 1 : kWheels); ++v)
        for (int a = 1; a <= kPositions; ++a)
          for (int b = 1; b <= kPositions; ++b)
            if (family.takes(a, b))
              pairs[count++] = {static_cast<std::uint8_t>(w), static_cast<std::uint8_t>(a),
                                static_cast<std::uint8_t>(v), static_cast<std::uint8_t>(b)};
  return pairs;
}

constexpr std::array<NumberPair, kAllPairs> kPairs = makePairs();

// Where a measure is counted, so that counting a pair takes no branch and no remainder: by the sum of the two numbers,
// 0..180, and by their difference, 0..90.
constexpr auto kSums = [] {
  std::array<std::uint8_t, 181> table{};
  for (int sum = 0; sum <= 180; ++sum) table[static_cast<std::size_t>(sum)] = static_cast<std::uint8_t>(sumOf(sum, 0));
  return table;
}();
constexpr auto kDistances = [] {
  std::array<std::uint8_t, 91> table{};
  for (int gap = 0; gap <= 90; ++gap)
    table[static_cast<std::size_t>(gap)] = static_cast<std::uint8_t>(distanceOf(gap, 0));
  return table;
}();

}  // namespace

DrawNumbers numbersOfDraw(const Archive& archive, int drawIndex) {
  DrawNumbers numbers{};
  for (int wheel = 0; wheel < kWheels; ++wheel)
    std::copy_n(archive.wheelOf(drawIndex, wheel), kPositions, numbers[static_cast<std::size_t>(wheel)].begin());
  return numbers;
}

std::span<const NumberPair> pairsOf(Family family) {
  const auto f = static_cast<std::size_t>(family);
  return std::span(kPairs).subspan(kBegins[f], kBegins[f + 1] - kBegins[f]);
}

Frequencies frequenciesOf(const DrawNumbers& numbers) {
  Frequencies counts{};
  for (const Family family : {Family::Horizontal, Family::Vertical, Family::Diagonal}) {
    auto& sums = counts[blockOf(Measure::Sum, family)];
    auto& distances = counts[blockOf(Measure::Distance, family)];
    auto& differences = counts[blockOf(Measure::Difference, family)];
    for (const NumberPair& pair : pairsOf(family)) {
      const int p = firstNumber(numbers, pair), q = secondNumber(numbers, pair);
      const auto gap = static_cast<std::size_t>(std::abs(p - q));
      ++sums[kSums[static_cast<std::size_t>(p + q)]];
      ++distances[kDistances[gap]];
      ++differences[gap];
    }
  }
  return counts;
}

std::vector<NumberPair> pairsWith(const DrawNumbers& numbers, Measure measure, Family family, int value) {
  std::vector<NumberPair> found;
  const auto of = traitsOf(measure).of;
  for (const NumberPair& pair : pairsOf(family))
    if (of(firstNumber(numbers, pair), secondNumber(numbers, pair)) == value) found.push_back(pair);
  return found;
}

std::vector<NumberPair> pairsAlike(const DrawNumbers& numbers, const NumberTable& table, Family family) {
  const auto entry = [&table](int number) { return table[static_cast<std::size_t>(number)]; };
  std::vector<NumberPair> found;
  for (const NumberPair& pair : pairsOf(family))
    if (entry(firstNumber(numbers, pair)) == entry(secondNumber(numbers, pair))) found.push_back(pair);
  return found;
}

}  // namespace trv5
