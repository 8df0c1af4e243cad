#include "engine/search_frame.h"

#include <algorithm>

#include "cases/case_rows.h"
#include "cases/formula_rows.h"

namespace trv5 {

std::array<ElementTable, 3> elementTables(const Workbench& w, StaleElement oneNumber, Shape shape) {
  const std::string& alteration = w.Combo1R_1N.text();
  if (const ElementTable* const table = findElementTable(alteration)) return {*table, *table, *table};
  const int first = shape == Shape::OneNumber && oneNumber == StaleElement::NumeroOttenuto ? w.Formula.NumeroOttenuto
                                                                                           : w.Formula.Elem1;
  return {constantTable(residue90(first)), constantTable(residue90(w.Formula.Elem2)),
          constantTable(residue90(w.Formula.Elem3))};
}

int operatorIndex(const Workbench& w) {
  return std::max(0, w.Combo1R_2N.index() - 1);
}

void startLog(Workbench& w) {
  w.List1.clear();
  addTime(w);
}

void addTime(Workbench& w) {
  w.List1.add(timeText(w.shell().now()));
}

void blankCandidates(Workbench& w, int rows) {
  w.FgF.cutToHeading();
  w.FgF.setRows(w.FgF.headingRows() + rows);
}

void writeRanking(Workbench& w, const std::vector<Candidate>& ranking, Shape shape, bool withFix) {
  using namespace formula_column;
  int row = 0;
  for (const Candidate& candidate : ranking) {
    ++row;
    writeElements(w.FgF, row, candidate.elements, elementsOf(shape));
    if (withFix) w.FgF.setNumber(row, kFix, candidate.fix);
    w.FgF.setNumber(row, kPres, candidate.pres);
    w.FgF.setNumber(row, kCc, candidate.cc);
  }
}

void chooseFirstCandidate(Workbench& w) {
  if (w.FgF.hasData()) w.FgF.setCurrent(w.FgF.headingRows(), w.FgF.currentColumn());
}

void writeAllRows(Workbench& w, int column, const std::string& text) {
  for (int row = 1; row < w.FgF.rows(); ++row) w.FgF.setText(row, column, text);
}

std::vector<WheelSet> wheelSetsOf(int size) {
  std::vector<WheelSet> sets;
  for (int a = 0; a < kWheels; ++a) {
    if (size == 1) sets.push_back(1U << a);
    for (int b = a + 1; b < kWheels && size > 1; ++b) {
      if (size == 2) sets.push_back(1U << a | 1U << b);
      for (int c = b + 1; c < kWheels && size > 2; ++c) sets.push_back(1U << a | 1U << b | 1U << c);
    }
  }
  return sets;
}

std::vector<int> countingCases(const Workbench& w) {
  std::vector<int> draws;
  const int column = case_column::kHits + w.Sorte - 1;
  for (int row = 1; row < w.FgEv.rows(); ++row)
    if (!w.Ch_Scoperti.checked() || !isCovered(w, row, column)) draws.push_back(caseDraw(w, row));
  return draws;
}

}  // namespace trv5
