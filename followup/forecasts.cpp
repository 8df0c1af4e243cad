#include "followup/forecasts.h"

#include <algorithm>

namespace trv5 {

std::vector<Forecast> forecastsOf(NumbersByTable numbers) {
  for (std::vector<int>& list : numbers) std::stable_sort(list.begin(), list.end());
  const auto of = [&numbers](Table table) -> std::vector<int>& { return numbers[indexOf(table)]; };
  std::vector<Forecast> forecasts;
  for (const int a : of(Table::Ambate)) forecasts.push_back({Table::Ambate, {a}});
  for (const int a : of(Table::Ambate))
    for (const int b : of(Table::Ambi)) forecasts.push_back({Table::Ambi, {a, b}});
  for (const int a : of(Table::Ambate))
    for (const int b : of(Table::Ambi))
      for (const int c : of(Table::Terni)) forecasts.push_back({Table::Terni, {a, b, c}});
  std::vector<int>& all = of(Table::Lunghetta);
  if (all.size() > kMostForecastNumbers) all.resize(kMostForecastNumbers);
  if (!all.empty()) forecasts.push_back({Table::Lunghetta, all});
  return forecasts;
}

NumberFlags flagsOf(const std::vector<int>& numbers) {
  NumberFlags flags{};
  for (const int number : numbers)
    if (number >= 1 && number <= kMostNumber) flags[static_cast<std::size_t>(number)] = true;
  return flags;
}

bool hasComeOut(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const std::vector<int>& numbers,
                int wanted) {
  return countOfAll(outcomes, caseDraw, window, flagsOf(numbers), wanted) > 0;
}

}  // namespace trv5
