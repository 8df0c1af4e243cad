#include "chance/intervals.h"

#include <algorithm>
#include <cmath>

namespace trv5 {
namespace {

constexpr double kTail = 0.025;                // left out on either side
constexpr double kNormal = 1.959963984540054;  // that quantile of the normal distribution

// The chance of at least `successes` of `trials`, each with `chance`. Terms are summed from the likeliest within the
// tail outwards, each made of its neighbour, until they no longer count.
double binomialTail(int trials, int successes, double chance) {
  if (successes <= 0) return 1;
  if (chance <= 0) return 0;
  if (chance >= 1) return 1;
  const int mode = static_cast<int>(std::min<double>(trials, (trials + 1.0) * chance));
  const int from = std::max(successes, mode);
  const double odds = chance / (1 - chance);
  const double top = std::exp(std::lgamma(trials + 1.0) - std::lgamma(from + 1.0) - std::lgamma(trials - from + 1.0) +
                              from * std::log(chance) + (trials - from) * std::log1p(-chance));
  double sum = top;
  double term = top;
  for (int k = from; k < trials && term > sum * 1e-17; ++k) {
    term *= odds * (trials - k) / (k + 1);
    sum += term;
  }
  term = top;
  for (int k = from; k > successes && term > sum * 1e-17; --k) {
    term *= k / (odds * (trials - k + 1));
    sum += term;
  }
  return std::min(sum, 1.0);
}

// The chance at which the tail is as heavy as wanted; it grows with the chance.
double chanceOfTail(int trials, int successes, double tail) {
  double low = 0, high = 1;
  for (int i = 0; i < 60; ++i) {
    const double middle = (low + high) / 2;
    (binomialTail(trials, successes, middle) < tail ? low : high) = middle;
  }
  return (low + high) / 2;
}

}  // namespace

Interval clopperPearson(int successes, int trials) {
  if (trials <= 0) return {};
  return {successes <= 0 ? 0 : chanceOfTail(trials, successes, kTail),
          successes >= trials ? 1 : chanceOfTail(trials, successes + 1, 1 - kTail)};
}

Interval wilson(int successes, int trials) {
  if (trials <= 0) return {};
  const double n = trials, share = successes / n, square = kNormal * kNormal;
  const double middle = (share + square / (2 * n)) / (1 + square / n);
  const double half = kNormal / (1 + square / n) * std::sqrt(share * (1 - share) / n + square / (4 * n * n));
  return {successes <= 0 ? 0 : std::max(0.0, middle - half), successes >= trials ? 1 : std::min(1.0, middle + half)};
}

}  // namespace trv5
