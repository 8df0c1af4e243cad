#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "engine/verification_draws.h"
#include "support/workbench_snapshot.h"

namespace trv5 {
namespace {

struct FormulaTable {
  int sorte;
  int tab;
  const char *all, *remove, *clear;
  GridControl Workbench::*formulas;
  GridControl Workbench::*hits;
  int column;
  int capacity;
};

void PrintTo(const FormulaTable& value, std::ostream* out) {
  *out << value.all;
}

const std::vector<FormulaTable> kTables = {
    {1, 0, "Command29", "Command32", "Command19", &Workbench::Fg11, &Workbench::FgZ1, 17, 5},
    {2, 1, "Command34", "Rimuove_Fg22", "Nuova_Fg22", &Workbench::Fg22, &Workbench::FgZ2, 18, 5},
    {3, 2, "Command48", "Rimuove_Fg33", "Nuova_Fg33", &Workbench::Fg33, &Workbench::FgZ3, 19, 5},
    {6, 4, "Command51", "Rimuove_Fg00", "Nuova_Fg00", &Workbench::Fg00, &Workbench::FgZ0, 22, 10}};

class EachTable : public testing::TestWithParam<FormulaTable> {
 protected:
  EachTable() { world.setCases({1, 4}, 3); }

  Grid& formulas() { return world.w.*GetParam().formulas; }
  Grid& hits() { return world.w.*GetParam().hits; }
  void take(int row) {
    world.w.FgF.setCurrent(row);
    world.w.Cmd_LaSorte[GetParam().sorte].press();
  }

  SevenWorld world;
  Workbench& w = world.w;
};

INSTANTIATE_TEST_SUITE_P(OfFour, EachTable, testing::ValuesIn(kTables),
                         [](const auto& table) { return "Sorte" + std::to_string(table.param.sorte); });

TEST_P(EachTable, TakesAllColumnsOfTheSelectedRowAndItsKindButNoColours) {
  const int row = WorkbenchWorld::addFormula(
      w.FgF,
      {.elements = {{0, 1}, {7, 2}}, .op = "N1 X N2", .fix = 9, .nr = "2", .alteration = "FIG", .wheels = "BA-RO"});
  for (int column = 0; column < w.FgF.columns(); ++column) {
    if (w.FgF.text(row, column).empty()) w.FgF.setText(row, column, "c" + std::to_string(column));
    w.FgF.setBack(row, column, Giallo);
  }
  take(row);
  ASSERT_EQ(formulas().rows(), 2);
  for (int column = 0; column < w.FgF.columns(); ++column) {
    const bool numbered = GetParam().sorte == 6 && column == 0;
    EXPECT_EQ(formulas().text(1, column), numbered ? "1" : w.FgF.text(row, column)) << column;
    EXPECT_EQ(formulas().back(1, column), kWhite) << column;
  }
  EXPECT_EQ(formulas().text(1, 21), std::to_string(GetParam().sorte));
  EXPECT_EQ(formulas().current(), -1);
}

TEST_P(EachTable, DoesNothingWithoutASelectedRow) {
  SevenWorld::addNumber(w.FgF, 7);
  for (int row : {-1, 0}) {
    w.FgF.setCurrent(row);
    const WorkbenchSnapshot before(w);
    w.Cmd_LaSorte[GetParam().sorte].press();
    EXPECT_EQ(difference(before, w), "");
  }
}

TEST_P(EachTable, RefusesABlankRowButTakesAPureNumberAndAFormulaWithoutFix) {
  WorkbenchWorld::addFormula(w.FgF, {.op = "N1 + N2", .qn = "2"});
  SevenWorld::addNumber(w.FgF, 7);
  WorkbenchWorld::addFormula(w.FgF, {.elements = {{0, 1}}});
  take(1);
  EXPECT_FALSE(formulas().hasData());
  take(2);
  take(3);
  EXPECT_EQ(formulas().dataRows(), 2);
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST_P(EachTable, RefusesTheRowBeyondItsCapacityInSilence) {
  SevenWorld::addNumber(w.FgF, 7);
  w.ChVerifica.set(true);
  for (int i = 0; i < GetParam().capacity; ++i) take(1);
  EXPECT_EQ(formulas().dataRows(), GetParam().capacity);
  w.FgEv.setText(1, GetParam().column, "untouched");
  const WorkbenchSnapshot before(w);
  take(1);
  EXPECT_EQ(difference(before, w), "");
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST_P(EachTable, VerifiesAllItsRowsOnlyWhenToldToDoSo) {
  SevenWorld::addNumber(w.FgF, 7);
  take(1);
  EXPECT_FALSE(hits().hasData());
  w.ChVerifica.set(true);
  take(1);
  EXPECT_TRUE(hits().hasData());
  // Just what the button of the table does.
  const WorkbenchSnapshot verified(w);
  world.press(GetParam().all);
  EXPECT_EQ(difference(verified, w), "");
}

TEST_P(EachTable, LosesTheSelectedRowAlone) {
  for (int number : {7, 8, 9}) SevenWorld::addNumber(formulas(), number);
  world.press(GetParam().all);
  formulas().setCurrent(2);
  const Grid hitsBefore = hits(), casesBefore = w.FgEv;
  world.press(GetParam().remove);
  ASSERT_EQ(formulas().dataRows(), 2);
  EXPECT_EQ(formulas().text(1, 11) + formulas().text(2, 11), "79");
  EXPECT_EQ(formulas().current(), -1);
  EXPECT_EQ(difference(hitsBefore, hits()), "");
  EXPECT_EQ(difference(casesBefore, w.FgEv), "");
  if (GetParam().sorte == 6) {
    EXPECT_EQ(formulas().text(2, 0), "2");
  }
}

TEST_P(EachTable, LosesNoRowWithoutASelection) {
  SevenWorld::addNumber(formulas(), 7);
  const WorkbenchSnapshot before(w);
  world.press(GetParam().remove);
  EXPECT_EQ(difference(before, w), "");
}

TEST_P(EachTable, IsEmptiedWithItsHitsAndMarksAndNothingElse) {
  for (const FormulaTable& table : kTables) {
    SevenWorld::addNumber(w.*table.formulas, 7);
    (w.*table.hits).appendRow();
    w.FgEv.setText(1, table.column, "3");
    w.FgEv.setBack(1, table.column, Verde);
  }
  world.press(GetParam().clear);
  for (const FormulaTable& table : kTables) {
    const bool own = table.sorte == GetParam().sorte;
    EXPECT_EQ((w.*table.formulas).hasData(), !own) << table.sorte;
    EXPECT_EQ((w.*table.hits).hasData(), !own) << table.sorte;
    EXPECT_EQ(w.FgEv.text(1, table.column), own ? "" : "3") << table.sorte;
    EXPECT_EQ(w.FgEv.back(1, table.column), own ? kWhite : Verde) << table.sorte;
  }
}

TEST_P(EachTable, TakesARowByADoubleClickOnTheRankingWhileItsTabIsInFront) {
  SevenWorld::addNumber(w.FgF, 7);
  w.SSTab3.set(GetParam().tab);
  w.FgF.doubleClickCell(1, 11);
  for (const FormulaTable& table : kTables)
    EXPECT_EQ((w.*table.formulas).dataRows(), table.sorte == GetParam().sorte ? 1 : 0) << table.sorte;
}

TEST(CmdLaSorte, RenumbersAllRowsOfTheLunghetta) {
  SevenWorld world;
  Workbench& w = world.w;
  for (int number : {7, 8}) SevenWorld::addNumber(w.Fg00, number);
  SevenWorld::addNumber(w.FgF, 9);
  w.FgF.setText(1, 0, "77");
  w.FgF.setCurrent(1);
  w.Cmd_LaSorte[6].press();
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(w.Fg00.text(row, 0), std::to_string(row));
}

}  // namespace
}  // namespace trv5
