#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "engine/verification_draws.h"

namespace trv5 {
namespace {

struct Tools {
  GridControl Workbench::*grid;
  const char *print, *copy, *clean;
};

void PrintTo(const Tools& value, std::ostream* out) {
  *out << value.print;
}

const std::vector<Tools> kTools = {{&Workbench::FgZ1, "Stampa_FgZ1", "Copia_FgZ1", "Command75"},
                                   {&Workbench::FgZ2, "Stampa_FgZ2", "Copia_FgZ2", "Pulisce_FgZ2"},
                                   {&Workbench::FgZ3, "Stampa_FgZ3", "Copia_FgZ3", "Pulisce_FgZ3"},
                                   {&Workbench::FgZ0, "Stampa_FgZ0", "Copia_FgZ0", "Pulisce_FgZ0"},
                                   {&Workbench::FgZZ, "Command96", "Command98", "Command97"}};

class HitGrid : public testing::TestWithParam<Tools> {
 protected:
  HitGrid() {
    grid().setRows(3);
    for (int row = 1; row < 3; ++row)
      for (int column = 0; column < grid().columns(); ++column) grid().setNumber(row, column, 100 * row + column);
  }
  GridControl& grid() { return world.w.*GetParam().grid; }

  SevenWorld world;
};

INSTANTIATE_TEST_SUITE_P(OfFive, HitGrid, testing::ValuesIn(kTools),
                         [](const auto& tools) { return std::string(tools.param.print); });

TEST_P(HitGrid, IsPrintedLandscapeWithMarginsOf450) {
  world.press(GetParam().print);
  ASSERT_EQ(world.shell.prints.size(), 1U);
  EXPECT_EQ(world.shell.prints[0].grid, grid().grid());
  EXPECT_TRUE(world.shell.prints[0].setup.landscape);
  EXPECT_EQ(world.shell.prints[0].setup.horizontalMargin, 450);
  EXPECT_EQ(world.shell.prints[0].setup.verticalMargin, 450);
}

TEST_P(HitGrid, IsCopiedWithItsHeadingAndHiddenColumns) {
  ASSERT_TRUE(grid().columnHidden(6));
  world.shell.clipboardText = "what stood there";
  std::string wanted;
  for (int row = 0; row < 3; ++row)
    for (int column = 0; column < 22; ++column)
      wanted += grid().text(row, column) + (column < 21 ? "\t" : row < 2 ? "\r\n" : "");
  world.press(GetParam().copy);
  EXPECT_EQ(world.shell.clipboardText, wanted);
}

TEST_P(HitGrid, KeepsOnlyTheColouredOfTheDrawnNumbers) {
  grid().setBack(1, 18, Verde);
  grid().setBack(2, 21, ColoriSorte[1]);
  grid().setBack(2, 17, ColoriSorte[5]);
  grid().setBack(2, 19, kWhite);
  world.press(GetParam().clean);
  for (int row = 1; row < 3; ++row)
    for (int column = 0; column < 22; ++column) {
      const bool kept = column < 17 || (row == 1 ? column == 18 : column == 21 || column == 17);
      EXPECT_EQ(grid().text(row, column), kept ? std::to_string(100 * row + column) : "") << row << ", " << column;
    }
  EXPECT_NE(grid().text(0, 17), "");
}

TEST(PulisceCelleEsiti, LeavesTheHitsOfAVerification) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 1);
  for (int number : {7, 8}) SevenWorld::addNumber(w.Fg00, number);
  w.ComboSorte.pick(1);
  world.press("Command51");
  ASSERT_EQ(SevenWorld::texts(w.FgZ0, 1, 17, 21), "12 8 9 11 7");
  world.press("Pulisce_FgZ0");
  EXPECT_EQ(SevenWorld::texts(w.FgZ0, 1, 17, 21), " 8   7");
}

}  // namespace
}  // namespace trv5
