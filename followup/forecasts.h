#pragma once

#include <vector>

#include "method/hits.h"
#include "method/table.h"

namespace trv5 {

/// The most numbers that a forecast is shown with.
inline constexpr int kMostForecastNumbers = 10;

/// Numbers to be played together.
struct Forecast {
  Table table = Table::Ambate;  ///< what it comes from: ambate, ambi, terni or lunghetta
  std::vector<int> numbers;     ///< the ambata first, then the ambo, then the terno; of a lunghetta ascending
  bool operator==(const Forecast&) const = default;
};

/// The numbers that the tables put in play in one case, in any order.
using NumbersByTable = ByTable<std::vector<int>>;

/// The forecasts of a case: each ambata, each pair of an ambata and an ambo, each triple of an ambata, an ambo and a
/// terno, the first list outermost and all of them ascending; then the lunghetta as one, with its ten lowest numbers.
/// Without ambate there are neither pairs nor triples.
std::vector<Forecast> forecastsOf(NumbersByTable numbers);

/// Those above 0 and up to 90.
NumberFlags flagsOf(const std::vector<int>& numbers);

/// True when one of the wheels holds at least `wanted` (from 1) of the numbers in one of the draws that count.
bool hasComeOut(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const std::vector<int>& numbers,
                int wanted);

}  // namespace trv5
