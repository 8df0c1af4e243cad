#include "cases/chosen_situation.h"

#include "core/text.h"

namespace trv5 {
namespace {

// What a control that the chosen kind reads says, into its place.
template <class Value>
void take(const Control& control, Value& place, Value value) {
  if (!control.aside()) place = value;
}

WheelSet greenWheels(const Grid& grid) {
  WheelSet wheels = 0;
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (grid.back(0, wheel) == Verde) wheels |= 1U << wheel;
  return wheels;
}

}  // namespace

NumberFlags chosenNumbers(const std::string& text) {
  NumberFlags numbers{};
  for (const int n : numbersEveryThree(asciiText(text)))
    if (n >= 1 && n <= kMostNumber) numbers[static_cast<std::size_t>(n)] = true;
  return numbers;
}

Situation chosenSituation(const Workbench& w) {
  Situation s{.kind = situationKindOf(w.ComboFiltro.text()).value_or(SituationKind::Mensile),
              .reference = w.EstrazioneRiferimento,
              .maxCases = w.ComboNC.number(),
              .twoElements = w.Ch_analisi2ruote.checked()};
  take(w.ComboPar, s.period, w.ComboPar.index());
  take(w.ComboR1, s.wheel, w.ComboR1.index());
  take(w.ComboQNu, s.quantity, w.ComboQNu.number());
  if (s.period == 0) take(w.Ch_ultima, s.forceLast, w.Ch_ultima.checked());
  for (const auto& [position, label] : w.LblPN)
    take(*label, s.positions[static_cast<std::size_t>(position)], label->back() == Verde);
  take(w.TxtNumeri, s.numbers, chosenNumbers(w.TxtNumeri.text()));
  // One element looks back or doesn't: how far makes no difference.
  take(w.ComboRetro, s.back, s.twoElements ? w.ComboRetro.index() : std::min(w.ComboRetro.index(), 1));
  take(w.FgRR, s.wheels, greenWheels(w.FgRR));
  take(w.ComboQNR1, s.quantity1, w.ComboQNR1.number());
  take(w.ComboQNR2, s.quantity2, w.ComboQNR2.number());
  take(w.ChDDS, s.oneToOne, w.ChDDS.checked());
  take(w.Ch_ISO, s.isotopes, w.Ch_ISO.checked());
  return s;
}

}  // namespace trv5
