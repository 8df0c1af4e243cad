#include "screens/kit/grid_view.h"

#include <QHeaderView>
#include <QScrollBar>

#include "grid_world.h"
#include "screens/kit/grid_delegate.h"
#include "screens/kit/ink.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

TEST_F(GridViewTest, HidesTheRowsAndColumnsThatTheGridHides) {
  GridControl grid(world.form, "FgRit", "a|b|c");
  fill(grid, 6);
  grid.setColumnHidden(1);
  GridView view(grid);
  shown(view, 300, 300);
  EXPECT_TRUE(view.isColumnHidden(1));
  grid.setRowHidden(2, true);
  grid.setRowHidden(5, true);
  settle();
  EXPECT_TRUE(view.isRowHidden(1));
  EXPECT_TRUE(view.isRowHidden(4));
  grid.setRowHidden(2, false);
  settle();
  EXPECT_FALSE(view.isRowHidden(1));
  // Rows that come back after a cut aren't hidden any more.
  grid.cutToHeading();
  settle();
  fill(grid, 6);
  settle();
  EXPECT_FALSE(view.isRowHidden(4));
}

TEST_F(GridViewTest, BringsTheRowAskedForIntoViewAlsoAmongRowsThatHaveJustCome) {
  GridControl grid(world.form, "FgImporta", "a|b|c");
  GridView view(grid);
  shown(view, 300, 300);
  {
    const Grid::Batch batch(grid);
    fill(grid, 200);
    grid.scrollTo(grid.rows() - 1);
  }
  settle();
  EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
  EXPECT_GT(view.verticalScrollBar()->maximum(), 0);
}

TEST_F(GridViewTest, FoldsColumnsAwayWhileTheyAreEmptyAndLeavesTheGridAlone) {
  GridControl grid(world.form, "FgEv", "a|b|c");
  fill(grid, 3);
  GridView view(grid, {.folded = {1, 2}});
  shown(view, 300, 300);
  EXPECT_TRUE(view.isColumnHidden(1));
  EXPECT_FALSE(grid.columnHidden(1));
  grid.setText(3, 1, "FI");
  settle();
  EXPECT_FALSE(view.isColumnHidden(1));
  EXPECT_TRUE(view.isColumnHidden(2));
}

TEST_F(GridViewTest, ColumnsFillTheViewWithoutFittingModes) {
  GridControl grid(world.form, "FgEv", "Prog|Data|Ru");
  fill(grid, 3);
  GridView view(grid, {.samples = {QStringLiteral("88"), QStringLiteral("88/88/8888"), QStringLiteral("NZ")}});
  shown(view, 600, 300);
  EXPECT_EQ(view.horizontalHeader()->length(), view.viewport()->width());
  EXPECT_GT(view.columnWidth(1), view.columnWidth(0));
  for (int column = 0; column < 3; ++column)
    EXPECT_NE(view.horizontalHeader()->sectionResizeMode(column), QHeaderView::ResizeToContents);
  const int before = view.columnWidth(1);
  grid.setText(1, 1, "un testo molto più lungo della colonna che lo tiene");
  settle();
  EXPECT_EQ(view.columnWidth(1), before);
  view.fitColumns();
  EXPECT_GT(view.columnWidth(1), before);
}

TEST_F(GridViewTest, AColumnSetByTheUserKeepsItsWidth) {
  GridControl grid(world.form, "FgEv", "Prog|Data|Ru");
  fill(grid, 3);
  GridView view(grid);
  shown(view, 600, 300);
  view.horizontalHeader()->resizeSection(1, 77);
  view.resize(700, 300);
  settle();
  EXPECT_EQ(view.columnWidth(1), 77);
}

TEST_F(GridViewTest, RowsStretchBetweenTheirLimits) {
  GridControl grid(world.form, "FgNu", 9, 10);
  GridView view(grid, {.pad = true, .even = true, .minRow = 22, .maxRow = 34});
  shown(view, 400, 9 * 30 + 2);
  EXPECT_EQ(view.verticalHeader()->length(), view.viewport()->height());
  view.resize(400, 900);
  settle();
  EXPECT_EQ(view.rowHeight(0), 34);
}

TEST_F(GridViewTest, PaintsPaperInkAndDataColoursTheSameInBothThemes) {
  GridControl grid(world.form, "FgEv", "a|b|c");
  fill(grid, 4);
  grid.setText(2, 1, "88");
  grid.setBack(2, 1, 0x0000FF);
  GridView view(grid);
  shown(view, 300, 300);
  const QImage light = pictureOfCell(view, 2, 1), paper = pictureOfCell(view, 2, 0);
  Theme::edit().setDark(true);
  settle();
  EXPECT_EQ(pictureOfCell(view, 2, 1), light);
  EXPECT_EQ(pictureOfCell(view, 2, 0), paper);
  Theme::edit().setDark(false);
  EXPECT_TRUE(hasColour(paper, kWhite, 0.5));
  EXPECT_TRUE(hasColour(paper, kGridLine));
  EXPECT_TRUE(hasColour(light, 0x0000FF, 0.5));
  EXPECT_GT(brightest(light), 0.8) << "black on blue can't be read";
  EXPECT_EQ(grid.at(2, 1).fore, kBlack);
}

TEST_F(GridViewTest, FramesTheCurrentRowOverItsColours) {
  GridControl grid(world.form, "FgEv", "a|b|c");
  fill(grid, 4);
  grid.setBack(2, 1, 0x00FF00);
  GridView view(grid);
  shown(view, 300, 300);
  EXPECT_FALSE(hasColour(pictureOfCell(view, 2, 1), kRowFrame));
  grid.setCurrent(2);
  const QImage cell = pictureOfCell(view, 2, 1);
  EXPECT_EQ(pixel(cell, 5, 0), kRowFrame);
  EXPECT_TRUE(hasColour(cell, 0x00FF00, 0.5));
  EXPECT_EQ(pixel(pictureOfCell(view, 2, 0), 2, 8), kRowFrame) << "thicker at the left end";
  EXPECT_FALSE(hasColour(pictureOfCell(view, 3, 1), kRowFrame));
}

TEST_F(GridViewTest, MergedNeighboursHaveNoLineBetweenThemAndOneText) {
  GridControl grid(world.form, "FgZ1", "a|b");
  grid.setRows(4);
  for (const int row : {1, 2}) grid.setText(row, 1, "7361");
  grid.setText(3, 1, "7358");
  grid.setMerged({1});
  GridView view(grid);
  shown(view, 300, 300);
  const auto bottomLine = [&](int row) {
    const QImage cell = pictureOfCell(view, row, 1);
    return pixel(cell, 3, cell.height() - 1) == kGridLine;
  };
  EXPECT_FALSE(bottomLine(1));
  EXPECT_TRUE(bottomLine(2));
  EXPECT_TRUE(hasColour(pictureOfCell(view, 1, 1), kInk));
  EXPECT_FALSE(hasColour(pictureOfCell(view, 2, 1), kInk));
  EXPECT_TRUE(hasColour(pictureOfCell(view, 3, 1), kInk));
}

TEST_F(GridViewTest, AMergedBlockShowsItsTextAtTheTopOfTheViewToo) {
  GridControl grid(world.form, "FgZ1", "a|b");
  grid.setRows(200);
  for (int row = 1; row < 200; ++row) grid.setText(row, 1, "7361");
  grid.setMerged({1});
  GridView view(grid);
  shown(view, 300, 300);
  view.verticalScrollBar()->setValue(50);
  settle();
  EXPECT_TRUE(hasColour(pictureOfCell(view, 51, 1), kInk));
  EXPECT_FALSE(hasColour(pictureOfCell(view, 52, 1), kInk));
}

TEST_F(GridViewTest, DrawsBarsFromTheLeftOverTheirPercentage) {
  GridControl grid(world.form, "Fg_Graf", 3, 1);
  grid.setText(0, 0, "40.0");
  grid.setBar(0, 0, {40, 0x00FF00});
  GridView view(grid, {.even = true});
  shown(view, 302, 300);
  const QImage cell = pictureOfCell(view, 0, 0);
  const int middle = cell.height() / 2;
  EXPECT_EQ(pixel(cell, 3, middle), 0x00FF00u);
  EXPECT_EQ(pixel(cell, cell.width() * 35 / 100, middle), 0x00FF00u);
  EXPECT_EQ(pixel(cell, cell.width() * 60 / 100, middle), kWhite);
  EXPECT_EQ(pixel(cell, 3, 1), kWhite) << "two pixels free above";
}

TEST_F(GridViewTest, BelowTheLastRowTheViewShowsWhereTheTableEnds) {
  GridControl grid(world.form, "FgEv", "a|b");
  fill(grid, 2);
  GridView view(grid);
  shown(view, 300, 300);
  const QImage picture = view.viewport()->grab().toImage();
  EXPECT_EQ(pixel(picture, 100, picture.height() - 5), kLightColours.voidArea);
  EXPECT_EQ(pixel(picture, 3, 3), kWhite);
}

TEST_F(GridViewTest, AnEmptyGridSaysWhatToPress) {
  GridControl grid(world.form, "FgEv", "a|b");
  GridView view(grid);
  shown(view, 400, 300);
  EXPECT_FALSE(hasColour(view.viewport()->grab().toImage(), kLightColours.text2));
  grid.setEmptyText("Nessun caso: scegli una situazione e premi RICAVA ELENCO ESTRAZIONI");
  settle();
  EXPECT_TRUE(hasColour(view.viewport()->grab().toImage(), kLightColours.text2));
  fill(grid, 1);
  settle();
  EXPECT_FALSE(hasColour(view.viewport()->grab().toImage(), kLightColours.text2));
}

TEST_F(GridViewTest, AViewThatIsGoneLeavesTheGridWithoutListener) {
  GridControl grid(world.form, "FgEv", "a|b");
  {
    GridView view(grid);
    shown(view, 100, 100);
  }
  fill(grid, 10);
  grid.setEnabled(false);
  settle();
  EXPECT_EQ(grid.dataRows(), 10);
}

}  // namespace
}  // namespace trv5
