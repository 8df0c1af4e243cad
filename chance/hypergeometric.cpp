#include "chance/hypergeometric.h"

#include <algorithm>
#include <cmath>

namespace trv5 {

double combinations(int things, int chosen) {
  if (chosen < 0 || chosen > things) return 0;
  double count = 1;
  for (int i = 1; i <= chosen; ++i) count = count * (things - chosen + i) / i;
  return std::round(count);
}

double chanceOfHits(int marked, int hits) {
  return combinations(marked, hits) * combinations(kNumbersInUrn - marked, kPositions - hits) /
         combinations(kNumbersInUrn, kPositions);
}

double chanceOfNumbers(int numbers) {
  return chanceOfLunghetta(numbers, 1);
}

double chanceOfSet(int numbers) {
  return combinations(kNumbersInUrn - numbers, kPositions - numbers) / combinations(kNumbersInUrn, kPositions);
}

double chanceOfPivot(int companions) {
  const int others = kNumbersInUrn - 1, places = kPositions - 1;
  return chanceOfSet(1) * (1 - combinations(others - companions, places) / combinations(others, places));
}

double chanceOfLunghetta(int numbers, int sorte) {
  double chance = 0;
  for (int hits = std::max(sorte, 1); hits <= kPositions; ++hits) chance += chanceOfHits(numbers, hits);
  return chance;
}

double chanceOfDraws(double onWheel, int wheelDraws) {
  if (wheelDraws <= 0) return 0;
  if (onWheel >= 1) return 1;
  return -std::expm1(wheelDraws * std::log1p(-onWheel));
}

}  // namespace trv5
