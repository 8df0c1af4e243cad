#include "engine/whole_ranking.h"

#include <algorithm>
#include <string>

#include "cases/formula_rows.h"
#include "cases/status_texts.h"
#include "chance/whole_search.h"
#include "core/figures.h"
#include "core/text.h"
#include "engine/ambata_buttons.h"
#include "engine/colouring.h"
#include "engine/ranking_origin.h"
#include "engine/search_frame.h"
#include "engine/search_luck_line.h"

namespace trv5 {
namespace {

// The button that runs a pass on chosen wheels: its rows are like those of that button.
const AmbataButton& buttonOf(Shape shape) {
  return *std::find_if(kAmbataButtons.begin(), kAmbataButtons.end(), [shape](const AmbataButton& button) {
    return button.shape == shape && button.wheelsOfSet == 0;
  });
}

std::string_view operatorText(const WholePass& pass) {
  if (pass.shape == Shape::OneNumber) return {};
  return pass.shape == Shape::ThreeOneWheel ? kSumOfThree : kOperators[static_cast<std::size_t>(pass.op)];
}

void writeRow(Grid& ranking, int row, const WholeRow& found) {
  using namespace formula_column;
  const AmbataButton& button = buttonOf(found.pass.shape);
  writeElements(ranking, row, found.formula.elements, elementsOf(found.pass.shape));
  ranking.setText(row, kOperator, operatorText(found.pass));
  ranking.setNumber(row, kFix, found.formula.fix);
  ranking.setNumber(row, kPres, found.formula.pres);
  ranking.setNumber(row, kCc, found.formula.cc);
  ranking.setText(row, kNr, button.nr);
  ranking.setText(row, kQn, button.qn);
  ranking.setText(row, kAlteration, kAlterations[static_cast<std::size_t>(found.pass.alteration)]);
  ranking.setText(row, kOwnWheels, wheelCodes(found.wheels));
}

}  // namespace

void CercaTutte(Workbench& w) {
  if (!w.FgEv.hasData()) {
    w.shell().status(kNoCases);
    return;
  }
  const Hourglass hourglass(w.shell());
  startLog(w);
  w.Elenco = w.ComboEle.number();
  w.Colpi = w.ComboColpi.number();
  const WholeRequest request{.archive = &w.archive,
                             .cases = countingCases(w),
                             .colpi = w.Colpi,
                             .lastDraw = w.EstrazioneRiferimento,
                             .triples = w.TerzineAmmesse,
                             .order = w.ComboOrdine.index() == 1 ? WholeOrder::Covered : WholeOrder::Rarity,
                             .keep = w.Elenco};
  w.shell().progress(0, 1);
  const std::vector<WholeRow> rows = searchEverything(request);
  w.shell().progress(1, 1);

  const Grid::Batch batch(w.FgF);
  blankCandidates(w, w.Elenco);
  for (std::size_t i = 0; i < rows.size(); ++i) writeRow(w.FgF, static_cast<int>(i) + 1, rows[i]);
  ColoraFgF(w);
  noteWholeRanking(w, static_cast<int>(request.cases.size()));
  noteSearch(w, {});
  if (!rows.empty()) chooseFirstCandidate(w);
  addTime(w);
  w.shell().status("Ricerca: " + counted(static_cast<int>(rows.size()), "formula", "formule") + " su " +
                   figureText(static_cast<double>(wholeFormulas(request.triples))) + " provate");
}

}  // namespace trv5
