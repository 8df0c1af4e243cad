#include "screens/kit/grid_model.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <random>

#include "form_world.h"

namespace trv5 {
namespace {

TEST(GridModel, ShowsTheRowsBelowTheHeadingWithTheirColours) {
  FormWorld world;
  GridControl grid(world.form, "Fg", "Prog|Data  ");
  grid.setRows(2);
  grid.setText(1, 0, "7");
  grid.setBack(1, 0, 0x00FF00);
  grid.setFore(1, 0, 0xFF0000);
  GridModel model(grid);
  EXPECT_EQ(model.rowCount(), 1);
  EXPECT_EQ(model.columnCount(), 2);
  EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Data"));
  const QModelIndex cell = model.index(0, 0);
  EXPECT_EQ(cell.data().toString(), QStringLiteral("7"));
  EXPECT_EQ(cell.data(Qt::BackgroundRole).value<QColor>(), QColor(0, 255, 0));
  EXPECT_EQ(cell.data(Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
  EXPECT_FALSE(model.index(0, 1).data(Qt::BackgroundRole).isValid());
}

TEST(GridModel, AGridWithoutHeadingShowsAllItsRows) {
  FormWorld world;
  GridControl grid(world.form, "FgNu", 9, 10);
  const GridModel model(grid);
  EXPECT_EQ(model.rowCount(), 9);
  EXPECT_EQ(model.gridRow(0), 0);
}

TEST(GridModel, FollowsOnceHoweverManyCellsChanged) {
  FormWorld world;
  GridControl grid(world.form, "Fg", 100, 10);
  GridModel model(grid);
  QSignalSpy changes(&model, &GridModel::dataChanged);
  for (int i = 0; i < 1000; ++i) grid.setNumber(i % 100, i % 10, i);
  EXPECT_EQ(changes.count(), 0);
  settle();
  EXPECT_EQ(changes.count(), 1);
  settle();
  EXPECT_EQ(changes.count(), 1);
}

TEST(GridModel, TellsNothingOfCellsThatAreGoneBeforeItFollows) {
  FormWorld world;
  GridControl grid(world.form, "Fg", "a|b");
  grid.setRows(5);
  grid.setText(4, 1, "x");
  GridModel model(grid);
  const QModelIndex last = model.index(3, 1);
  EXPECT_EQ(last.data().toString(), QStringLiteral("x"));
  grid.cutToHeading();
  EXPECT_EQ(model.rowCount(), 4);
  EXPECT_FALSE(last.data().isValid());
  model.sync();
  EXPECT_EQ(model.rowCount(), 0);
}

TEST(GridModel, OffersTheChoicesOfAnEditableColumnAlone) {
  FormWorld world;
  GridControl grid(world.form, "FgF", "a|Sorte");
  grid.setRows(2);
  grid.setChoices(1, {"", "1", "2"});
  GridModel model(grid);
  EXPECT_FALSE(model.flags(model.index(0, 0)) & Qt::ItemIsEditable);
  EXPECT_TRUE(model.flags(model.index(0, 1)) & Qt::ItemIsEditable);
  EXPECT_TRUE(model.setData(model.index(0, 1), QStringLiteral("2")));
  EXPECT_EQ(grid.text(1, 1), "2");
  EXPECT_FALSE(model.setData(model.index(0, 1), QStringLiteral("9")));
  EXPECT_FALSE(model.setData(model.index(0, 0), QStringLiteral("2")));
  EXPECT_EQ(grid.text(1, 1), "2");
}

TEST(GridModel, KeepsItsPromisesToQtThroughAnyChanges) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    FormWorld world;
    GridControl grid(world.form, "Fg", "a|b|c");
    GridModel model(grid);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int step = 0; step < 100; ++step) {
      switch (rng() % 6) {
        case 0:
          grid.setRows(1 + static_cast<int>(rng() % 40));
          break;
        case 1:
          grid.appendRow();
          break;
        case 2:
          if (grid.hasData()) grid.removeRow(1 + static_cast<int>(rng() % static_cast<unsigned>(grid.dataRows())));
          break;
        case 3:
          grid.setColumns(1 + static_cast<int>(rng() % 8));
          break;
        case 4:
          if (grid.hasData()) grid.setNumber(grid.rows() - 1, 0, step);
          grid.sortByNumber(0, true);
          break;
        default:
          model.sync();
          EXPECT_EQ(model.rowCount(), grid.dataRows());
          EXPECT_EQ(model.columnCount(), grid.columns());
      }
    }
  }
}

}  // namespace
}  // namespace trv5
