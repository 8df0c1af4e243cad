#include "engine/lunghetta.h"

#include <gtest/gtest.h>

#include <string>

#include "cases/hit_rows.h"
#include "engine/result_forms.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

constexpr const char* kTooManyToElaborate = "Attenzione si possono elaborare al massimo 10 numeri.";
constexpr const char* kTooManyToVerify =
    "Attenzione si possono elaborare al massimo 10 numeri. Rimuovere le formule in eccesso";

// One case on draw 1; the lunghetta plays 10 and 20, the first numbers of Bari and Cagliari there.
class LunghettaOfOneCase : public testing::Test {
 protected:
  explicit LunghettaOfOneCase(
      std::vector<WheelNumbers> later = {{{"BA", {10, 1, 2, 3, 4}}, {"CA", {5, 6, 7, 8, 9}}},
                                         {{"BA", {11, 12, 13, 14, 15}}, {"CA", {20, 10, 30, 31, 32}}},
                                         {{"BA", {10, 20, 1, 2, 3}}, {"CA", {20, 40, 41, 42, 43}}}})
      : world(archiveOf(draws(std::move(later)))), w(world.w) {
    world.playOn({0, 1});
    world.setCases({1}, 3);
    WorkbenchWorld::addFormula(w.Fg00, {.elements = {{0, 1}}});
    WorkbenchWorld::addFormula(w.Fg00, {.elements = {{1, 1}}});
  }
  static std::vector<WheelNumbers> draws(std::vector<WheelNumbers> later) {
    later.insert(later.begin(), {{"BA", {10, 50, 51, 52, 53}}, {"CA", {20, 54, 55, 56, 57}}});
    return later;
  }
  // "2@2CA" : two numbers at colpo 2 in Cagliari.
  static std::string rows(const Grid& grid) {
    std::string text;
    for (int row = 1; row < grid.rows(); ++row)
      text += grid.text(row, 3) + "@" + grid.text(row, 14) + grid.text(row, 13) + ' ';
    return text;
  }
  WorkbenchWorld world;
  Workbench& w;
};

TEST_F(LunghettaOfOneCase, IsElaboratedWheelByWheelWithAllQuantities) {
  world.press("Cmd_Elabora100");
  EXPECT_EQ(rows(w.FgZ100), "1@1BA 2@2CA 2@3BA 1@3CA ");
  EXPECT_EQ(w.EsitiPerSorte, (std::array<int, 6>{0, 2, 2, 0, 0, 0}));
  EXPECT_EQ(w.Sorte, 1);
  EXPECT_EQ(w.TipoVerifica, 6);
  EXPECT_EQ(w.FgZ100.text(2, 6), "20") << "in the order of the positions";
  EXPECT_EQ(w.FgZ100.text(2, 7), "10");
  EXPECT_EQ(w.FgZ100.back(2, 17), Giallo);
  EXPECT_EQ(w.FgZ100.back(1, 17), VerdeMedio);
  EXPECT_EQ(w.FgZ100.back(1, 0), VerdeMedio);
}

TEST_F(LunghettaOfOneCase, IsMarkedByTheLastWheelExaminedAlone) {
  world.press("Cmd_Elabora100");  // its last wheel, Cagliari at colpo 3, holds one number
  EXPECT_EQ(w.FgEv.at(1, 22), Cell{}) << "whatever came out earlier";
  world.playOn({0});  // now the last wheel is Bari at colpo 3, with both
  world.press("Cmd_Elabora100");
  EXPECT_EQ(w.FgEv.text(1, 22), "2");
  EXPECT_EQ(w.FgEv.back(1, 22), Verde);
}

TEST_F(LunghettaOfOneCase, CountsTheHitsOfTheChosenSorte) {
  world.playOn({0});
  WorkbenchWorld::choose(w.ComboSorte, "2");
  world.press("Cmd_Elabora100");
  EXPECT_EQ(rows(w.FgZ100), "1@1BA 2@3BA ");
  EXPECT_EQ(w.FgEv.text(1, 22), "1");
  WorkbenchWorld::choose(w.ComboSorte, "3");
  w.FgEv.setText(1, 22, "");
  w.FgEv.setBack(1, 22, kWhite);
  world.press("Cmd_Elabora100");
  EXPECT_EQ(w.FgEv.at(1, 22), Cell{});
}

TEST_F(LunghettaOfOneCase, KeepsTheMarksOfItsColumnWhenElaboratedByHand) {
  w.FgEv.setText(1, 22, "7");
  w.FgEv.setBack(1, 22, Verde);
  world.press("Cmd_Elabora100");
  EXPECT_EQ(w.FgEv.text(1, 22), "7");
}

TEST_F(LunghettaOfOneCase, StopsAtTheReferenceDrawAndStaysOpen) {
  w.hs1.set(2);
  world.press("Cmd_Elabora100");
  EXPECT_EQ(rows(w.FgZ100), "1@1BA ");
  EXPECT_EQ(w.FgEv.back(1, 1), Ciano);
}

TEST_F(LunghettaOfOneCase, GivesACaseWithoutHitOneRow) {
  w.Fg00.cutToHeading();
  WorkbenchWorld::addFormula(w.Fg00, {.fix = 90, .nr = "0"});
  world.press("Cmd_Elabora100");
  EXPECT_EQ(rows(w.FgZ100), "@ ");
  EXPECT_EQ(w.FgZ100.back(1, 0), AranciaMedio);
  EXPECT_EQ(w.FgZ100.text(1, 2), w.archive.DateEstrazioni(1));
}

TEST_F(LunghettaOfOneCase, WithoutFormulasDoesNothing) {
  world.press("Cmd_Elabora100");
  const Grid before = w.FgZ100;
  w.Fg00.cutToHeading();
  w.Sorte = 4;
  world.press("Cmd_Elabora100");
  EXPECT_EQ(w.FgZ100.grid(), before);
  EXPECT_EQ(w.Sorte, 4);
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST_F(LunghettaOfOneCase, TakesTenFormulasAndNotEleven) {
  while (w.Fg00.dataRows() < 10) WorkbenchWorld::addFormula(w.Fg00, {.elements = {{0, 2}}});
  world.press("Cmd_Elabora100");
  EXPECT_TRUE(world.shell.shown.empty());
  EXPECT_TRUE(w.FgZ100.hasData());
  WorkbenchWorld::addFormula(w.Fg00, {.elements = {{0, 2}}});
  w.FgZ100.cutToHeading();
  world.press("Cmd_Elabora100");
  EXPECT_EQ(world.shell.texts(), std::vector<std::string>{kTooManyToElaborate});
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  EXPECT_FALSE(w.FgZ100.hasData());
  world.press("Command51");
  EXPECT_EQ(world.shell.lastBox().text, kTooManyToVerify);
}

TEST_F(LunghettaOfOneCase, IsVerifiedBySorteAndThenElaborated) {
  WorkbenchWorld::choose(w.ComboSorte, "2");
  world.press("Command51");
  EXPECT_EQ(rows(w.FgZ0), "1@2CA 2@3BA ") << "running counts of the hits";
  EXPECT_EQ(rows(w.FgZ100), "1@1BA 2@2CA 2@3BA 1@3CA ");
  EXPECT_EQ(w.Sorte, 1);
  EXPECT_EQ(w.Fg_Stat.text(0, 1), "LU");
}

TEST_F(LunghettaOfOneCase, PreparesTheCasesOneNumberShort) {
  world.press("Cmd_Elabora100");
  w.Sorte = 3;
  PreparaPerScoperti(w);
  EXPECT_TRUE(w.CasiQuasi[1]);
  w.Sorte = 4;
  PreparaPerScoperti(w);
  EXPECT_FALSE(w.CasiQuasi[1]);
  w.Sorte = 2;
  w.FgEv.setBack(1, 22, Verde);
  PreparaPerScoperti(w);
  EXPECT_TRUE(w.CasiCoperti[1]);
  EXPECT_FALSE(w.CasiQuasi[1]);
}

TEST_F(LunghettaOfOneCase, TakesACaseWithoutHitAsOneNumberShortOfAnAmbata) {
  w.Fg00.cutToHeading();
  WorkbenchWorld::addFormula(w.Fg00, {.fix = 90, .nr = "0"});
  world.press("Cmd_Elabora100");
  w.Sorte = 1;
  PreparaPerScoperti(w);
  EXPECT_TRUE(w.CasiQuasi[1]);
}

class Copy : public testing::Test {
 protected:
  Copy() : world(archiveOf(std::vector<WheelNumbers>(9, {{"BA", {10, 1, 2, 3, 4}}}))), w(world.w) {
    world.setCases({5}, 3);
    for (int sorte = 1; sorte <= 3; ++sorte) {
      Grid& table = sorte == 1 ? w.Fg11.grid() : sorte == 2 ? w.Fg22.grid() : w.Fg33.grid();
      const int row = WorkbenchWorld::addFormula(table, {.elements = {{0, sorte}}, .fix = sorte});
      table.setNumber(row, 21, sorte);
      table.setNumber(row, 12, 40 + sorte);
    }
  }
  WorkbenchWorld world;
  Workbench& w;
};

TEST_F(Copy, GathersTheThreeTablesWithAllTheirColumns) {
  WorkbenchWorld::addFormula(w.Fg00, {.elements = {{5, 5}}});
  world.press("Command30");
  ASSERT_EQ(w.Fg00.dataRows(), 3);
  for (int row = 1; row <= 3; ++row) {
    EXPECT_EQ(w.Fg00.text(row, 0), std::to_string(row));
    EXPECT_EQ(w.Fg00.text(row, 3), std::to_string(row));
    EXPECT_EQ(w.Fg00.text(row, 12), std::to_string(40 + row));
    EXPECT_EQ(w.Fg00.text(row, 21), std::to_string(row));
    EXPECT_EQ(w.Fg00.back(row, 1), GialloChiaro);
  }
  EXPECT_TRUE(w.FgZ0.hasData()) << "verified at once";
}

TEST_F(Copy, KnowsNoLimitButItsVerificationDoes) {
  for (Grid* table : {&w.Fg11.grid(), &w.Fg22.grid(), &w.Fg33.grid()})
    while (table->dataRows() < 5) WorkbenchWorld::addFormula(*table, {.elements = {{0, 2}}});
  world.press("Command30");
  EXPECT_EQ(w.Fg00.dataRows(), 15);
  EXPECT_EQ(world.shell.texts(), std::vector<std::string>{kTooManyToVerify});
  EXPECT_FALSE(w.FgZ0.hasData());
}

TEST_F(Copy, OfEmptyTablesEmptiesTheLunghetta) {
  WorkbenchWorld::addFormula(w.Fg00, {.elements = {{5, 5}}});
  for (Grid* table : {&w.Fg11.grid(), &w.Fg22.grid(), &w.Fg33.grid()}) table->cutToHeading();
  world.press("Command30");
  EXPECT_FALSE(w.Fg00.hasData());
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST_F(Copy, ShowsTheHitsOnAScreenOfTheirOwn) {
  world.press("Command30");
  w.FgZ0.setColumnHidden(8);
  w.FgZ0.setMerged({1});
  world.shell.addScreen("ElencoRiscontri", [this] { return std::make_unique<ElencoRiscontri>(world.shell); });
  world.press("Command85");
  EXPECT_EQ(world.shell.shownScreens, std::vector<std::string>{"ElencoRiscontri"});
  const GridControl& shown = world.shell.show("ElencoRiscontri").get<GridControl>("Fg1");
  ASSERT_EQ(shown.rows(), w.FgZ0.rows());
  for (int row = 0; row < shown.rows(); ++row)
    for (int column = 0; column < shown.columns(); ++column) EXPECT_EQ(shown.at(row, column), w.FgZ0.at(row, column));
  EXPECT_EQ(shown.hiddenColumns(), w.FgZ0.hiddenColumns());
  EXPECT_EQ(shown.mergedColumns(), (std::set<int>{0, 1, 2}));
}

}  // namespace
}  // namespace trv5
