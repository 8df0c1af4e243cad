#include <gtest/gtest.h>

#include <string>

#include "engine/verification_draws.h"
#include "support/workbench_snapshot.h"

namespace trv5 {
namespace {

TEST(VerificaRigaSelezionata, ListsEachDrawingOfTheNumber) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 3);
  SevenWorld::addNumber(w.Fg11, 7);
  w.Fg11.setCurrent(1);
  world.press("Command21");
  ASSERT_EQ(w.FgZ1.rows(), 4);
  const std::string start = "1 1 " + dateOfDraw(1);
  EXPECT_EQ(SevenWorld::texts(w.FgZ1, 1, 0, 21), start + " 1   7      0 BA 1 2 " + dateOfDraw(2) + " 7 1 2 3 4");
  EXPECT_EQ(SevenWorld::texts(w.FgZ1, 2, 0, 21), start + " 2   7      7 RO 1 2 " + dateOfDraw(2) + " 12 8 9 11 7");
  EXPECT_EQ(SevenWorld::texts(w.FgZ1, 3, 0, 21), start + " 3   7      0 BA 3 4 " + dateOfDraw(4) + " 8 7 65 66 67");
  for (int row = 1; row <= 3; ++row) {
    EXPECT_EQ(w.FgZ1.back(row, 0), VerdeMedio) << row;
    EXPECT_EQ(w.FgZ1.back(row, 3), row > 1 ? BluChiaro : kWhite) << row;
  }
  EXPECT_EQ(w.FgZ1.back(1, 17), Verde);
  EXPECT_EQ(w.FgZ1.back(1, 18), kWhite);
  EXPECT_EQ(w.FgZ1.back(2, 21), Verde);
  EXPECT_EQ(w.FgZ1.back(3, 18), Verde);
  EXPECT_EQ(w.FgEv.text(1, 17), "3");
  EXPECT_EQ(w.FgEv.back(1, 17), Verde);
}

TEST(VerificaRigaSelezionata, ShowsTheNumberPlayedInTheRowOfACaseWithoutHit) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({4}, 10);
  SevenWorld::addNumber(w.Fg11, 7);
  w.Fg11.setCurrent(1);
  world.press("Command21");
  ASSERT_EQ(w.FgZ1.rows(), 2);
  EXPECT_EQ(SevenWorld::texts(w.FgZ1, 1, 0, 21), "1 4 " + dateOfDraw(4) + "    7               ");
  EXPECT_EQ(w.FgZ1.back(1, 0), AranciaMedio);
  EXPECT_EQ(w.FgEv.text(1, 17), "");
  EXPECT_EQ(w.FgEv.back(1, 17), kWhite);
}

TEST(VerificaRigaSelezionata, DoesNothingWithoutASelectedRow) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1});
  SevenWorld::addNumber(w.Fg11, 7);
  SevenWorld::addNumber(w.FgF, 7);
  w.ComboSorte.pick(2);
  w.Sorte = 1;
  for (const char* button : {"Command21", "Command22"}) {
    const WorkbenchSnapshot before(w);
    world.press(button);
    EXPECT_EQ(difference(before, w), "");
  }
}

TEST(VerificaRigaSelezionata, MarksTheColumnOfTheChosenSorteAndKeepsEarlierMarks) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 3}, 3);
  w.FgEv.setText(2, 19, "5");
  w.FgEv.setBack(2, 19, Verde);
  SevenWorld::addNumber(w.Fg11, 1);
  w.Fg11.setCurrent(1);
  w.ComboSorte.pick(2);
  w.Sorte = 5;  // whatever an earlier operation left
  world.press("Command21");
  EXPECT_EQ(w.Sorte, 3);
  EXPECT_EQ(w.FgEv.text(1, 19), "1");
  EXPECT_EQ(w.FgEv.back(1, 19), Verde);
  EXPECT_EQ(w.FgEv.text(2, 19), "5");
  EXPECT_EQ(w.FgEv.back(2, 19), Verde);
  EXPECT_EQ(w.FgEv.text(1, 17), "");
}

TEST(VerificaRigaSelezionata, BuildsUpTheCoveredCasesRowByRow) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 3}, 1);
  SevenWorld::addNumber(w.Fg11, 12);
  SevenWorld::addNumber(w.Fg11, 65);
  w.Fg11.setCurrent(1);
  world.press("Command21");
  w.Fg11.setCurrent(2);
  world.press("Command21");
  EXPECT_EQ(w.FgEv.back(1, 17), Verde);
  EXPECT_EQ(w.FgEv.back(2, 17), Verde);
  EXPECT_EQ(w.FgZ1.back(1, 0), AranciaMedio);  // the hit grid tells the last row alone
}

TEST(VerificaRigaSelezionata, LeavesTheStatisticsAndTheOpenCasesAlone) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({5}, 10);
  SevenWorld::addNumber(w.Fg11, 7);
  w.Fg11.setCurrent(1);
  const WorkbenchSnapshot before(w);
  world.press("Command21");
  EXPECT_EQ(difference(before.grids.at("Fg_Stat"), w.Fg_Stat), "");
  EXPECT_EQ(difference(before.grids.at("Fg_Graf"), w.Fg_Graf), "");
  EXPECT_EQ(difference(before.grids.at("FgSSS"), w.FgSSS), "");
  EXPECT_EQ(difference(before.grids.at("Fg15"), w.Fg15), "");
  EXPECT_EQ(w.FgEv.back(1, 1), kWhite);
  EXPECT_EQ(w.FgZ1.back(1, 0), AranciaMedio);
}

TEST(VerificaRigaSelezionata, PlaysOnTheWheelsOfTheRowWithR) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 3);
  WorkbenchWorld::addFormula(w.Fg11, {.fix = 7, .nr = "0", .wheels = "RO-NZ"});
  w.Fg11.setCurrent(1);
  w.Check3.set(true);
  world.press("Command21");
  for (int wheel = 0; wheel < kWheels; ++wheel)
    EXPECT_EQ(w.FgRG.back(0, wheel), wheel == 7 || wheel == 10 ? Verde : kWhite) << wheel;
  EXPECT_EQ(w.RuoteGioco, 1U << 7 | 1U << 10);
  ASSERT_EQ(w.FgZ1.rows(), 2);
  EXPECT_EQ(w.FgZ1.text(1, 13), "RO");
}

TEST(VerificaRigaSelezionata, FindsNoHitWithRAndARowWithoutWheels) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 2}, 3);
  SevenWorld::addNumber(w.Fg11, 7);
  w.Fg11.setCurrent(1);
  w.Check3.set(true);
  world.press("Command21");
  for (int wheel = 0; wheel < kWheels; ++wheel) EXPECT_EQ(w.FgRG.back(0, wheel), kWhite) << wheel;
  EXPECT_EQ(w.RuoteGioco, 0U);
  ASSERT_EQ(w.FgZ1.rows(), 3);
  EXPECT_EQ(w.FgZ1.back(1, 0), AranciaMedio);
  EXPECT_EQ(w.FgZ1.back(2, 0), AranciaMedio);
}

TEST(VerificaRigaSelezionata, TakesTheWheelsOfPlayFromTheGridAfterADeselectionByTheCaption) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 3);
  SevenWorld::addNumber(w.Fg11, 7);
  w.Fg11.setCurrent(1);
  w.Label1[0].click();
  EXPECT_NE(w.RuoteGioco, 0U);
  world.press("Command21");
  EXPECT_EQ(w.RuoteGioco, 0U);
  EXPECT_EQ(w.FgZ1.back(1, 0), AranciaMedio);
}

TEST(VerificaRigaSelezionata, SkipsDrawsBehindTheReferenceDraw) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 5);
  w.hs1.set(3);
  SevenWorld::addNumber(w.Fg11, 7);
  w.Fg11.setCurrent(1);
  world.press("Command21");
  EXPECT_EQ(w.FgZ1.rows(), 3);
  EXPECT_EQ(w.FgEv.text(1, 17), "2");
}

TEST(VerificaRigaSelezionata, NeverHitsWithANumberOfZero) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}, {}, {}}));
  Workbench& w = world.w;
  world.playOn({0, 1, 2});
  world.setCases({1}, 2);
  SevenWorld::addNumber(w.Fg11, 0);
  w.Fg11.setCurrent(1);
  world.press("Command21");
  ASSERT_EQ(w.FgZ1.rows(), 2);
  EXPECT_EQ(w.FgZ1.back(1, 0), AranciaMedio);
  EXPECT_EQ(w.FgZ1.text(1, 6), "0");
}

TEST(VerificaRigaSelezionata, UsesTheColpiOfTheLastOperationWhateverTheListShows) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 1);
  WorkbenchWorld::choose(w.ComboColpi, "20");
  SevenWorld::addNumber(w.Fg11, 7);
  w.Fg11.setCurrent(1);
  world.press("Command21");
  EXPECT_EQ(w.FgZ1.rows(), 3);
  EXPECT_EQ(w.Colpi, 1);
}

// Case 1 has 25 and 38 at its first positions on Bari; 28 follows on Bari, and 30 on Roma.
Archive drawsForDigits() {
  return archiveOf({{{"BA", {25, 38, 1, 2, 3}}}, {{"BA", {28, 60, 61, 62, 63}}, {"RO", {30, 70, 71, 72, 73}}}});
}

TEST(VerificaRigaRicerca, KnowsTheOperatorsOfDigitsNoMoreThanBeforeUnlikeTheTableRow) {
  WorkbenchWorld world(drawsForDigits());
  Workbench& w = world.w;
  world.playOn({0, 7});
  world.setCases({1}, 1);
  const FormulaCells row{.elements = {{0, 1}, {0, 2}}, .op = "D1 e U2", .qn = "2"};
  WorkbenchWorld::addFormula(w.FgF, row);
  WorkbenchWorld::addFormula(w.Fg11, row);
  w.FgF.setCurrent(1);
  w.Fg11.setCurrent(1);
  w.Formula.NumeroOttenuto = 30;
  world.press("Command22");
  ASSERT_EQ(w.FgZ1.rows(), 2);
  EXPECT_EQ(w.FgZ1.text(1, 6), "30");
  EXPECT_EQ(w.FgZ1.text(1, 13), "RO");
  world.press("Command21");
  ASSERT_EQ(w.FgZ1.rows(), 2);
  EXPECT_EQ(w.FgZ1.text(1, 6), "28");
  EXPECT_EQ(w.FgZ1.text(1, 13), "BA");
}

TEST(VerificaRigaRicerca, AddsTheFixAgainAtEachCaseToANumberThatItDoesNotWorkOut) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 2, 3}, 1);
  WorkbenchWorld::addFormula(w.FgF, {.elements = {{0, 1}, {0, 2}}, .op = "D2 e U1", .fix = 40, .qn = "2"});
  w.FgF.setCurrent(1);
  w.Formula.NumeroOttenuto = 20;
  world.press("Command22");
  ASSERT_EQ(w.FgZ1.rows(), 4);
  EXPECT_EQ(w.FgZ1.text(1, 6), "60");
  EXPECT_EQ(w.FgZ1.text(2, 6), "10");
  EXPECT_EQ(w.FgZ1.text(3, 6), "50");
  EXPECT_EQ(w.Formula.NumeroOttenuto, 50);
}

TEST(VerificaRigaRicerca, WorksOutTheFourOtherOperatorsAndTheSumOfThree) {
  WorkbenchWorld world(drawsForDigits());
  Workbench& w = world.w;
  world.setCases({1}, 1);
  for (const char* op : {"N1 + N2", "N1 - N2", "N2 - N1", "N1 X N2"})
    WorkbenchWorld::addFormula(w.FgF, {.elements = {{0, 1}, {0, 2}}, .op = op, .qn = "2"});
  WorkbenchWorld::addFormula(w.FgF, {.elements = {{0, 1}, {0, 2}, {0, 3}}, .op = "N1+N2+N3", .qn = "3"});
  WorkbenchWorld::addFormula(w.FgF, {.elements = {{0, 1}, {0, 2}}, .op = "N1 + N2", .fix = 5, .nr = "2"});
  const int wanted[] = {63, 77, 13, 50, 64, 68};
  for (int row = 1; row <= 6; ++row) {
    w.FgF.setCurrent(row);
    world.press("Command22");
    EXPECT_EQ(w.FgZ1.number(1, 6), wanted[row - 1]) << w.FgF.text(row, 10);
  }
}

TEST(VerificaRigaRicerca, ReadsAnEmptyFixAsZero) {
  WorkbenchWorld world(drawsForDigits());
  Workbench& w = world.w;
  world.setCases({1}, 1);
  w.Formula.Fix = 44;
  WorkbenchWorld::addFormula(w.FgF, {.elements = {{0, 1}}});
  w.FgF.setCurrent(1);
  world.press("Command22");
  EXPECT_EQ(w.FgZ1.text(1, 6), "25");
}

TEST(VerificaRigaRicerca, NeitherEvaluatesAPureNumberNorAddsToTheNumberBefore) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 2}, 3);
  SevenWorld::addNumber(w.FgF, 1);
  w.FgF.setCurrent(1);
  w.Formula.NumeroOttenuto = 7;
  world.press("Command22");
  EXPECT_EQ(w.Formula.NumeroOttenuto, 7);
  EXPECT_EQ(w.FgEv.text(1, 17), "3");
  EXPECT_EQ(w.FgEv.text(2, 17), "1");
}

TEST(VerificaRigaRicerca, TakesTheElementsOfABlankRowAsZero) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 1);
  for (const char* qn : {"1", "2", "3"}) {
    w.FgF.cutToHeading();
    const int row = WorkbenchWorld::addFormula(w.FgF, {.op = "N1 + N2", .qn = qn});
    w.FgF.setCurrent(row);
    w.Formula.R2 = w.Formula.R3 = 0;
    w.Formula.P2 = 3;
    w.Formula.P3 = 4;
    world.press("Command22");
    EXPECT_EQ(w.FgZ1.text(1, 6), "90") << "Qn " << qn;
  }
}

}  // namespace
}  // namespace trv5
