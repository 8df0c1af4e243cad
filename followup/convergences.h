#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/wheels.h"

namespace trv5 {

/// A live forecast of a saved configuration.
struct GroupedForecast {
  std::string configuration = {};  ///< its name
  int sorte = 0;                   ///< 1..5; of a lunghetta the sorte that it is played for
  std::vector<int> numbers = {};   ///< in the order of their columns, 0 for an empty one
  WheelSet wheels = 0;             ///< those it is played on
};

/// How many forecasts meet, by [number 1..90][wheel].
using Convergences = std::array<std::array<int, kWheels>, 91>;

/// The numbers of a forecast that count among those of a sorte: of an ambata the first alone, else all; those outside
/// 1..90 are passed over. None of a forecast of another sorte.
std::vector<int> countedNumbers(const GroupedForecast& forecast, int sorte);

/// Counts the forecasts of a sorte; a number that stands twice in one counts twice.
Convergences convergencesOf(const std::vector<GroupedForecast>& forecasts, int sorte);

/// The configurations behind one count, each once, in the order of the forecasts.
std::vector<std::string> configurationsBehind(const std::vector<GroupedForecast>& forecasts, int sorte, int number,
                                              int wheel);

}  // namespace trv5
