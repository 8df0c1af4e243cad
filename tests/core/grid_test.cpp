#include "core/grid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace trv5 {
namespace {

// A grid with a heading and these texts in its first column.
Grid columnOf(const std::vector<std::string>& texts) {
  Grid grid("Valore|Posto");
  for (const std::string& text : texts) {
    const int row = grid.appendRow();
    grid.setText(row, 0, text);
    grid.setNumber(row, 1, row);
  }
  return grid;
}

std::vector<std::string> column(const Grid& grid, int c) {
  std::vector<std::string> texts;
  for (int row = grid.headingRows(); row < grid.rows(); ++row) texts.push_back(grid.text(row, c));
  return texts;
}

// What a listener was told.
struct Notices {
  explicit Notices(Grid& grid) {
    grid.setListener([this](const GridChange& change) { all.push_back(change); });
  }
  std::vector<GridChange> all;
};

TEST(Grid, AHeadingMakesItsColumnsAndHoldsRowZero) {
  const Grid grid("|N° estr|Data");
  EXPECT_EQ(grid.columns(), 3);
  EXPECT_EQ(grid.rows(), 1);
  EXPECT_EQ(grid.headingRows(), 1);
  EXPECT_EQ(grid.dataRows(), 0);
  EXPECT_FALSE(grid.hasData());
  EXPECT_EQ(grid.text(0, 1), "N° estr");
}

TEST(Grid, AnEmptyCellIsTheNumber0) {
  Grid grid(2, 2);
  EXPECT_EQ(grid.number(1, 1), 0);
  grid.setText(1, 1, " 12 casi");
  EXPECT_EQ(grid.number(1, 1), 12);
  grid.setNumber(1, 1, -7);
  EXPECT_EQ(grid.text(1, 1), "-7");
}

TEST(Grid, ACutClearsTheCurrentRowAndTakesBarsAndHiddenRowsWithIt) {
  Grid grid = columnOf({"a", "b", "c"});
  grid.setCurrent(1);
  grid.setRowHidden(3, true);
  grid.setBar(3, 1, {50, Verde});
  grid.setBar(1, 1, {25, Rosso});
  grid.setRows(3);
  EXPECT_EQ(grid.current(), -1);
  EXPECT_TRUE(grid.hiddenRows().empty());
  EXPECT_EQ(grid.bars().size(), 1u);
  grid.setRows(4);
  EXPECT_EQ(grid.text(3, 0), "");
  grid.setCurrent(2);
  grid.cutToHeading();
  EXPECT_EQ(grid.current(), -1);
  EXPECT_EQ(grid.rows(), 1);
  EXPECT_EQ(grid.text(0, 0), "Valore");
}

TEST(Grid, AnAppendedRowIsNotSelectedAndLeavesTheCurrentOne) {
  Grid grid = columnOf({"a"});
  EXPECT_EQ(grid.current(), -1);
  grid.setCurrent(1);
  EXPECT_EQ(grid.appendRow(), 2);
  EXPECT_EQ(grid.current(), 1);
  EXPECT_EQ(grid.text(2, 0), "");
}

TEST(Grid, RemovingARowClearsTheCurrentOneAndMovesTheRowsBehindIt) {
  Grid grid = columnOf({"a", "b", "c"});
  grid.setBack(3, 0, Verde);
  grid.setCurrent(3);
  grid.removeRow(2);
  EXPECT_EQ(column(grid, 0), (std::vector<std::string>{"a", "c"}));
  EXPECT_EQ(grid.back(2, 0), Verde);
  EXPECT_EQ(grid.current(), -1);
}

TEST(Grid, KeepingAllRowsChangesNothing) {
  Grid grid = columnOf({"a", "b"});
  grid.setCurrent(2);
  grid.keepRows([](int) { return true; });
  EXPECT_EQ(grid.current(), 2);
  grid.keepRows([&](int row) { return grid.text(row, 0) == "b"; });
  EXPECT_EQ(column(grid, 0), std::vector<std::string>{"b"});
  EXPECT_EQ(grid.current(), -1);
}

TEST(Grid, ASortKeepsTheOrderOfEqualRowsAndTheIndexOfTheCurrentRow) {
  Grid grid = columnOf({"7", "12", "7", "", "12"});
  grid.setCurrent(2);
  grid.sortByNumber(0, true);
  EXPECT_EQ(column(grid, 0), (std::vector<std::string>{"12", "12", "7", "7", ""}));
  EXPECT_EQ(column(grid, 1), (std::vector<std::string>{"2", "5", "1", "3", "4"}));
  EXPECT_EQ(grid.current(), 2);
  EXPECT_EQ(grid.text(0, 0), "Valore");
  grid.sortByNumber(0, false);
  EXPECT_EQ(column(grid, 1), (std::vector<std::string>{"4", "1", "3", "2", "5"}));
}

TEST(Grid, ASortGoesByNumbersAndNotByTexts) {
  Grid grid = columnOf({"100", "9", "20"});
  grid.sortByNumber(0, false);
  EXPECT_EQ(column(grid, 0), (std::vector<std::string>{"9", "20", "100"}));
}

TEST(Grid, ASortBySeveralColumnsTakesTheFirstOneFirst) {
  Grid grid("A|B|C");
  for (const auto& [a, b] : std::vector<std::pair<int, int>>{{2, 1}, {1, 9}, {2, 0}, {1, 3}, {1, 9}}) {
    const int row = grid.appendRow();
    grid.setNumber(row, 0, a);
    grid.setNumber(row, 1, b);
    grid.setNumber(row, 2, row);
  }
  grid.sortByNumbers({0, 1});
  EXPECT_EQ(column(grid, 2), (std::vector<std::string>{"4", "2", "5", "3", "1"}));
}

TEST(Grid, ASortMovesColoursBarsAndHiddenRowsWithTheirRow) {
  Grid grid = columnOf({"1", "2", "3"});
  grid.setBack(1, 0, Verde);
  grid.setBar(1, 1, {10, Rosso});
  grid.setRowHidden(2, true);
  grid.sortByNumber(0, true);
  EXPECT_EQ(grid.back(3, 0), Verde);
  EXPECT_EQ(grid.back(1, 0), kWhite);
  EXPECT_EQ(grid.bars().begin()->first, std::make_pair(3, 1));
  EXPECT_EQ(grid.hiddenRows(), std::set<int>{2});
}

TEST(Grid, ASortAgreesWithAStableSortOfItsNumbersOnRandomGrids) {
  for (unsigned seed = 1; seed <= 200; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    Grid grid("Valore|Posto");
    std::vector<std::pair<int, int>> expected;
    for (int i = 1, rows = static_cast<int>(rng() % 30); i <= rows; ++i) {
      const int value = static_cast<int>(rng() % 7);
      const int row = grid.appendRow();
      grid.setNumber(row, 0, value);
      grid.setNumber(row, 1, row);
      expected.emplace_back(value, row);
    }
    const bool descending = rng() % 2 == 0;
    grid.sortByNumber(0, descending);
    std::stable_sort(expected.begin(), expected.end(),
                     [&](const auto& a, const auto& b) { return descending ? a.first > b.first : a.first < b.first; });
    for (int row = 1; row < grid.rows(); ++row)
      EXPECT_EQ(grid.number(row, 1), expected[static_cast<std::size_t>(row - 1)].second);
  }
}

TEST(Grid, TellsItsListenerEachChangeAndNothingWhenNothingChanged) {
  Grid grid(2, 2);
  const Notices notices(grid);
  grid.setText(1, 0, "a");
  grid.setText(1, 0, "a");
  grid.setBack(1, 0, kWhite);
  grid.setFore(0, 1, Rosso);
  grid.setBold(0, 1);
  grid.setCurrent(1, 1);
  grid.setCurrent(1, 1);
  grid.setRows(2);
  ASSERT_EQ(notices.all.size(), 4u);
  EXPECT_EQ(notices.all[0].what, GridChange::What::Cell);
  EXPECT_EQ(notices.all[0].row, 1);
  EXPECT_EQ(notices.all[0].column, 0);
  EXPECT_EQ(notices.all[3].what, GridChange::What::Current);
}

TEST(Grid, ABatchGivesOneNoticeHoweverManyChangesAndNestedOnesToo) {
  Grid grid(1, 1);
  const Notices notices(grid);
  {
    const Grid::Batch outer(grid);
    for (int i = 0; i < 100; ++i) grid.setNumber(0, 0, i);
    {
      const Grid::Batch inner(grid);
      grid.setRows(5);
    }
    EXPECT_TRUE(notices.all.empty());
  }
  ASSERT_EQ(notices.all.size(), 1u);
  EXPECT_EQ(notices.all[0].what, GridChange::What::All);
  { const Grid::Batch idle(grid); }
  EXPECT_EQ(notices.all.size(), 1u);
}

TEST(Grid, ACopyHasItsValuesAndNotItsListener) {
  Grid grid = columnOf({"a"});
  const Notices notices(grid);
  Grid copy = grid;
  copy.setText(1, 0, "b");
  EXPECT_TRUE(notices.all.empty());
  EXPECT_FALSE(copy == grid);
  grid = copy;  // the target keeps its listener, which is told once
  EXPECT_EQ(notices.all.size(), 1u);
  EXPECT_TRUE(copy == grid);
}

TEST(Grid, IsEqualWhenAllThatShowsIsEqual) {
  const Grid grid = columnOf({"a", "b"});
  const std::vector<std::function<void(Grid&)>> changes = {[](Grid& g) { g.setText(1, 0, "x"); },
                                                           [](Grid& g) { g.setBack(1, 0, Verde); },
                                                           [](Grid& g) { g.setFore(1, 0, Rosso); },
                                                           [](Grid& g) { g.setBold(1, 0); },
                                                           [](Grid& g) { g.setCurrent(1); },
                                                           [](Grid& g) { g.setRowHidden(1, true); },
                                                           [](Grid& g) { g.setColumnHidden(1); },
                                                           [](Grid& g) { g.setMerged({0}); },
                                                           [](Grid& g) {
                                                             g.setBar(1, 0, {5, Verde});
                                                           },
                                                           [](Grid& g) { g.appendRow(); },
                                                           [](Grid& g) { g.setColumns(3); }};
  for (std::size_t i = 0; i < changes.size(); ++i) {
    Grid other = grid;
    EXPECT_TRUE(other == grid);
    changes[i](other);
    EXPECT_FALSE(other == grid) << "change " << i;
  }
}

TEST(Grid, NewColumnsAreBlankAndOldCellsKeepTheirPlace) {
  Grid grid = columnOf({"a", "b"});
  grid.setColumns(4);
  EXPECT_EQ(grid.text(2, 0), "b");
  EXPECT_EQ(grid.text(2, 1), "2");
  EXPECT_EQ(grid.text(2, 3), "");
  grid.setColumns(1);
  EXPECT_EQ(column(grid, 0), (std::vector<std::string>{"a", "b"}));
}

TEST(Grid, ClearingTheTextsLeavesTheColours) {
  Grid grid = columnOf({"a"});
  grid.setBack(1, 0, Verde);
  grid.clearTexts();
  EXPECT_EQ(grid.text(1, 0), "");
  EXPECT_EQ(grid.back(1, 0), Verde);
}

TEST(Grid, BarsComeAndGo) {
  Grid grid(3, 3);
  grid.setBar(1, 2, {40, VerdeMedio});
  grid.setBar(2, 2, {60, VerdeMedio});
  EXPECT_EQ(grid.bars().at({1, 2}), (Bar{40, VerdeMedio}));
  grid.removeBar(1, 2);
  EXPECT_EQ(grid.bars().size(), 1u);
  grid.clearBars();
  EXPECT_TRUE(grid.bars().empty());
}

TEST(Grid, ACurrentRowOutsideTheGridIsNone) {
  Grid grid = columnOf({"a"});
  grid.setCurrent(1);
  grid.setCurrent(7);
  EXPECT_EQ(grid.current(), -1);
}

}  // namespace
}  // namespace trv5
