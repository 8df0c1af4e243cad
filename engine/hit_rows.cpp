#include "engine/hit_rows.h"

#include <set>
#include <string>

namespace trv5 {
namespace {

int appendCase(const Workbench& w, Grid& target, int caseRow, Rgb mark) {
  using namespace hit_column;
  const int row = target.appendRow();
  const int draw = caseDraw(w, caseRow);
  target.setNumber(row, kCase, caseRow);
  target.setBack(row, kCase, mark);
  target.setNumber(row, kCaseDraw, draw);
  target.setText(row, kCaseDate, w.archive.DateEstrazioni(draw));
  return row;
}

}  // namespace

void appendHits(const Workbench& w, Grid& target, int caseRow, const Hits& hits, RowColumn rowColumn,
                HitColour colour) {
  using namespace hit_column;
  const int start = caseDraw(w, caseRow);
  int running = 0;
  for (const Hit& hit : hits) {
    const int row = appendCase(w, target, caseRow, VerdeMedio);
    ++running;
    if (rowColumn == RowColumn::RunningCount) {
      target.setNumber(row, kRow, running);
      if (hit.repeat) target.setBack(row, kRow, BluChiaro);
    } else {
      target.setNumber(row, kRow, hit.count);
    }
    for (int i = 0; i < hit.named; ++i) target.setNumber(row, kNumbers + i, hit.numbers[static_cast<std::size_t>(i)]);
    target.setNumber(row, kWheel, hit.wheel);
    target.setText(row, kWheelCode, CodiciRuote[static_cast<std::size_t>(hit.wheel)]);
    target.setNumber(row, kColpo, hit.draw - start);
    target.setNumber(row, kDraw, hit.draw);
    target.setText(row, kDate, w.archive.DateEstrazioni(hit.draw));
    const Rgb back = colour == HitColour::Green ? Verde : ColoriSorte[static_cast<std::size_t>(hit.count)];
    for (int p = 1; p <= kPositions; ++p) {
      target.setNumber(row, kDrawn + p - 1, w.archive.NumeriEstratti(hit.draw, hit.wheel, p));
      if ((hit.matched >> (p - 1) & 1U) != 0) target.setBack(row, kDrawn + p - 1, back);
    }
  }
}

int appendMiss(const Workbench& w, Grid& target, int caseRow) {
  return appendCase(w, target, caseRow, AranciaMedio);
}

void markCovered(Workbench& w, int caseRow, int column, int hits) {
  w.FgEv.setBack(caseRow, column, Verde);
  w.FgEv.setNumber(caseRow, column, hits);
}

void clearMarks(Workbench& w, int column) {
  for (int row = 1; row < w.FgEv.rows(); ++row) {
    w.FgEv.setBack(row, column, kWhite);
    w.FgEv.setText(row, column, "");
  }
}

void markOpenCases(Workbench& w) {
  for (int row = 1; row < w.FgEv.rows(); ++row)
    if (w.EstrazioneRiferimento - caseDraw(w, row) < w.Colpi) w.FgEv.setBack(row, case_column::kDraw, Ciano);
}

void countOpenCases(Workbench& w, Grid& hitGrid) {
  w.CasiInCorso = 0;
  std::set<std::string> open;
  for (int row = 1; row < w.FgEv.rows(); ++row) {
    if (w.FgEv.back(row, case_column::kDraw) != Ciano) continue;
    ++w.CasiInCorso;
    open.insert(w.FgEv.text(row, case_column::kProg));
  }
  for (int row = 1; row < hitGrid.rows(); ++row)
    if (open.contains(hitGrid.text(row, hit_column::kCase))) hitGrid.setBack(row, hit_column::kCase, Ciano);
}

PlayWindow playWindow(const Workbench& w) {
  return {.colpi = w.Colpi, .lastDraw = w.EstrazioneRiferimento, .wheels = w.RuoteGioco};
}

}  // namespace trv5
