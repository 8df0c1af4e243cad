// The map of the cases in the program: opened by its button over cases of every span.
#include <gtest/gtest.h>

#include <QMdiSubWindow>
#include <QScrollBar>

#include "screens/kit/grid_view.h"
#include "workbench_shell.h"

namespace trv5 {
namespace {

// Opens the map of so many cases, `step` draws apart, the newest at draw `newest`.
GridView& openMap(WorkbenchShell& world, int cases, int step, int newest = 900) {
  Workbench& w = world.form();
  w.FgEv.setRows(1);
  w.FgEv.setRows(cases + 1);
  for (int row = 1; row <= cases; ++row) {
    w.FgEv.setNumber(row, 0, row);
    w.FgEv.setNumber(row, 1, newest - (row - 1) * step);
  }
  w.Label5.setText(std::to_string((cases - 1) * step));
  world.button("Sommativi1", "Command103").click();
  for (int i = 0; i < 4; ++i) settle();
  return *qobject_cast<GridView*>(world.shell.widget("EvoluzioneGrafica", "Fg1"));
}

bool inSight(GridView& map, int row, int column) {
  return map.viewport()->rect().contains(map.visualRect(map.model()->index(map.gridModel().modelRow(row), column)));
}

TEST(MapOfTheCases, OpensWithTheNewestCaseInSight) {
  WorkbenchShell world({1366, 768}, 950);
  GridView& map = openMap(world, 42, 14);  // a span of 574
  EXPECT_GT(map.horizontalScrollBar()->maximum(), 0) << "it has no room for all of it";
  EXPECT_TRUE(inSight(map, 1, map.grid().columns() - 1));
  EXPECT_TRUE(inSight(map, 1, map.grid().columns() - 10));
  // A new map does so too, wherever the old one was left.
  map.horizontalScrollBar()->setValue(0);
  openMap(world, 40, 15, 880);
  EXPECT_TRUE(inSight(map, 1, map.grid().columns() - 1));
}

TEST(MapOfTheCases, OpensAtTheToldSizeOfItsCells) {
  WorkbenchShell world({1920, 1080}, 950);
  const GridView& map = openMap(world, 20, 4);  // a span of 76: 180 units, 12 pixels
  EXPECT_EQ(map.columnWidth(1), 12);
  EXPECT_EQ(map.rowHeight(0), 12);
  EXPECT_EQ(map.horizontalScrollBar()->maximum(), 0);
  openMap(world, 20, 8);  // 152: 85 units
  EXPECT_NEAR(map.columnWidth(1), 6, 1);
  EXPECT_EQ(map.horizontalScrollBar()->maximum(), 0);
}

TEST(MapOfTheCases, FitsWhereTheToldSizeHasNoRoom) {
  WorkbenchShell world({1280, 720}, 950);
  const GridView& map = openMap(world, 20, 5);  // a span of 95: 106 columns of 12 pixels are too wide
  EXPECT_LT(map.columnWidth(1), 12);
  EXPECT_GE(map.columnWidth(1), 3);
  EXPECT_EQ(map.horizontalScrollBar()->maximum(), 0);
}

TEST(MapOfTheCases, KeepsTheSizeOfTheMapBeforeInTheGaps) {
  WorkbenchShell world({1920, 1080}, 950);
  openMap(world, 40, 10);                        // 390: 40 units
  const GridView& map = openMap(world, 40, 14);  // 546: no size is told
  EXPECT_EQ(map.grid().cellSize(), 40);
}

}  // namespace
}  // namespace trv5
