#include "cases/formula_rows.h"

#include "core/wheels.h"

namespace trv5 {
namespace {

std::string joinedHeading(std::size_t columns, std::string_view FormulaColumn::*text) {
  std::string heading;
  for (std::size_t i = 0; i < columns; ++i) {
    if (i > 0) heading += '|';
    heading += kFormulaColumns[i].*text;
  }
  return heading;
}

std::vector<int> hiddenColumns(std::size_t columns, bool FormulaColumn::*shown) {
  std::vector<int> hidden;
  for (std::size_t i = 0; i < columns; ++i)
    if (!(kFormulaColumns[i].*shown)) hidden.push_back(static_cast<int>(i));
  return hidden;
}

}  // namespace

std::string tableHeading() {
  return joinedHeading(kFormulaColumns.size(), &FormulaColumn::heading);
}

std::string rankingHeading() {
  return joinedHeading(kRankingColumns, &FormulaColumn::heading);
}

std::string scratchHeading() {
  return joinedHeading(kFormulaColumns.size(), &FormulaColumn::scratchHeading);
}

std::vector<int> hiddenTableColumns() {
  return hiddenColumns(kFormulaColumns.size(), &FormulaColumn::inTables);
}

std::vector<int> hiddenRankingColumns() {
  return hiddenColumns(kRankingColumns, &FormulaColumn::inRanking);
}

FormulaRow readFormula(const Grid& grid, int row) {
  using namespace formula_column;
  FormulaRow formula;
  for (std::size_t e = 0; e < formula.elements.size(); ++e) {
    const int column = kR1 + kElement * static_cast<int>(e);
    formula.elements[e] = {grid.number(row, column), grid.number(row, column + kP1 - kR1),
                           !grid.text(row, column).empty()};
  }
  formula.fix = grid.number(row, kFix);
  formula.fixGiven = !grid.text(row, kFix).empty();
  formula.operation = grid.text(row, kOperator);
  formula.alteration = grid.text(row, kAlteration);
  formula.nr = grid.number(row, kNr);
  formula.qn = grid.number(row, kQn);
  formula.wheels = wheelsOfCodes(grid.text(row, kOwnWheels));
  return formula;
}

std::vector<FormulaRow> readFormulas(const Grid& grid) {
  std::vector<FormulaRow> formulas;
  for (int row = grid.headingRows(); row < grid.rows(); ++row) formulas.push_back(readFormula(grid, row));
  return formulas;
}

void writeElements(Grid& grid, int row, const ElementSet& elements, int count) {
  using namespace formula_column;
  for (std::size_t e = 0; e < static_cast<std::size_t>(count); ++e) {
    const int column = kR1 + kElement * static_cast<int>(e);
    grid.setNumber(row, column, elements.wheels[e]);
    grid.setText(row, column + kRu1 - kR1, CodiciRuote[elements.wheels[e]]);
    grid.setNumber(row, column + kP1 - kR1, elements.positions[e]);
  }
}

std::string wheelCodes(WheelSet wheels) {
  std::string codes;
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    if (!holds(wheels, wheel)) continue;
    if (!codes.empty()) codes += '-';
    codes += CodiciRuote[static_cast<std::size_t>(wheel)];
  }
  return codes;
}

WheelSet wheelsOfCodes(std::string_view codes) {
  WheelSet wheels = 0;
  for (std::size_t at = 0; at < codes.size(); at += 3)
    for (int wheel = 0; wheel < kWheels; ++wheel)
      if (codes.substr(at, 2) == CodiciRuote[static_cast<std::size_t>(wheel)]) wheels |= 1U << wheel;
  return wheels;
}

}  // namespace trv5
