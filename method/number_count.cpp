#include <cstddef>
#include <map>

#include "method/drawn_numbers.h"
#include "method/search.h"

namespace trv5 {
namespace {

// One case more, in which the numbers were drawn so often.
void addCase(const DrawnNumbers& drawn, NumberCounts& counts) {
  for (std::size_t n = 0; n < counts.size(); ++n) {
    counts[n].cc += drawn[n] != 0;
    counts[n].pres += static_cast<int>(drawn[n]);
  }
}

}  // namespace

std::vector<NumberCounts> countNumbers(const Outcomes& outcomes, const std::vector<int>& cases, int colpi, int lastDraw,
                                       const std::vector<WheelSet>& wheelSets) {
  std::vector<NumberCounts> counts(wheelSets.size());
  for (const int caseDraw : cases) {
    const ColpiWindow window = windowAfter(caseDraw, colpi, lastDraw);
    if (wheelSets.size() == 1) {
      DrawnNumbers drawn{};
      addDrawn(outcomes, window, wheelSets.front(), drawn);
      addCase(drawn, counts.front());
      continue;
    }
    std::array<DrawnNumbers, kWheels> byWheel{};
    for (int w = 0; w < kWheels; ++w) addDrawn(outcomes, window, 1U << w, byWheel[static_cast<std::size_t>(w)]);
    for (std::size_t s = 0; s < wheelSets.size(); ++s) {
      DrawnNumbers drawn{};
      for (int w = 0; w < kWheels; ++w)
        if (holds(wheelSets[s], w))
          for (std::size_t n = 0; n < drawn.size(); ++n) drawn[n] += byWheel[static_cast<std::size_t>(w)][n];
      addCase(drawn, counts[s]);
    }
  }
  return counts;
}

NumberCounts countNumbersAtHits(const Outcomes& outcomes, const std::vector<PureNumberRow>& rows, WheelSet wheels) {
  std::map<int, DrawnNumbers> drawnInCase;
  for (const PureNumberRow& row : rows) {
    DrawnNumbers drawn{};
    addDrawn(outcomes, {row.hitDraw, row.hitDraw}, wheels, drawn);
    for (const int n : row.numbers)
      if (n >= 0 && n <= 90) drawn[static_cast<std::size_t>(n)] = 0;
    DrawnNumbers& inCase = drawnInCase[row.caseRow];
    for (std::size_t n = 0; n < drawn.size(); ++n) inCase[n] += drawn[n];
  }
  NumberCounts counts{};
  for (const auto& [caseRow, drawn] : drawnInCase) addCase(drawn, counts);
  return counts;
}

}  // namespace trv5
