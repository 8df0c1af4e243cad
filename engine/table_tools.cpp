#include "engine/table_tools.h"

#include "cases/hit_rows.h"
#include "core/grid_text.h"
#include "core/text.h"
#include "core/wheels.h"

namespace trv5 {

void StampaTabella(const GridControl& grid) {
  grid.form().shell().print(grid, {});
}

void CopiaTabella(const GridControl& grid) {
  grid.form().shell().setClipboard(tableText(grid));
  grid.form().shell().status("Tabella copiata: " + counted(grid.dataRows(), "riga", "righe"));
}

void PulisceCelleEsiti(GridControl& grid) {
  const Grid::Batch batch(grid);
  int cleaned = 0;
  for (int row = 1; row < grid.rows(); ++row)
    for (int column = hit_column::kDrawn; column < hit_column::kDrawn + kPositions && column < grid.columns(); ++column)
      if (grid.back(row, column) == kWhite && !grid.text(row, column).empty()) {
        grid.setText(row, column, "");
        ++cleaned;
      }
  grid.form().shell().status(cleaned > 0 ? "Celle pulite: " + std::to_string(cleaned) : "Nessuna cella da pulire");
}

}  // namespace trv5
