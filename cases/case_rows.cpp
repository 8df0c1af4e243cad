#include "cases/case_rows.h"

#include <string>

namespace trv5 {
namespace {

void writeElement(Workbench& w, int row, int column, const FoundElement& element) {
  w.FgEv.setNumber(row, column, element.draw);
  w.FgEv.setText(row, column + 1, w.archive.DateEstrazioni(element.draw));
  w.FgEv.setText(row, column + 2, CodiciRuote[static_cast<std::size_t>(element.wheel)]);
  w.FgEv.setBack(row, column + 2, Giallo);
  w.FgEv.setBold(row, column + 2);
  for (int p = 1; p <= kPositions; ++p) {
    w.FgEv.setNumber(row, column + 2 + p, w.archive.NumeriEstratti(element.draw, element.wheel, p));
    if (element.marks[static_cast<std::size_t>(p)]) w.FgEv.setBack(row, column + 2 + p, VerdeMedio);
  }
}

}  // namespace

void writeCases(Workbench& w, const std::vector<FoundCase>& cases) {
  for (const FoundCase& found : cases) {
    const int row = w.FgEv.appendRow();
    w.FgEv.setNumber(row, case_column::kProg, row);
    writeElement(w, row, case_column::kDraw, found.first);
    if (found.second) writeElement(w, row, case_column::kDraw2, *found.second);
  }
}

std::vector<int> caseDraws(const Workbench& w) {
  std::vector<int> draws;
  for (int row = 1; row < w.FgEv.rows(); ++row) draws.push_back(caseDraw(w, row));
  return draws;
}

void markCovered(Workbench& w, int row, int column, int hits) {
  w.FgEv.setBack(row, column, Verde);
  w.FgEv.setNumber(row, column, hits);
}

void clearMarks(Workbench& w, int column) {
  w.origins.marks[static_cast<std::size_t>(column - case_column::kHits)].clear();
  for (int row = 1; row < w.FgEv.rows(); ++row) {
    w.FgEv.setBack(row, column, kWhite);
    w.FgEv.setText(row, column, "");
  }
}

Totals totalsOfMarks(const Workbench& w, int column) {
  Totals totals;
  for (int row = 1; row < w.FgEv.rows(); ++row) {
    totals.hits += w.FgEv.number(row, column);
    if (isCovered(w, row, column)) ++totals.cases;
  }
  return totals;
}

void markOpenCases(Workbench& w) {
  for (int row = 1; row < w.FgEv.rows(); ++row)
    if (w.EstrazioneRiferimento - caseDraw(w, row) < w.Colpi) w.FgEv.setBack(row, case_column::kDraw, Ciano);
}

std::multiset<int> openCases(const Workbench& w) {
  std::multiset<int> open;
  for (int row = 1; row < w.FgEv.rows(); ++row)
    if (isOpen(w, row)) open.insert(w.FgEv.number(row, case_column::kProg));
  return open;
}

std::vector<int> caseNumbering(const Workbench& w) {
  std::vector<int> numbering;
  for (int row = 1; row < w.FgEv.rows(); ++row) numbering.push_back(w.FgEv.number(row, case_column::kProg));
  return numbering;
}

}  // namespace trv5
