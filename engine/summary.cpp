#include "engine/summary.h"

#include <array>
#include <set>
#include <string>
#include <vector>

#include "cases/case_rows.h"
#include "cases/case_search.h"
#include "cases/hit_rows.h"
#include "cases/result_states.h"
#include "core/text.h"
#include "engine/statistics.h"
#include "engine/verification.h"
#include "method/summary.h"

namespace trv5 {
namespace {

using namespace hit_column;

constexpr int kSorte = kRow;  // column 3 of FgZZ: 1 ambata, 2 ambo, 3 terno, empty without hit

// A row of a hit grid.
struct Source {
  const Grid* grid;
  int row;
};

// The hits of the ticked tables, and the rows they come from.
std::vector<SummaryHit> chosenHits(const Workbench& w, std::vector<Source>& sources) {
  const std::array<std::pair<const Check*, Table>, 3> boxes = {
      {{&w.ChA, Table::Ambate}, {&w.ChB, Table::Ambi}, {&w.ChC, Table::Terni}}};
  std::vector<SummaryHit> hits;
  for (const auto& [box, table] : boxes) {
    if (!box->checked()) continue;
    const Grid& grid = w.hits(table);
    int row = grid.headingRows();
    for (const HitRow& hit : readHits(grid, 0)) {
      if (hit.hit) {
        hits.push_back({hit.caseRow, hit.colpo, traitsOf(table).code});
        sources.push_back({&grid, row});
      }
      ++row;
    }
  }
  return hits;
}

void writeHit(Workbench& w, int row, const Source& source, int sorte) {
  for (int column = 0; column < source.grid->columns(); ++column)
    w.FgZZ.setCell(row, column, source.grid->at(source.row, column));
  w.FgZZ.setNumber(row, kSorte, sorte);
  for (int column = kDrawn; column < kDrawn + kPositions; ++column)
    if (w.FgZZ.back(row, column) == Verde) w.FgZZ.setBack(row, column, ColoriSorte[static_cast<std::size_t>(sorte)]);
}

void writeMiss(Workbench& w, int row, int caseRow) {
  w.FgZZ.setNumber(row, kCase, caseRow);
  w.FgZZ.setBack(row, kCase, AranciaMedio);
  w.FgZZ.setText(row, kCaseDraw, w.FgEv.text(caseRow, case_column::kDraw));
  w.FgZZ.setText(row, kCaseDate, w.FgEv.text(caseRow, case_column::kDate));
  w.FgZZ.setBack(row, kCaseDate, GialloChiaro);
}

// False when a grid held what can't be; all the rest is done.
bool joinTables(Workbench& w) {
  std::vector<Source> sources;
  const std::vector<SummaryHit> hits = chosenHits(w, sources);
  const std::multiset<int> open = openCases(w);
  const Summary summary =
      summarize(hits, caseNumbering(w), std::set<int>(open.begin(), open.end()), w.Ch1esito.checked());

  const Grid::Batch batch(w.FgZZ);
  w.FgZZ.cutToHeading();
  for (const SummaryRow& found : summary.rows) {
    const int row = w.FgZZ.appendRow();
    if (found.hit >= 0) {
      const auto at = static_cast<std::size_t>(found.hit);
      writeHit(w, row, sources[at], hits[at].sorte);
    } else {
      writeMiss(w, row, found.caseRow);
    }
    w.FgZZ.setBack(row, kSorte, CianoMedio);
  }
  w.CasiInCorso = static_cast<int>(open.size());
  markOpenRows(w.FgZZ, open);
  w.FgZZ.setMerged({kCase, kCaseDraw, kCaseDate});
  w.EsitiPerSorte = summary.bySorte;
  scriveRiepilogo(w, summary.positive, summary.negative);
  PopolaGrafico(w);
  noteSummary(w);
  noteStatistics(w, w.FgZZ);
  w.shell().status("Riepilogo: " + counted(w.FgEv.dataRows(), "caso", "casi") + ", " +
                   counted(summary.positive, "esito", "esiti"));
  return !summary.anomaly;
}

}  // namespace

void CreaRiepilogo(Workbench& w) {
  if (!joinTables(w)) w.shell().message({.text = "Attenzione! probabile anomalia..", .icon = Icon::Critical});
}

void RielaboraTutto(Workbench& w) {
  RicavaElencoEstrazioni(w);
  int verified = 0;
  for (const TableTraits& table : kTables) {
    verificaTutte(w, table.table);
    if (const int rows = w.formulas(table.table).dataRows(); rows > 0 && rows <= table.mostFormulas) ++verified;
  }
  w.shell().status("Rielaborato tutto: " + counted(w.FgEv.dataRows(), "caso", "casi") + ", " +
                   counted(verified, "tabella verificata", "tabelle verificate"));
}

}  // namespace trv5
