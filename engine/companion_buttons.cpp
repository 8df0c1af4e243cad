#include "engine/companion_buttons.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "cases/formula_rows.h"
#include "core/text.h"
#include "engine/candidate_check.h"
#include "engine/colouring.h"
#include "engine/evaluation.h"
#include "engine/hit_sources.h"
#include "engine/lunghetta.h"
#include "engine/ranking_origin.h"
#include "engine/search_frame.h"
#include "engine/search_luck_line.h"

namespace trv5 {
namespace {

CompanionRequest requestOf(const Workbench& w, const CompanionButton& button) {
  CompanionRequest request{.archive = &w.archive,
                           .formula = {.shape = button.shape,
                                       .elements = elementTables(w, StaleElement::NumeroOttenuto, button.shape),
                                       .op = static_cast<Operator>(operatorIndex(w)),
                                       .triples = w.TerzineAmmesse},
                           .rows = {},
                           .wheels = w.RuoteGioco,
                           .guarded = button.guarded,
                           .allowedFix = w.FixAmmessi,
                           .withFix = w.ChFix1R.checked(),
                           .keep = w.Elenco};
  if (button.table == Table::Terni) request.least = request.most = 2;  // the ambo must stand whole on the wheel
  if (button.table == Table::Lunghetta) request.least = std::max(1, w.Sorte - 1);
  for (const HitRow& hit : countingHits(w, hitSource(button.table)))
    request.rows.push_back({hit.caseDraw, hit.hitDraw, hit.numbers});
  return request;
}

// What the progress bar counts: hit rows, or the first wheels that ambi and lunghette of several elements go through.
int progressSteps(const Workbench& w, const CompanionButton& button) {
  if (button.table == Table::Terni || button.shape == Shape::OneNumber)
    return (w.*hitSource(button.table).hits).dataRows();
  return button.shape == Shape::TwoTwoWheels ? kWheels - 1 : kWheels;
}

}  // namespace

const CompanionButton& companionSearch(std::string_view name) {
  for (const CompanionButton& search : kCompanionButtons)
    if (search.name == name) return search;
  throw std::logic_error("no such search: " + std::string(name));
}

void CercaCompagni(Workbench& w, const CompanionButton& button) {
  using namespace formula_column;
  if (!hitsAreThere(w, hitSource(button.table))) return;
  if (button.table == Table::Lunghetta) w.Sorte = w.ComboSorte.index() + 1;
  startLog(w);
  SettaggioFix(w);
  w.Elenco = w.ComboEle.number();
  w.Colpi = w.ComboColpi.number();
  if (operatorIndex(w) < button.knownOperators)
    w.OperazioneCorrente = kOperators[static_cast<std::size_t>(operatorIndex(w))];
  if (button.table == Table::Lunghetta) PreparaPerScoperti(w);

  const Grid::Batch batch(w.FgF);
  blankCandidates(w, w.Elenco);
  const CompanionRequest request = requestOf(w, button);
  const int steps = progressSteps(w, button);
  w.shell().progress(0, steps);
  const std::vector<Candidate> ranking = searchCompanions(request);
  w.shell().progress(steps, steps);
  writeRanking(w, ranking, button.shape, request.withFix);
  if (button.writesOperator) writeAllRows(w, kOperator, w.OperazioneCorrente);
  writeAllRows(w, kAlteration, w.Combo1R_1N.text());
  writeAllRows(w, kNr, button.nr);
  writeAllRows(w, kQn, button.qn);
  noteRanking(w, {.table = button.table, .shape = button.shape});
  RankedSearch ranked = rankedCompanions(w, request, button.table);
  closeCompanionSearch(w, button.table);
  noteSearch(w, std::move(ranked));
}

void closeCompanionSearch(Workbench& w, Table table) {
  VerificaCandidati(w, table);
  w.FgF.sortByNumber(formula_column::kCc, true);
  ColoraFgF(w);
  chooseFirstCandidate(w);
  addTime(w);
  // An empty grid of hits is searched without a box: the blank list has its reason all the same.
  w.shell().status((w.*hitSource(table).hits).hasData()
                       ? "Ricerca: " + counted(w.FgF.dataRows(), "riga verificata", "righe verificate")
                       : "Ricerca senza esiti: elabora prima la lunghetta con >>");
}

}  // namespace trv5
