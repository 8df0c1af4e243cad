#include "engine/ambata_buttons.h"

#include <stdexcept>
#include <string>

#include "cases/formula_rows.h"
#include "cases/status_texts.h"
#include "core/text.h"
#include "engine/colouring.h"
#include "engine/evaluation.h"
#include "engine/ranking_origin.h"
#include "engine/search_frame.h"
#include "engine/search_luck_line.h"

namespace trv5 {
namespace {

// "1N 1R" has an arithmetic of its own: its "FIG" ends in the vertible, it doesn't know "VERT", and it alone knows the
// head number "CAPO". Users' rankings rely on it.
std::array<ElementTable, 3> ownElementTables(const Workbench& w) {
  const std::string& alteration = w.Combo1R_1N.text();
  if (alteration == "FIG") return {*findElementTable("VERT"), {}, {}};
  if (alteration == "VERT") return {constantTable(residue90(w.Formula.NumeroOttenuto)), {}, {}};
  if (alteration == "CAPO") return {constantTable(numberOf(w.TxtNumeri.text().substr(0, 2))), {}, {}};
  return elementTables(w, StaleElement::NumeroOttenuto, Shape::OneNumber);
}

// The element of the last case, wheel and position stays in the shared record: the constant of a later "VERT".
void keepLastElement(Workbench& w, const AmbataRequest& request) {
  if (request.cases.empty()) return;
  const int number = w.archive.number(request.cases.back(), kWheels - 1, kPositions);
  w.Formula.NumeroOttenuto = zeroAs90(request.formula.elements[0][static_cast<std::size_t>(number)]);
}

std::string operatorText(const Workbench& w, Shape shape) {
  if (shape == Shape::ThreeOneWheel) return std::string(kSumOfThree);
  return std::string(kOperators[static_cast<std::size_t>(operatorIndex(w))]);
}

}  // namespace

const AmbataButton& ambataSearch(std::string_view name) {
  for (const AmbataButton& search : kAmbataButtons)
    if (search.name == name) return search;
  throw std::logic_error("no such search: " + std::string(name));
}

void CercaAmbate(Workbench& w, const AmbataButton& button) {
  using namespace formula_column;
  if (!w.FgEv.hasData()) {
    w.shell().status(kNoCases);
    return;
  }
  startLog(w);
  SettaggioFix(w);
  w.Elenco = w.ComboEle.number();
  if (button.readsColpi) w.Colpi = w.ComboColpi.number();
  const Grid::Batch batch(w.FgF);
  blankCandidates(w, w.Elenco);

  AmbataRequest request{
      .archive = &w.archive,
      .formula = {.shape = button.shape,
                  .elements =
                      button.ownAlterations ? ownElementTables(w) : elementTables(w, StaleElement::Elem, button.shape),
                  .op = static_cast<Operator>(operatorIndex(w)),
                  .triples = w.TerzineAmmesse},
      .cases = countingCases(w),
      .colpi = w.Colpi,
      .lastDraw = w.EstrazioneRiferimento,
      .wheelSets = button.wheelsOfSet == 0 ? std::vector<WheelSet>{w.RuoteGioco} : wheelSetsOf(button.wheelsOfSet),
      .allowedFix = w.FixAmmessi,
      .withFix = w.ChFix1R.checked(),
      .keep = w.Elenco,
      .repeatsAtZeroGetLost = button.repeatsAtZeroGetLost};
  const int steps = button.wheelsOfSet == 0 ? w.FgEv.dataRows() : static_cast<int>(request.wheelSets.size());
  if (button.movesProgress) w.shell().progress(0, steps);
  const std::vector<Candidate> ranking = searchAmbate(request);
  if (button.logsEachPass) startLog(w);  // the log starts anew with every wheel set: the last one's time stays
  if (button.movesProgress) w.shell().progress(steps, steps);
  if (button.ownAlterations) keepLastElement(w, request);

  writeRanking(w, ranking, button.shape, request.withFix);
  for (std::size_t i = 0; button.wheelsOfSet > 0 && i < ranking.size(); ++i)
    w.FgF.setText(static_cast<int>(i) + 1, formula_column::kOwnWheels,
                  wheelCodes(request.wheelSets[static_cast<std::size_t>(ranking[i].wheelSet)]));
  if (button.shape != Shape::OneNumber) writeAllRows(w, kOperator, operatorText(w, button.shape));
  writeAllRows(w, kAlteration, w.Combo1R_1N.text());
  writeAllRows(w, kNr, button.nr);
  writeAllRows(w, kQn, button.qn);
  ColoraFgF(w);
  noteRanking(w, {.table = Table::Ambate,
                  .shape = button.shape,
                  .wheelsOfSet = button.wheelsOfSet,
                  .cases = static_cast<int>(request.cases.size())});
  noteLastSearch(w, request, button.wheelsOfSet);
  noteSearch(w, rankedAmbate(w, request, button.wheelsOfSet));
  if (!ranking.empty()) chooseFirstCandidate(w);
  addTime(w);
  w.shell().status("Ricerca: " + counted(static_cast<int>(ranking.size()), "formula", "formule"));
}

}  // namespace trv5
