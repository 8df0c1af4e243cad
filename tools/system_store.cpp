#include "tools/system_store.h"

namespace trv5 {
namespace {

void fill(Statement& rows, Grid& grid, int most) {
  const Grid::Batch batch(grid);
  grid.cutToHeading();
  while (grid.dataRows() < most && rows.step()) {
    const int row = grid.appendRow();
    for (int column = 1; column <= 3; ++column) grid.setText(row, column, rows.view(column - 1));
  }
}

}  // namespace

void fillSystems(const Database& database, Grid& FgSistemi) {
  constexpr int kMostSystems = 9999;
  database.requireTable("Sist_Ortogonali", {"IdOrto", "Denominazione", "sviluppo", "Numeri"});
  Statement rows = database.prepare(
      "SELECT Sist_Ortogonali.IdOrto as Cod, Sist_Ortogonali.Denominazione, Sist_Ortogonali.sviluppo "
      "From Sist_Ortogonali ORDER BY Sist_Ortogonali.Numeri");
  fill(rows, FgSistemi, kMostSystems);
}

void fillSystemRows(const Database& database, std::string_view key, int most, Grid& FGSv1) {
  database.requireTable("Sist_Ortogonali", {"IdOrto"});
  database.requireTable("Sist_OrtoSv", {"RifOrto", "NuRiga", "Qn", "Num"});
  Statement rows = database.prepare(
      "SELECT Sist_OrtoSv.NuRiga, Sist_OrtoSv.Qn, Sist_OrtoSv.Num "
      "FROM Sist_Ortogonali INNER JOIN Sist_OrtoSv ON Sist_Ortogonali.IdOrto = Sist_OrtoSv.RifOrto "
      "Where (((Sist_OrtoSv.RifOrto) = ?)) "
      "ORDER BY Sist_OrtoSv.NuRiga");
  rows.bind(1, key);
  fill(rows, FGSv1, most);
}

}  // namespace trv5
