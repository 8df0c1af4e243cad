#include "method/numbers_in_play.h"

#include <algorithm>

namespace trv5 {

void NumberList::add(int number) {
  if (number < 0 || number > kMostNumber || m_flags[static_cast<std::size_t>(number)]) return;
  m_flags[static_cast<std::size_t>(number)] = true;
  m_numbers[static_cast<std::size_t>(m_count++)] = static_cast<std::uint8_t>(number);
}

NumberList NumberList::sorted() const {
  NumberList list = *this;
  std::sort(list.m_numbers.begin(), list.m_numbers.begin() + m_count);
  return list;
}

std::vector<CaseNumbers> numbersInPlay(const Archive& archive, const Formulas& formulas,
                                       const std::vector<int>& caseDraws, ParametriFormula& carry) {
  ByTable<std::vector<Formula>> ready;
  for (const TableTraits& table : kTables) {
    const std::vector<FormulaRow>& rows = formulas[indexOf(table.table)];
    ready[indexOf(table.table)] = std::vector<Formula>(rows.begin(), rows.end());
  }
  std::vector<CaseNumbers> cases(caseDraws.size());
  for (std::size_t i = 0; i < caseDraws.size(); ++i) {
    carry.Estr = caseDraws[i];
    for (std::size_t table = 0; table < ready.size(); ++table)
      for (const Formula& formula : ready[table]) cases[i][table].add(formula.evaluate(archive, caseDraws[i], carry));
  }
  return cases;
}

}  // namespace trv5
