#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "method/evaluation.h"
#include "method/flags.h"
#include "method/table.h"

namespace trv5 {

/// Numbers 0..90 in the order in which they were added, each once. No heap: a case holds four of them.
class NumberList {
 public:
  /// Takes no number that is there already or lies outside 0..90.
  void add(int number);
  /// In ascending order.
  NumberList sorted() const;

  const std::uint8_t* begin() const { return m_numbers.data(); }
  const std::uint8_t* end() const { return m_numbers.data() + m_count; }
  int size() const { return m_count; }
  bool empty() const { return m_count == 0; }
  /// By number, 0 included.
  const NumberFlags& flags() const { return m_flags; }

 private:
  std::array<std::uint8_t, 91> m_numbers;  // the first m_count of them
  int m_count = 0;
  NumberFlags m_flags{};
};

/// The numbers that the four tables put in play in one case.
using CaseNumbers = ByTable<NumberList>;

/// The formulas of the four tables.
using Formulas = ByTable<std::vector<FormulaRow>>;

/// Evaluates all formulas in all cases (`caseDraws`: their draws), case by case and within a case table by table, so
/// that what a formula leaves in `carry` reaches the next as it always did.
std::vector<CaseNumbers> numbersInPlay(const Archive& archive, const Formulas& formulas,
                                       const std::vector<int>& caseDraws, ParametriFormula& carry);

}  // namespace trv5
