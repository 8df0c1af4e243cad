#pragma once

namespace trv5 {

/// Bounds of a share, 0..1.
struct Interval {
  double low = 0, high = 1;
};

/// The exact 95 % interval (Clopper, Pearson 1934) of the chance behind so many successes in so many trials; 0..1
/// without trials.
Interval clopperPearson(int successes, int trials);

/// The 95 % score interval (Wilson 1927) of the same, which doesn't err on the wide side; 0..1 without trials.
Interval wilson(int successes, int trials);

}  // namespace trv5
