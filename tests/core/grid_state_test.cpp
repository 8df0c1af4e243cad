#include "core/grid_state.h"

#include <gtest/gtest.h>

#include <random>

#include "core/grid.h"

namespace trv5 {
namespace {

Cell randomCell(std::mt19937& rng) {
  const std::size_t lengths[] = {0, 1, 2, 2, 2, 16, 254, 255, 256, 70000};
  const Rgb colours[] = {kWhite, Verde, Giallo};
  Cell cell;
  cell.text.assign(lengths[rng() % (rng() % 50 == 0 ? 10 : 6)], static_cast<char>(rng() % 256));
  cell.back = colours[rng() % 3];
  cell.fore = rng() % 4 == 0 ? Rosso : kBlack;
  cell.bold = rng() % 8 == 0;
  return cell;
}

Grid randomGrid(std::mt19937& rng) {
  Grid grid("a|b|c|d");
  const int rows = 1 + static_cast<int>(rng() % 30);
  grid.setRows(rows);
  for (int row = 1; row < rows; ++row)
    for (int column = 0; column < 4; ++column) grid.setCell(row, column, randomCell(rng));
  if (rng() % 2 == 0) grid.setCurrent(static_cast<int>(rng() % static_cast<unsigned>(rows)), 2);
  if (rng() % 2 == 0) grid.setRowHidden(rows - 1, true);
  if (rng() % 2 == 0) grid.setColumnHidden(3);
  if (rng() % 2 == 0) grid.setBar(0, 1, {12.5, Verde});
  if (rng() % 2 == 0) grid.setMerged({1, 2});
  if (rng() % 2 == 0) grid.setWidth(2, 800);
  return grid;
}

TEST(GridState, GivesBackEveryCellAndEveryLook) {
  for (unsigned seed = 1; seed <= 200; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    const Grid before = randomGrid(rng);
    const GridState state = before.state();
    Grid grid = randomGrid(rng);
    grid.restore(state);
    ASSERT_EQ(grid, before);
    EXPECT_EQ(grid.currentColumn(), before.currentColumn());
    EXPECT_EQ(grid.width(2), before.width(2));
    EXPECT_EQ(grid.state(), state);
  }
}

TEST(GridState, SharesItsCellsUntilTheyChange) {
  Grid grid(5000, 25);
  const GridState first = grid.state();
  grid.setCurrent(7);
  EXPECT_EQ(grid.state().cells, first.cells);
  EXPECT_EQ(grid.state().current, 7);
  grid.setText(3, 3, "12");
  grid.setText(3, 3, "");
  EXPECT_EQ(grid.state().cells, first.cells);
  grid.setText(3, 3, "12");
  EXPECT_NE(grid.state().cells, first.cells);
  EXPECT_EQ(first.cells->unpacked()[78].text, "");
}

TEST(GridState, IsSharedAgainByTheGridThatTookItBack) {
  Grid grid(3, 3);
  const GridState first = grid.state();
  grid.setBack(1, 1, Verde);
  grid.restore(first);
  EXPECT_EQ(grid.state().cells, first.cells);
}

TEST(GridState, TellsTheListenerOnceAndOnlyOfADifference) {
  Grid grid(100, 3);
  const GridState blank = grid.state();
  for (int row = 0; row < 100; ++row) grid.setNumber(row, 0, row);
  grid.setCurrent(5);
  std::vector<GridChange::What> told;
  grid.setListener([&](const GridChange& change) { told.push_back(change.what); });
  const GridState full = grid.state();
  grid.restore(full);
  EXPECT_TRUE(told.empty());
  grid.restore(blank);
  EXPECT_EQ(told, (std::vector{GridChange::What::All}));
  GridState moved = blank;
  moved.current = 2;
  grid.restore(moved);
  EXPECT_EQ(told, (std::vector{GridChange::What::All, GridChange::What::Current}));
}

TEST(GridState, TakesLittleRoom) {
  Grid grid(5000, 25);
  for (int row = 0; row < grid.rows(); ++row)
    for (int column = 0; column < grid.columns(); ++column) grid.setText(row, column, "90");
  const std::size_t bytes = grid.state().cells->bytes();
  EXPECT_GE(bytes, 5000U * 25 * 3);
  EXPECT_LT(bytes, 5000U * 25 * 4);
}

}  // namespace
}  // namespace trv5
