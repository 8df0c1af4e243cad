#include "engine/formula.h"

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

std::optional<ElementTable> elementTable(std::string_view alteration) {
  if (alteration.empty()) return tableOf([](int n) { return n; });
  if (alteration == "C91") return tableOf([](int n) { return 91 - n; });
  if (alteration == "CAD") return tableOf(TabCadenza);
  if (alteration == "DEC") return tableOf(TabDecina);
  if (alteration == "DIAM") return tableOf(TabDiametrale);
  if (alteration == "DIDE") return tableOf(TabDiametraleDecina);
  if (alteration == "D x U") return tableOf([](int n) { return n / 10 * (n % 10); });
  if (alteration == "FIG") return tableOf(TabFigura);
  if (alteration == "VERT") return tableOf(TabVertibile);
  return std::nullopt;
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
