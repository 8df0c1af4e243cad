#include "cases/read_selections.h"

#include "method/detection.h"

namespace trv5 {

void MarcaSelezioniLette(Workbench& w) {
  const SituationKind kind = situationKindOf(w.ComboFiltro.text()).value_or(SituationKind::Mensile);
  const bool two = w.Ch_analisi2ruote.checked();
  const bool numbers = kind == SituationKind::Numeri;
  const bool pairs =
      kind == SituationKind::Distanza || kind == SituationKind::Differenza || kind == SituationKind::Somma;
  const bool valued = numbers || pairs;
  const bool period = kind == SituationKind::Mensile || kind == SituationKind::Ciclo || kind == SituationKind::NumPari;

  const auto reads = [](Control& control, bool read) { control.setAside(!read); };
  reads(w.ComboPar, !two && period);
  reads(w.ComboR1, !two);
  reads(w.ComboQNu, !two && valued);
  reads(w.Ch_ultima, !two && kind == SituationKind::Mensile);
  for (const auto& [position, label] : w.LblPN) reads(*label, two ? valued : valued || kind == SituationKind::NumPari);
  reads(w.TxtNumeri, valued);
  // One element looks back among numbers alone, and there only whether it looks back at all.
  reads(w.ComboRetro, two ? valued : numbers);
  reads(w.FgRR, two && valued);
  reads(w.ComboQNR1, two && numbers);
  reads(w.ComboQNR2, two && numbers);
  reads(w.ChDDS, two && pairs);
  reads(w.Ch_ISO, two && valued);
}

}  // namespace trv5
