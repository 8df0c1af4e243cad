#include "cases/case_search.h"

#include <string>

#include "cases/case_rows.h"
#include "cases/chosen_situation.h"
#include "cases/method_codec.h"
#include "cases/result_states.h"
#include "cases/selections.h"
#include "core/numbers.h"
#include "core/text.h"
#include "method/detection.h"

namespace trv5 {
namespace {

constexpr int kTabSelections = 1, kTabCases = 0;

void readSelections(Workbench& w) {
  w.RuoteRilevazione = 0;
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (w.FgRR.back(0, wheel) == Verde) w.RuoteRilevazione |= 1U << wheel;
  w.RuotaRilevazione = w.ComboR1.index();
  w.Elenco = w.ComboEle.number();
  w.Retro = w.ComboRetro.index();
  RicavaRuoteGioco(w);
  for (const auto& [position, label] : w.LblPN)
    w.PosizioniScelte[static_cast<std::size_t>(position)] = label->back() == Verde;
  w.QNR1 = w.ComboQNR1.number();
  w.QNR2 = w.ComboQNR2.number();
  w.TipoRilevazione = w.ComboFiltro.text();
}

// False when the run stops for want of a usable value.
bool valuesAreUsable(Workbench& w, SituationKind kind) {
  const std::string text = asciiText(w.TxtNumeri.text());
  const bool needsValue =
      kind != SituationKind::NumPari && kind != SituationKind::Ciclo && kind != SituationKind::Mensile;
  if (needsValue && text.empty()) {
    w.shell().message({.text = "Attenzione: Selezionare almeno un valore"});
    w.SSTab1.set(kTabSelections);
    return false;
  }
  const bool oneValue =
      kind == SituationKind::Differenza || kind == SituationKind::Distanza || kind == SituationKind::Somma;
  if (oneValue && text.size() >= 3) {
    w.shell().message({.text = "Attenzione: per Distanza, Differenza e Somma, selezionare un solo valore"});
    w.TxtNumeri.set("");
    w.SSTab1.set(kTabSelections);
    return false;
  }
  return true;
}

void readNumbers(Workbench& w) {
  w.TestoNumeri = w.TxtNumeri.text();
  w.NumeriScelti = chosenNumbers(w.TestoNumeri);
  for (std::size_t at = 1; at <= kMostNumber; ++at) {
    if (!w.NumeriScelti[at]) continue;
    w.DecineScelte[static_cast<std::size_t>(TabDecina[at])] = true;
    w.CadenzeScelte[static_cast<std::size_t>(TabCadenza[at])] = true;
    w.FigureScelte[static_cast<std::size_t>(TabFigura[at])] = true;
  }
}

}  // namespace

void RicavaElencoEstrazioni(Workbench& w) {
  readSelections(w);
  const SituationKind kind = situationKindOf(w.TipoRilevazione).value_or(SituationKind::Mensile);
  if (!valuesAreUsable(w, kind)) return;
  w.Colpi = w.ComboColpi.number();
  w.ValoreMensile = w.ComboPar.index();
  w.MaxCasi = w.ComboNC.number();
  w.DecineScelte = w.CadenzeScelte = w.FigureScelte = {};
  if (kind != SituationKind::Mensile) readNumbers(w);
  if (kind == SituationKind::Ciclo && w.ValoreMensile < 5)
    w.shell().message({.text =
                           "Quanso è selezionata la rilevazione per ciclo la dursta non può essere inferiore a 5. Va "
                           "impostata dalla lista Mensile"});
  w.QuantiNumeri = w.ComboQNu.number();

  const Grid::Batch batch(w.FgEv);
  w.FgEv.cutToHeading();
  w.NumeroCasi = 0;
  if (w.Ch_analisi2ruote.checked() && kind == SituationKind::Distanza && numberOf(w.TxtNumeri.text()) > 45) {
    w.shell().message({.text = "Selezionare un valore compreso tra 1 e 45"});
    return;
  }
  const std::vector<FoundCase> cases = detectCases(w.archive, situationOf(w), w.PosizioniColpite);
  w.NumeroCasi = static_cast<int>(cases.size());
  writeCases(w, cases);
  noteCases(w);
  w.SSTab1.set(kTabCases);
  if (w.FgEv.dataRows() > kMostCases) {
    w.shell().message({.text = "Non sono consentite più di 50 casistiche... quelle eccedenti saranno rimosse.",
                       .icon = Icon::Critical});
    w.FgEv.setRows(kMostCases + w.FgEv.headingRows());
  }
  if (w.FgEv.hasData()) w.Label5.setText(std::to_string(caseDraw(w, 1) - caseDraw(w, w.FgEv.rows() - 1)));
  w.FgEv.setEmptyText("Nessun caso per questa situazione: cambia il valore o le posizioni");
  w.FgF.setEmptyText(w.FgEv.hasData() ? "Nessuna ricerca: premi 1N 1R, 2N 1R, 3N 1R o 2N 2R"
                                      : "Nessuna ricerca: prima ricava l'elenco delle estrazioni");
  w.shell().status("Elenco estrazioni: " + counted(w.FgEv.dataRows(), "caso", "casi"));
}

}  // namespace trv5
