#include "method/elaboration.h"

#include <algorithm>

namespace trv5 {

bool marksCase(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const NumberFlags& inPlay) {
  return matchesOnLastWheel(outcomes, caseDraw, window, inPlay) >= 2;
}

Elaboration elaborate(const Archive& archive, const Method& method, const std::vector<int>& caseDraws,
                      ParametriFormula& carry) {
  constexpr int kLeast = 1;  // numbers on a wheel that are listed already
  Elaboration e;
  e.numbers = numbersInPlay(archive, method.formulas, caseDraws, carry);
  e.marked.resize(caseDraws.size());
  const PlayWindow window = method.window();
  for (std::size_t i = 0; i < caseDraws.size(); ++i) {
    const NumberFlags& inPlay = e.numbers[i][indexOf(Table::Lunghetta)].flags();
    const Hits& hits = e.hits.emplace_back(hitsOfAll(archive, caseDraws[i], window, inPlay, kLeast));
    for (const Hit& hit : hits) ++e.bySorte[static_cast<std::size_t>(hit.count)];
    const auto reached =
        std::count_if(hits.begin(), hits.end(), [&](const Hit& hit) { return hit.count >= method.sorte; });
    if (reached >= 1 && marksCase(archive, caseDraws[i], window, inPlay)) e.marked[i] = static_cast<int>(reached);
  }
  return e;
}

}  // namespace trv5
