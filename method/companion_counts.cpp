#include "method/companion_counts.h"

#include <algorithm>

namespace trv5 {

CompanionCounts companionsOfSets(const Outcomes& outcomes, int caseDraw, const PlayWindow& window,
                                 std::span<const NumberList> lists) {
  CompanionCounts counts;
  const int last = std::min(caseDraw + window.colpi, window.lastDraw);
  for (int draw = caseDraw + 1; draw <= last; ++draw) {
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      if (!holds(window.wheels, wheel)) continue;
      const std::uint8_t* const drawn = outcomes.wheelOf(draw, wheel);
      const auto stands = [&](int n) {
        return n != 0 && std::find(drawn, drawn + kPositions, n) != drawn + kPositions;
      };
      const auto countOthers = [&](int a, int b) {
        for (int k = 0; k < kPositions; ++k)
          if (drawn[k] != 0 && drawn[k] != a && drawn[k] != b) ++counts.with[drawn[k]];
      };
      for (const int a : lists.front()) {
        if (!stands(a)) continue;
        if (lists.size() == 1) {
          countOthers(a, a);
          continue;
        }
        for (const int b : lists.back())
          if (a != b && stands(b)) countOthers(a, b);
      }
    }
  }
  return counts;
}

CompanionCounts companionsOfAll(const Outcomes& outcomes, int caseDraw, const PlayWindow& window,
                                const NumberFlags& inPlay, int wanted) {
  CompanionCounts counts;
  const int last = std::min(caseDraw + window.colpi, window.lastDraw);
  for (int draw = caseDraw + 1; draw <= last; ++draw) {
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      if (!holds(window.wheels, wheel)) continue;
      const std::uint8_t* const drawn = outcomes.wheelOf(draw, wheel);
      int played = 0;
      for (int k = 0; k < kPositions; ++k)
        if (drawn[k] != 0 && inPlay[drawn[k]]) ++played;
      if (played >= wanted) ++counts.always;
      counts.playedOnLastWheel = played;
      counts.onLastWheel = {};
      for (int k = 0; k < kPositions; ++k) {
        if (drawn[k] == 0 || inPlay[drawn[k]]) continue;
        if (played == wanted - 1) ++counts.with[drawn[k]];
        counts.onLastWheel[drawn[k]] = true;
      }
    }
  }
  return counts;
}

}  // namespace trv5
