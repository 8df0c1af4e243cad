#include "engine/table_tools.h"

#include "cases/hit_rows.h"
#include "core/grid_text.h"
#include "core/wheels.h"

namespace trv5 {

void StampaTabella(const GridControl& grid) {
  grid.form().shell().print(grid, {});
}

void CopiaTabella(const GridControl& grid) {
  grid.form().shell().setClipboard(tableText(grid));
}

void PulisceCelleEsiti(GridControl& grid) {
  const Grid::Batch batch(grid);
  for (int row = 1; row < grid.rows(); ++row)
    for (int column = hit_column::kDrawn; column < hit_column::kDrawn + kPositions && column < grid.columns(); ++column)
      if (grid.back(row, column) == kWhite) grid.setText(row, column, "");
}

}  // namespace trv5
