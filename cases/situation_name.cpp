#include "cases/situation_name.h"

#include "core/wheels.h"

namespace trv5 {
namespace {

std::string valueOf(const Situation& situation) {
  if (situation.kind == SituationKind::Mensile && situation.period == 0) return "U";
  const bool period = situation.kind == SituationKind::Mensile || situation.kind == SituationKind::Ciclo ||
                      situation.kind == SituationKind::NumPari;
  if (period) return std::to_string(situation.period);
  std::string text;
  for (std::size_t n = 1; n < situation.numbers.size(); ++n)
    if (situation.numbers[n]) text += (text.empty() ? "" : "-") + std::to_string(n);
  return text;
}

}  // namespace

std::string situationName(const Situation& situation) {
  std::string name = std::string(textOf(situation.kind)) + " " + valueOf(situation);
  if (situation.twoElements) return name + " su 2 ruote";
  return name + " a " + std::string(CodiciRuote[static_cast<std::size_t>(situation.wheel)]);
}

}  // namespace trv5
