#include "support/random_method.h"

#include <array>
#include <string>
#include <vector>

#include "support/random_search.h"

namespace trv5 {
namespace {

constexpr std::array<const char*, 6> kWheelTexts = {"BA", "BA-RO", "NZ-VE-TO", "TU", "ba-XX", "MI-NA-PA-RO-TO-VE-NZ"};

std::array<int, 5> randomNumbers(std::mt19937& rng, int different, bool repeats, bool beyond90) {
  std::array<int, 5> numbers{};
  NumberFlags seen{};
  for (int& number : numbers) {
    do {
      number = 91 - (1 + below(rng, different));
    } while (!repeats && seen[static_cast<std::size_t>(number)]);
    seen[static_cast<std::size_t>(number)] = true;
    if (beyond90 && below(rng, 20) == 0) number = 91 + below(rng, 9);
  }
  return numbers;
}

}  // namespace

Archive randomMethodArchive(std::mt19937& rng) {
  const int draws = 12 + below(rng, 30);
  const int missing = below(rng, 3) == 0 ? 3 : 15;  // one wheel in so many isn't drawn
  const int different = std::array{90, 40, 15, 8}[static_cast<std::size_t>(below(rng, 4))];
  const bool byHand = below(rng, 4) == 0;
  std::vector<DrawRow> rows;
  for (int i = 1; i <= draws; ++i) {
    DrawRow row;
    row.date = dateOfDraw(i);
    for (std::string& wheel : row.wheels)
      if (below(rng, missing) != 0) wheel = wheelText(randomNumbers(rng, different, byHand, byHand));
    rows.push_back(row);
  }
  return archiveOfRows(rows);
}

void fillTable(Grid& table, std::mt19937& rng, int rows, bool blanks) {
  table.cutToHeading();
  for (int i = 0; i < rows; ++i) {
    FormulaCells formula = trv5::randomFormula(rng);
    if (formula.nr == "0" && below(rng, 6) == 0) formula.fix = 0;
    if (below(rng, 3) == 0) formula.wheels = kWheelTexts[static_cast<std::size_t>(below(rng, kWheelTexts.size()))];
    if (blanks && below(rng, 5) == 0) {
      formula.elements.clear();
      formula.fix = 0;
    }
    WorkbenchWorld::addFormula(table, formula);
  }
}

void randomCases(WorkbenchWorld& world, std::mt19937& rng) {
  const int count = below(rng, 40) == 0 ? 50 : below(rng, 6);
  std::vector<int> draws;
  for (int i = 0; i < count; ++i) draws.push_back(1 + below(rng, world.archive.NumEstrazioni()));
  world.setCases(draws, below(rng, 5) == 0 ? 1 + below(rng, 20) : 1 + below(rng, 6));
  Grid& cases = world.w.FgEv;
  const int firstProg = below(rng, 5) == 0 ? 2 : 1;  // a list whose first case was taken out
  for (int row = 1; row < cases.rows(); ++row) {
    cases.setNumber(row, 0, firstProg + row - 1);
    if (below(rng, 3) == 0) cases.setBack(row, 1, below(rng, 4) == 0 ? VerdeMedio : Ciano);
    for (int column = 17; column <= 22; ++column) {
      if (below(rng, 3) != 0) continue;
      cases.setNumber(row, column, 1 + below(rng, 12));
      if (below(rng, 3) != 0) cases.setBack(row, column, below(rng, 6) == 0 ? VerdeScuro : Verde);
    }
  }
}

void randomMethod(WorkbenchWorld& world, std::mt19937& rng) {
  Workbench& w = world.w;
  w.hs1.set(below(rng, 3) == 0 ? 1 + below(rng, w.archive.NumEstrazioni()) : w.archive.NumEstrazioni());
  randomCases(world, rng);
  w.Label18.click();
  for (int wheel = 0; wheel < kWheels; ++wheel)
    if (below(rng, 3) == 0) w.FgRG.clickCell(0, wheel);
  if (below(rng, 4) == 0) w.Label17.click();
  if (below(rng, 8) == 0) w.Label1[0].click();
  w.ComboSorte.pick(below(rng, 5) == 0 ? below(rng, 5) : below(rng, 2));
  w.Check3.set(below(rng, 3) == 0);
  w.Ch_Scoperti.set(below(rng, 2) == 0);
  for (GridControl* table : {&w.Fg11, &w.Fg22, &w.Fg33}) fillTable(*table, rng, below(rng, 6));
  fillTable(w.Fg00, rng, below(rng, 8) == 0 ? 10 + below(rng, 3) : below(rng, 6));
  fillTable(w.FgF, rng, below(rng, 5), true);
  w.Fg11.setCurrent(below(rng, w.Fg11.rows() + 1) - 1);
  w.FgF.setCurrent(below(rng, w.FgF.rows() + 1) - 1);
  for (std::size_t i = 0; i < w.CasiEsclusi.size(); ++i) {
    w.CasiEsclusi[i] = below(rng, 3) == 0;
    w.CasiVerificati[i] = below(rng, 2) == 0;
  }
}

void randomWorkbench(Workbench& w, std::mt19937& rng) {
  w.hs1.set(1 + below(rng, w.archive.UltimaEstrazione()));
  for (Control* const control : w.controls()) {
    if (control == &w.hs1) continue;
    if (auto* const combo = dynamic_cast<Combo*>(control)) {
      if (combo->editable() && below(rng, 4) == 0)
        combo->type(std::to_string(below(rng, 130)));
      else if (!combo->items().empty())
        combo->pick(below(rng, combo->items().size()));
    } else if (auto* const check = dynamic_cast<Check*>(control)) {
      check->set(below(rng, 2) == 0);
    }
  }
  if (below(rng, 2) == 0) {  // a kind that most archives have cases of
    w.ComboFiltro.pick(0);
    w.Ch_analisi2ruote.set(false);
  }
  w.TxtNumeri.set(below(rng, 2) == 0 ? "" : std::to_string(1 + below(rng, 90)) + "-07-90");
  for (const auto& [position, label] : w.LblPN)
    if (below(rng, 2) == 0) label->click();
  for (GridControl* const wheels : {&w.FgRG, &w.FgRR})
    for (int wheel = 0; wheel < kWheels; ++wheel)
      if (below(rng, 2) == 0) wheels->clickCell(0, wheel);
  for (const Table table : {Table::Ambate, Table::Ambi, Table::Terni, Table::Lunghetta})
    fillTable(w.formulas(table), rng, below(rng, table == Table::Lunghetta ? 12 : 6));
  w.SSTab3.set(below(rng, 5));
}

}  // namespace trv5
