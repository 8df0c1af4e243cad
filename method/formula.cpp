#include "method/formula.h"

#include <algorithm>

namespace trv5 {
namespace {

template <class Rule>
ElementTable tableOf(Rule rule) {
  ElementTable table{};
  for (int n = 0; n <= 90; ++n) table[static_cast<std::size_t>(n)] = static_cast<std::uint8_t>(rule(n));
  return table;
}

ElementTable tableOf(const NumberTable& property) {
  return tableOf([&](int n) { return property[static_cast<std::size_t>(n)]; });
}

}  // namespace

const ElementTable* findElementTable(std::string_view alteration) {
  static const std::array<ElementTable, kAlterations.size()> tables = {tableOf([](int n) { return n; }),
                                                                       tableOf([](int n) { return 91 - n; }),
                                                                       tableOf(TabCadenza),
                                                                       tableOf(TabDecina),
                                                                       tableOf(TabDiametrale),
                                                                       tableOf(TabDiametraleDecina),
                                                                       tableOf([](int n) { return n / 10 * (n % 10); }),
                                                                       tableOf(TabFigura),
                                                                       tableOf(TabVertibile)};
  const auto it = std::find(kAlterations.begin(), kAlterations.end(), alteration);
  return it == kAlterations.end() ? nullptr : &tables[static_cast<std::size_t>(it - kAlterations.begin())];
}

ElementTable constantTable(int element) {
  return tableOf([element](int) { return element; });
}

std::optional<Operator> operatorOf(std::string_view literal) {
  const auto it = std::find(kOperators.begin(), kOperators.end(), literal);
  if (it == kOperators.end()) return std::nullopt;
  return static_cast<Operator>(it - kOperators.begin());
}

}  // namespace trv5
