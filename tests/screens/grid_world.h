#pragma once

#include <gtest/gtest.h>

#include <QTest>

#include "form_world.h"
#include "screens/kit/grid_view.h"

namespace trv5 {

/// A form to hang grids on, and the mouse over their cells.
struct GridViewTest : testing::Test {
  FormWorld world;

  QPoint centre(GridView& view, int row, int column) {
    view.sync();
    return view.visualRect(view.model()->index(view.gridModel().modelRow(row), column)).center();
  }
  void press(GridView& view, int row, int column) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, centre(view, row, column));
  }
};

/// Rows 1.. hold their index in column 0.
inline void fill(GridControl& grid, int rows) {
  grid.setRows(rows + 1);
  for (int row = 1; row <= rows; ++row) grid.setNumber(row, 0, row);
}

}  // namespace trv5
