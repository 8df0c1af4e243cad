#include "cases/hit_rows.h"

#include "cases/case_rows.h"

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

std::vector<HitRow> readHits(const Grid& grid, int numberColumns) {
  using namespace hit_column;
  std::vector<HitRow> rows;
  for (int row = 1; row < grid.rows(); ++row) {
    HitRow& hit = rows.emplace_back();
    hit.caseRow = grid.number(row, kCase);
    hit.caseDraw = grid.number(row, kCaseDraw);
    hit.hitDraw = grid.number(row, kDraw);
    hit.row = grid.number(row, kRow);
    hit.colpo = grid.number(row, kColpo);
    hit.hit = grid.back(row, kCase) == VerdeMedio;
    for (int column = kNumbers; column < kNumbers + numberColumns; ++column)
      if (const int n = grid.number(row, column); n > 0) hit.numbers.push_back(n);
  }
  return rows;
}

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

void markOpenRows(Grid& target, const std::multiset<int>& open) {
  for (int row = 1; row < target.rows(); ++row)
    if (open.contains(target.number(row, hit_column::kCase))) target.setBack(row, hit_column::kCase, Ciano);
}

}  // namespace trv5
