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

TEST(PrintHeader, TellsTheSituationOfTheListedCasesAndNotTheOneBeingChosen) {
  std::mt19937 rng(5);
  WorkbenchWorld world(randomArchive(rng, 200));
  Workbench& w = world.w;
  WorkbenchWorld::choose(w.ComboFiltro, "Numeri");
  w.TxtNumeri.set("07-13-21-35-44-50-62-70-81-90");
  world.positions({1, 2, 3, 4, 5});
  WorkbenchWorld::choose(w.ComboQNu, "2");
  WorkbenchWorld::choose(w.ComboRetro, "1");
  world.press("Command44");
  const std::string told = methodHeader(w, {2026, 8, 22, 10, 30, 0}).front();
  EXPECT_EQ(told.substr(0, told.find(';')),
            "Situazione: Numeri 07-13-21-35-44-50-62-70-81-90, ruota BA, posizioni 1 2 3 4 5, QN 2, retro 1");
  w.TxtNumeri.set("01");
  WorkbenchWorld::choose(w.ComboQNu, "3");
  EXPECT_EQ(methodHeader(w, {2026, 8, 22, 10, 30, 0}).front(), told);
}

TEST(PrintHeader, TellsWhatNarrowsTheSearchOnTwoWheels) {
  std::mt19937 rng(5);
  WorkbenchWorld world(randomArchive(rng, 200));
  Workbench& w = world.w;
  WorkbenchWorld::choose(w.ComboFiltro, "Distanza");
  w.TxtNumeri.set("09");
  w.Ch_analisi2ruote.set(true);
  for (const int wheel : {0, 1}) w.FgRR.clickCell(0, wheel);
  world.positions({1, 2, 3, 4, 5});
  w.Ch_ISO.set(true);
  w.ChDDS.set(true);
  world.press("Command44");
  const std::string told = methodHeader(w, {2026, 8, 22, 10, 30, 0}).front();
  EXPECT_EQ(told.substr(0, told.find(';')),
            "Situazione: Distanza 09, ruote BA CA, posizioni 1 2 3 4 5, rapporto 1:1, isotopi");
}

TEST(PrintHeader, TellsAPureNumberAsANumber) {
  std::mt19937 rng(5);
  WorkbenchWorld world(randomArchive(rng, 50));
  WorkbenchWorld::addFormula(world.w.Fg22, {.fix = 44, .nr = "0"});
  const std::vector<std::string> lines = methodHeader(world.w, {2026, 8, 22, 0, 0, 0});
  EXPECT_EQ(lines.at(lines.size() - 2), "Ambi: numero 44");
}

TEST(MethodName, IsTheOneGivenOrElseTellsTheCases) {
  std::mt19937 rng(5);
  WorkbenchWorld world(randomArchive(rng, 200));
  Workbench& w = world.w;
  EXPECT_EQ(methodName(w), "");
  world.positions({1, 2, 3, 4, 5});
  WorkbenchWorld::choose(w.ComboFiltro, "Numeri");
  w.TxtNumeri.set("07-13-21-35-44-50-62-70-81-90");
  world.press("Command44");
  ASSERT_TRUE(w.FgEv.hasData());
  EXPECT_EQ(methodName(w), "Numeri 07-13-21-35-44-50-62-70-81-90 BA");
  w.Ch_analisi2ruote.set(true);
  EXPECT_EQ(methodName(w), "Numeri 07-13-21-35-44-50-62-70-81-90 su 2 ruote");
  w.Txt_Denominazione.set("  Il mio  ");
  EXPECT_EQ(methodName(w), "Il mio");
}

}  // namespace
}  // namespace trv5
