#include "followup/convergences.h"

#include <algorithm>

#include "method/flags.h"

namespace trv5 {

std::vector<int> countedNumbers(const GroupedForecast& forecast, int sorte) {
  if (forecast.sorte != sorte) return {};
  std::vector<int> numbers = forecast.numbers;
  if (sorte == 1 && !numbers.empty()) numbers = {forecast.numbers.front()};
  std::erase_if(numbers, [](int number) { return number < 1 || number > kMostNumber; });
  return numbers;
}

Convergences convergencesOf(const std::vector<GroupedForecast>& forecasts, int sorte) {
  Convergences counts{};
  for (const GroupedForecast& forecast : forecasts)
    for (const int number : countedNumbers(forecast, sorte))
      for (int wheel = 0; wheel < kWheels; ++wheel)
        if (holds(forecast.wheels, wheel)) ++counts[static_cast<std::size_t>(number)][static_cast<std::size_t>(wheel)];
  return counts;
}

std::vector<std::string> configurationsBehind(const std::vector<GroupedForecast>& forecasts, int sorte, int number,
                                              int wheel) {
  std::vector<std::string> names;
  for (const GroupedForecast& forecast : forecasts) {
    const std::vector<int> numbers = countedNumbers(forecast, sorte);
    if (!holds(forecast.wheels, wheel) || std::find(numbers.begin(), numbers.end(), number) == numbers.end()) continue;
    if (std::find(names.begin(), names.end(), forecast.configuration) == names.end())
      names.push_back(forecast.configuration);
  }
  return names;
}

}  // namespace trv5
