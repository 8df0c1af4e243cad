#include "cases/print_header.h"

#include <gtest/gtest.h>

#include "support/workbench_world.h"

namespace trv5 {
namespace {

TEST(PrintHeader, TellsTheMethodBehindATable) {
  std::mt19937 rng(5);
  WorkbenchWorld world(randomArchive(rng, 200));
  Workbench& w = world.w;
  for (int column = 0; column < 10; ++column) w.FgNu.clickCell(0, column);
  world.press("Command6");
  world.positions({1, 2, 3});
  world.playOn({0, 2});
  WorkbenchWorld::choose(w.ComboColpi, "9");
  WorkbenchWorld::choose(w.ComboNC, "5");
  world.press("Command44");
  w.Fg11.setRows(2);
  for (const auto& [column, text] : {std::pair(2, "CA"), std::pair(3, "1"), std::pair(5, "FI"), std::pair(6, "2"),
                                     std::pair(10, "N1 + N2"), std::pair(11, "10")})
    w.Fg11.setText(1, column, text);
  const std::vector<std::string> lines = methodHeader(w, {2026, 8, 22, 10, 30, 0});
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines[0], "Situazione: Numeri 01-02-03-04-05-06-07-08-09-10, ruota BA, posizioni 1 2 3; casi: 5");
  EXPECT_EQ(lines[1], "Gioco: BA FI; colpi: 9; estrazione di riferimento: 200 del " + w.archive.DateEstrazioni(200));
  EXPECT_EQ(lines[2], "Ambate: CA1 FI2 N1 + N2 fix 10");
  EXPECT_EQ(lines[3], "Stampato il 22/08/2026");
}

TEST(PrintHeader, SaysNothingOfASituationThatWasNeverLookedFor) {
  std::mt19937 rng(5);
  WorkbenchWorld world(randomArchive(rng, 50));
  world.w.TipoRilevazione.clear();
  EXPECT_EQ(methodHeader(world.w, {2026, 8, 22, 0, 0, 0}).size(), 2u);
}

}  // namespace
}  // namespace trv5
