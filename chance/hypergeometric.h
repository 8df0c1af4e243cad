#pragma once

#include "core/wheels.h"

namespace trv5 {

inline constexpr int kNumbersInUrn = 90;

/// How many sets of `chosen` things there are among `things`, exact up to 2^53; 0 where there is none.
double combinations(int things, int chosen);

/// The chance that of `marked` numbers exactly `hits` are among the five of a wheel.
double chanceOfHits(int marked, int hits);

/// The chance of one drawn wheel to hold at least one of so many different numbers, 0..90.
double chanceOfNumbers(int numbers);
/// To hold all of so many given numbers: 1 ambata, 2 ambo, 3 terno, up to 5.
double chanceOfSet(int numbers);
/// To hold a given number and at least one of so many other ones.
double chanceOfPivot(int companions);
/// To hold at least `sorte`, and at least one, of so many different numbers.
double chanceOfLunghetta(int numbers, int sorte);

/// The chance of so many wheels, each drawn for itself, to bring at least once what one wheel brings with the chance
/// `onWheel`.
double chanceOfDraws(double onWheel, int wheelDraws);

}  // namespace trv5
