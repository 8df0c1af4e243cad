#include "method/verification.h"

namespace trv5 {

Hits hitsOfCase(const Outcomes& outcomes, Table table, const CaseNumbers& numbers, int caseDraw,
                const PlayWindow& window, int sorte) {
  const int joined = traitsOf(table).joinedTables;
  if (joined == 0) return hitsOfAll(outcomes, caseDraw, window, numbers[indexOf(table)].flags(), sorte);
  if (joined == 1) return hitsOfNumbers(outcomes, caseDraw, window, numbers[indexOf(table)].flags());
  std::array<NumberList, 3> lists;
  for (std::size_t i = 0; i < static_cast<std::size_t>(joined); ++i) lists[i] = numbers[i].sorted();
  return hitsOfSets(outcomes, caseDraw, window, std::span(lists).first(static_cast<std::size_t>(joined)));
}

Verification play(const Outcomes& outcomes, const Method& method, Table table, const std::vector<int>& caseDraws,
                  const Scope& scope, std::vector<CaseNumbers> numbers) {
  const TableTraits& traits = traitsOf(table);
  PlayWindow window = method.window();
  if (scope.lastDraw != 0) window.lastDraw = scope.lastDraw;
  Verification v;
  v.numbers = std::move(numbers);
  v.hits.resize(caseDraws.size());
  v.played.resize(caseDraws.size());
  v.open.resize(caseDraws.size());
  for (std::size_t i = 0; i < caseDraws.size(); ++i) {
    v.open[i] = method.reference - caseDraws[i] < method.colpi;
    v.played[i] = i >= scope.leftOut.size() || !scope.leftOut[i];
    if (!v.played[i]) continue;
    v.hits[i] = hitsOfCase(outcomes, table, v.numbers[i], caseDraws[i], window, method.sorte);
    for (const Hit& hit : v.hits[i])
      ++v.bySorte[static_cast<std::size_t>(traits.joinedTables == 0 ? hit.count : traits.joinedTables)];
    v.totals.add(static_cast<int>(v.hits[i].size()));
  }
  return v;
}

Verification verify(const Archive& archive, const Method& method, Table table, const std::vector<int>& caseDraws,
                    const Scope& scope, ParametriFormula& carry) {
  return play(archive, method, table, caseDraws, scope, numbersInPlay(archive, method.formulas, caseDraws, carry));
}

RowVerification verifyRow(const Archive& archive, const PlayWindow& window, const std::vector<int>& caseDraws,
                          ParametriFormula& carry, const std::function<void(ParametriFormula&)>& evaluate) {
  RowVerification v;
  for (const int draw : caseDraws) {
    carry.Estr = draw;
    evaluate(carry);
    const int number = carry.NumeroOttenuto;
    NumberFlags inPlay{};
    if (number >= 1 && number <= kMostNumber) inPlay[static_cast<std::size_t>(number)] = true;
    v.numbers.push_back(number);
    v.hits.push_back(hitsOfNumbers(archive, draw, window, inPlay));
  }
  return v;
}

}  // namespace trv5
