#include "support/workbench_world.h"

#include <algorithm>
#include <utility>

#include "cases/selections.h"
#include "desk/equip_workbench.h"
#include "method/formula.h"

namespace trv5 {

WorkbenchWorld::WorkbenchWorld(Archive draws) : archive(std::move(draws)), w(archive, shell) {
  equipWorkbench(w);
  w.Ch_Caso.set(false);  // a thousand archives for each search are drawn where a test asks for them
  ApreBanco(w);
}

void WorkbenchWorld::choose(Combo& combo, const std::string& text) {
  const auto item = std::find(combo.items().begin(), combo.items().end(), text);
  if (item == combo.items().end())
    combo.type(text);
  else
    combo.pick(static_cast<int>(item - combo.items().begin()));
}

void WorkbenchWorld::playOn(std::initializer_list<int> wheels) {
  w.Label18.click();
  for (int wheel : wheels) w.FgRG.clickCell(0, wheel);
}

void WorkbenchWorld::positions(std::initializer_list<int> chosen) {
  for (const auto& [position, label] : w.LblPN) {
    const bool wanted = std::find(chosen.begin(), chosen.end(), position) != chosen.end();
    if ((label->back() == Verde) != wanted) label->click();
  }
}

void WorkbenchWorld::setCases(const std::vector<int>& draws, int colpi) {
  w.FgEv.cutToHeading();
  for (int draw : draws) {
    const int row = w.FgEv.appendRow();
    w.FgEv.setNumber(row, case_column::kProg, row);
    w.FgEv.setNumber(row, case_column::kDraw, draw);
    w.FgEv.setText(row, case_column::kDate, archive.DateEstrazioni(draw));
  }
  w.Colpi = colpi;
  choose(w.ComboColpi, std::to_string(colpi));
}

int WorkbenchWorld::addFormula(Grid& table, const FormulaCells& row) {
  using namespace formula_column;
  const int at = table.appendRow();
  for (std::size_t e = 0; e < row.elements.size(); ++e) {
    const int column = kR1 + 3 * static_cast<int>(e);
    table.setNumber(at, column, row.elements[e].wheel);
    table.setText(at, column + 1, CodiciRuote[static_cast<std::size_t>(row.elements[e].wheel)]);
    table.setNumber(at, column + 2, row.elements[e].position);
  }
  table.setText(at, kOperator, row.op);
  if (row.fix > 0) table.setNumber(at, kFix, row.fix);
  table.setText(at, kNr, row.nr);
  table.setText(at, kQn, row.qn);
  table.setText(at, kAlteration, row.alteration);
  table.setText(at, formula_column::kOwnWheels, row.wheels);
  return at;
}

FormulaCells randomFormula(std::mt19937& rng) {
  const auto upTo = [&rng](std::size_t n) { return static_cast<int>(rng() % n); };
  FormulaCells row;
  const auto element = [&] { return FormulaCells::Element{upTo(kWheels), 1 + upTo(kPositions)}; };
  row.fix = rng() % 3 == 0 ? 0 : 1 + upTo(90);
  row.alteration =
      rng() % 20 == 0 ? "XYZ" : std::string(kAlterations[static_cast<std::size_t>(upTo(kAlterations.size()))]);
  row.op = rng() % 20 == 0 ? "N1 / N2" : std::string(kOperators[static_cast<std::size_t>(upTo(kOperators.size()))]);
  row.elements = {element()};
  switch (rng() % 5) {
    case 0:
      row.op.clear();
      break;
    case 1:
      row.qn = "2";
      row.elements.push_back({row.elements[0].wheel, 1 + upTo(kPositions)});
      break;
    case 2:
      row.qn = "3";
      row.op = kSumOfThree;
      for (int i = 0; i < 2; ++i) row.elements.push_back({row.elements[0].wheel, 1 + upTo(kPositions)});
      break;
    case 3:
      row.nr = "2";
      row.elements.push_back(element());
      break;
    default:
      row.elements.clear();
      row.op.clear();
      row.nr = "0";
      row.fix = 1 + upTo(90);
  }
  return row;
}

}  // namespace trv5
