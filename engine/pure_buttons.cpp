#include "engine/pure_buttons.h"

#include <algorithm>
#include <string>
#include <vector>

#include "cases/formula_rows.h"
#include "cases/status_texts.h"
#include "engine/colouring.h"
#include "engine/companion_buttons.h"
#include "engine/evaluation.h"
#include "engine/hit_sources.h"
#include "engine/lunghetta.h"
#include "engine/ranking_origin.h"
#include "engine/search_frame.h"
#include "engine/search_luck_line.h"

namespace trv5 {
namespace {

struct NumberRow {
  int number = 0;  // 0: a blank row
  NumberCount count = {};
  std::size_t wheelSet = 0;
};

// Moves the row at `at` to its place among the others, which are sorted by covered cases, as a stable sort would.
void settle(std::vector<NumberRow>& rows, std::size_t at) {
  const int cc = rows[at].count.cc;
  const auto here = rows.begin() + static_cast<std::ptrdiff_t>(at);
  const auto up = std::find_if(rows.begin(), here, [cc](const NumberRow& row) { return row.count.cc < cc; });
  if (up != here) {
    std::rotate(up, here, here + 1);
    return;
  }
  const auto down = std::find_if(here + 1, rows.end(), [cc](const NumberRow& row) { return row.count.cc <= cc; });
  std::rotate(here, here + 1, down);
}

std::vector<NumberRow> overwritePassByPass(const std::vector<NumberCounts>& passes) {
  std::vector<NumberRow> rows(kMostNumber);
  for (std::size_t pass = 0; pass < passes.size(); ++pass) {
    for (std::size_t n = 1; n <= kMostNumber; ++n) {
      rows[n - 1] = {static_cast<int>(n), passes[pass][n], pass};
      settle(rows, n - 1);
    }
  }
  return rows;
}

void writeNumber(Workbench& w, int row, int number, const NumberCount& count) {
  using namespace formula_column;
  w.FgF.setNumber(row, kFix, number);
  w.FgF.setNumber(row, kPres, count.pres);
  w.FgF.setNumber(row, kCc, count.cc);
}

NumberCounts countCompanions(const Workbench& w, Table table) {
  if (table == Table::Lunghetta) return {};
  std::vector<PureNumberRow> rows;
  // Rows left from a longer case list count for no case of this one.
  for (const HitRow& hit : countingHits(w, hitSource(table)))
    if (hit.caseRow < w.FgEv.rows()) rows.push_back({hit.caseRow, hit.hitDraw, hit.numbers});
  return countNumbersAtHits(w.archive, rows, w.RuoteGioco);
}

}  // namespace

void CercaNumeri(Workbench& w, int wheelsOfSet) {
  using namespace formula_column;
  if (!w.FgEv.hasData()) {
    w.shell().status(kNoCases);
    return;
  }
  startLog(w);
  w.Elenco = w.ComboEle.number();
  w.Colpi = w.ComboColpi.number();
  const std::vector<WheelSet> sets = wheelsOfSet == 0 ? std::vector<WheelSet>{w.RuoteGioco} : wheelSetsOf(wheelsOfSet);
  const int steps = wheelsOfSet == 0 ? w.FgEv.dataRows() : static_cast<int>(sets.size());
  w.shell().progress(0, steps);
  const std::vector<int> cases = countingCases(w);
  const std::vector<NumberRow> rows =
      overwritePassByPass(countNumbers(w.archive, cases, w.Colpi, w.EstrazioneRiferimento, sets));
  w.shell().progress(steps, steps);

  const Grid::Batch batch(w.FgF);
  blankCandidates(w, kMostNumber);
  for (int row = 1; row < w.FgF.rows(); ++row) {
    const NumberRow& found = rows[static_cast<std::size_t>(row - 1)];
    writeNumber(w, row, found.number, found.count);
    if (wheelsOfSet > 0) w.FgF.setText(row, formula_column::kOwnWheels, wheelCodes(sets[found.wheelSet]));
  }
  // The number is a fix, and obeys the same switch: without fix the list shows counts alone.
  if (!w.ChFix1R.checked()) writeAllRows(w, kFix, "");
  writeAllRows(w, kAlteration, w.Combo1R_1N.text());
  writeAllRows(w, kNr, "0");
  writeAllRows(w, kQn, "1");
  ColoraFgF(w);
  noteRanking(w, {.wheelsOfSet = wheelsOfSet, .cases = static_cast<int>(cases.size())});
  // Of the best wheels the list keeps what its last passes left, which no other archive can be set beside.
  noteSearch(w, wheelsOfSet == 0 ? rankedNumbers(w, cases) : RankedSearch());
  chooseFirstCandidate(w);
  addTime(w);
  w.shell().status("Ricerca: 90 numeri");
}

void CercaNumeriCompagni(Workbench& w, Table table) {
  using namespace formula_column;
  if (!hitsAreThere(w, hitSource(table))) return;
  startLog(w);
  if (table == Table::Lunghetta) {
    PreparaPerScoperti(w);
    w.Sorte = w.ComboSorte.index() + 1;
  }
  w.Elenco = w.ComboEle.number();
  SettaggioFix(w);
  w.Colpi = w.ComboColpi.number();
  // The lunghetta's walks over the wheels.
  const int steps = table == Table::Lunghetta ? kWheels : (w.*hitSource(table).hits).dataRows();
  w.shell().progress(0, steps);
  const NumberCounts counts = countCompanions(w, table);
  w.shell().progress(steps, steps);

  const Grid::Batch batch(w.FgF);
  blankCandidates(w, kMostNumber);
  for (int n = 1; n <= kMostNumber; ++n) writeNumber(w, n, n, counts[static_cast<std::size_t>(n)]);
  w.FgF.sortByNumber(kCc, true);
  writeAllRows(w, kNr, "0");
  writeAllRows(w, kQn, "0");
  noteRanking(w, {.table = table});
  closeCompanionSearch(w, table);
  noteSearch(w, {});
}

}  // namespace trv5
