#include <gtest/gtest.h>

#include <array>
#include <string>

#include "engine/evaluation.h"
#include "support/plain_evaluation.h"
#include "support/random_runs.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

FormulaCells pureNumber(int number) {
  return {.fix = number, .nr = "0"};
}

// Draw 1 and 2 differ on Bari alone: 5 and 7 at the first position.
Archive twoDraws() {
  return archiveOf(
      {{{"BA", {5, 20, 30, 40, 50}}, {"RO", {5, 6, 7, 8, 9}}}, {{"BA", {7, 20, 30, 40, 50}}, {"RO", {5, 6, 7, 8, 9}}}});
}

TEST(RicavaElementiReali, ListsTheNumbersOfEachCaseByKind) {
  WorkbenchWorld world(twoDraws());
  Workbench& w = world.w;
  world.setCases({1, 2});
  WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}});
  WorkbenchWorld::addFormula(w.Fg11, {.elements = {{7, 2}}});
  WorkbenchWorld::addFormula(w.Fg22, {.elements = {{0, 1}}, .fix = 1});
  WorkbenchWorld::addFormula(w.Fg33, pureNumber(90));
  WorkbenchWorld::addFormula(w.Fg00, {.elements = {{0, 1}, {0, 2}}, .op = "N1 + N2", .qn = "2"});
  RicavaElementiReali(w);
  ASSERT_EQ(w.Fg15.rows(), 3);
  const std::array<std::array<std::string, 7>, 2> wanted = {
      {{"1", "05-06", "06", "90", "", "", "25"}, {"2", "07-06", "08", "90", "", "", "27"}}};
  for (int row = 1; row <= 2; ++row)
    for (int column = 0; column < 7; ++column)
      EXPECT_EQ(w.Fg15.text(row, column), wanted[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column)])
          << row << ", " << column;
}

TEST(RicavaElementiReali, SetsTheNumbersInPlayAtTheOffsetOfTheirKind) {
  WorkbenchWorld world(twoDraws());
  Workbench& w = world.w;
  world.setCases({1, 2});
  WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}});
  WorkbenchWorld::addFormula(w.Fg22, pureNumber(11));
  WorkbenchWorld::addFormula(w.Fg33, pureNumber(22));
  WorkbenchWorld::addFormula(w.Fg00, pureNumber(33));
  RicavaElementiReali(w);
  std::vector<NumberFlags> wanted(301);
  wanted[1][5] = wanted[2][7] = true;
  wanted[51][11] = wanted[52][11] = true;
  wanted[101][22] = wanted[102][22] = true;
  wanted[251][33] = wanted[252][33] = true;
  EXPECT_EQ(w.NumeriInGioco, wanted);
}

TEST(RicavaElementiReali, WritesANumberOnceForACaseAndAKindButInEachKind) {
  WorkbenchWorld world(twoDraws());
  Workbench& w = world.w;
  world.setCases({1});
  for (GridControl* table : {&w.Fg11, &w.Fg22}) {
    WorkbenchWorld::addFormula(*table, pureNumber(9));
    WorkbenchWorld::addFormula(*table, pureNumber(4));
    WorkbenchWorld::addFormula(*table, pureNumber(9));
  }
  RicavaElementiReali(w);
  EXPECT_EQ(w.Fg15.text(1, 1), "09-04");
  EXPECT_EQ(w.Fg15.text(1, 2), "09-04");
}

TEST(RicavaElementiReali, ShowsAPureNumberWithoutFixAsZero) {
  WorkbenchWorld world(twoDraws());
  Workbench& w = world.w;
  world.setCases({1});
  WorkbenchWorld::addFormula(w.Fg11, pureNumber(0));
  RicavaElementiReali(w);
  EXPECT_EQ(w.Fg15.text(1, 1), "00");
  EXPECT_TRUE(w.NumeriInGioco[1][0]);
}

TEST(RicavaElementiReali, ForgetsTheRunBefore) {
  WorkbenchWorld world(twoDraws());
  Workbench& w = world.w;
  world.setCases({1, 2});
  WorkbenchWorld::addFormula(w.Fg11, pureNumber(9));
  RicavaElementiReali(w);
  w.Fg11.cutToHeading();
  world.setCases({2});
  RicavaElementiReali(w);
  EXPECT_EQ(w.Fg15.rows(), 2);
  EXPECT_EQ(w.Fg15.text(1, 1), "");
  EXPECT_EQ(w.NumeriInGioco, std::vector<NumberFlags>(301));
}

TEST(RicavaElementiReali, CarriesANumberFromOneTableToTheNext) {
  WorkbenchWorld world(twoDraws());
  Workbench& w = world.w;
  world.setCases({1, 2});
  WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}});
  WorkbenchWorld::addFormula(w.Fg22, {.elements = {{0, 1}}, .fix = 10, .alteration = "XYZ"});
  RicavaElementiReali(w);
  EXPECT_EQ(w.Fg15.text(1, 2), "15");
  EXPECT_EQ(w.Fg15.text(2, 2), "17");
}

TEST(RicavaElementiReali, LeavesOutANumberThatNoTableOfNumbersHolds) {
  WorkbenchWorld world(twoDraws());
  Workbench& w = world.w;
  world.setCases({1});
  WorkbenchWorld::addFormula(w.Fg00, pureNumber(32000));
  RicavaElementiReali(w);
  EXPECT_EQ(w.Fg15.text(1, 6), "");
  EXPECT_EQ(w.Formula.NumeroOttenuto, 32000);
}

TEST(RicavaElementiReali, AgreesWithThePlainOneOnRandomTables) {
  for (unsigned seed = 1; seed <= static_cast<unsigned>(randomRuns(20)); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    WorkbenchWorld world(randomArchive(rng, 80));
    Workbench& w = world.w;
    std::vector<NumberFlags> flags(301);
    ParametriFormula record;
    Grid lists = w.Fg15;
    for (int setting = 0; setting < 15; ++setting) {
      SCOPED_TRACE("setting " + std::to_string(setting));
      std::vector<int> draws;
      for (int i = static_cast<int>(rng() % 51); i > 0; --i) draws.push_back(1 + static_cast<int>(rng() % 80));
      world.setCases(draws);
      const std::vector<const Grid*> tables = {&w.Fg11, &w.Fg22, &w.Fg33, &w.Fg00};
      for (GridControl* table : {&w.Fg11, &w.Fg22, &w.Fg33, &w.Fg00}) {
        table->cutToHeading();
        for (int i = static_cast<int>(rng() % 6); i > 0; --i) WorkbenchWorld::addFormula(*table, randomFormula(rng));
      }
      RicavaElementiReali(w);
      plainRicavaElementiReali({world.archive, w.FgEv, tables, record, lists, flags});
      ASSERT_EQ(w.Fg15.grid(), lists);
      ASSERT_EQ(w.NumeriInGioco, flags);
      ASSERT_STREQ(differentField(w.Formula, record), "");
    }
  }
}

TEST(SettaggioFix, AllowsAllFixesForTheEmptyItemAndOneAloneForANumber) {
  WorkbenchWorld world(twoDraws());
  Workbench& w = world.w;
  w.ComboFix.select(0);
  SettaggioFix(w);
  NumberFlags wanted;
  wanted.fill(true);
  wanted[0] = false;
  EXPECT_EQ(w.FixAmmessi, wanted);
  w.ComboFix.select(90);
  SettaggioFix(w);
  wanted.fill(false);
  wanted[90] = true;
  EXPECT_EQ(w.FixAmmessi, wanted);
  w.ComboFix.select(7);
  SettaggioFix(w);
  wanted.fill(false);
  wanted[7] = true;
  EXPECT_EQ(w.FixAmmessi, wanted);
}

TEST(TerzineAmmesse, AreThe35AscendingTriplesAtTheOpeningRepeatedPositionsIncluded) {
  WorkbenchWorld world(twoDraws());
  int allowed = 0;
  for (std::size_t p1 = 0; p1 <= 5; ++p1)
    for (std::size_t p2 = 0; p2 <= 5; ++p2)
      for (std::size_t p3 = 0; p3 <= 5; ++p3) {
        EXPECT_EQ(world.w.TerzineAmmesse[p1][p2][p3], p1 >= 1 && p1 <= p2 && p2 <= p3) << p1 << p2 << p3;
        allowed += world.w.TerzineAmmesse[p1][p2][p3] ? 1 : 0;
      }
  EXPECT_EQ(allowed, 35);
  EXPECT_TRUE(world.w.TerzineAmmesse[1][1][1]);
  EXPECT_TRUE(world.w.TerzineAmmesse[2][2][5]);
}

}  // namespace
}  // namespace trv5
