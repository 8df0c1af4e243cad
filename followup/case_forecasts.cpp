#include "followup/case_forecasts.h"

#include <array>
#include <string>

#include "cases/case_rows.h"
#include "core/text.h"

namespace trv5 {
namespace {

bool isCase(const Workbench& w, int row) {
  return row >= 1 && row < w.Fg15.rows();
}

std::vector<int> numbersIn(const Workbench& w, int row, int column) {
  const std::string& cell = w.Fg15.text(row, column);
  return cell.empty() ? std::vector<int>() : numbersEveryThree(cell);
}

// One number a row, ascending. `FgS4` and `FgS5` belong to columns that nothing reads.
void fillScratch(Workbench& w, int row) {
  const std::array<GridControl*, 6> grids = {&w.FgS1, &w.FgS2, &w.FgS3, &w.FgS4, &w.FgS5, &w.FgS6};
  for (std::size_t i = 0; i < grids.size(); ++i) {
    Grid& grid = grids[i]->grid();
    const Grid::Batch batch(grid);
    grid.cutToHeading();
    if (!isCase(w, row)) continue;
    for (const int number : numbersIn(w, row, static_cast<int>(i) + 1))
      grid.setText(grid.appendRow(), 0, twoDigits(number));
    grid.sortByNumber(0, false);
  }
}

std::string kindText(Table table) {
  return table == Table::Lunghetta ? "LU" : std::to_string(traitsOf(table).code);
}

}  // namespace

std::vector<Forecast> previsioniDelCaso(const Workbench& w, int row) {
  if (!isCase(w, row)) return {};
  NumbersByTable numbers;
  for (const TableTraits& table : kTables) numbers[indexOf(table.table)] = numbersIn(w, row, table.numbersColumn);
  return forecastsOf(std::move(numbers));
}

void MostraPrevisioniDelCaso(Workbench& w, int row) {
  fillScratch(w, row);
  const std::vector<Forecast> forecasts = previsioniDelCaso(w, row);
  const Grid::Batch batch(w.FgGioco);
  w.FgGioco.cutToHeading();
  for (const Forecast& forecast : forecasts) {
    const int added = w.FgGioco.appendRow();
    w.FgGioco.setText(added, 0, kindText(forecast.table));
    w.FgGioco.setBack(added, 0, Giallo);
    w.FgGioco.setBold(added, 0);
    int column = 0;
    for (const int number : forecast.numbers) w.FgGioco.setText(added, ++column, twoDigits(number));
  }
}

void EvidenziaCasiInCorso(Workbench& w) {
  const Grid::Batch batch(w.Fg15);
  int open = 0;
  for (int row = 1; row < w.FgEv.rows(); ++row) {
    if (!isOpen(w, row)) continue;
    ++open;
    if (isCase(w, row)) w.Fg15.setBack(row, 0, Ciano);
  }
  w.shell().status(open > 0 ? "Casi in corso evidenziati: " + std::to_string(open) : "Nessun caso in corso");
}

}  // namespace trv5
