#include <gtest/gtest.h>

#include <string>

#include "engine/verification_draws.h"
#include "support/workbench_snapshot.h"

namespace trv5 {
namespace {

struct Table {
  const char* all;
  GridControl Workbench::*formulas;
  GridControl Workbench::*hits;
  int column;
  int code;
  const char* label;
};

const Table kTables[] = {{"Command29", &Workbench::Fg11, &Workbench::FgZ1, 17, 1, "1N"},
                         {"Command34", &Workbench::Fg22, &Workbench::FgZ2, 18, 2, "2N"},
                         {"Command48", &Workbench::Fg33, &Workbench::FgZ3, 19, 3, "3N"},
                         {"Command51", &Workbench::Fg00, &Workbench::FgZ0, 22, 6, "LU"}};

TEST(VerificaTutteLeRighe, DoesNothingWithoutFormulas) {
  SevenWorld world;
  world.setCases({1, 2});
  const WorkbenchSnapshot before(world.w);
  for (const Table& table : kTables) {
    world.press(table.all);
    EXPECT_EQ(difference(before, world.w), "") << table.all;
  }
}

TEST(VerificaTutteLeRighe, GivesOneHitForTwoFormulasOfTheSameNumber) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 1);
  SevenWorld::addNumber(w.Fg11, 7);
  WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}, .fix = 87});  // 10 + 87 is 7 too
  world.press("Command29");
  EXPECT_EQ(w.Fg15.text(1, 1), "07");
  EXPECT_EQ(w.FgZ1.rows(), 3);  // one on Bari, one on Roma
  EXPECT_EQ(w.EsitiPerSorte[1], 2);
}

TEST(VerificaTutteLeRighe, PlaysAllNumbersOfACaseAsOneForecast) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 1);
  SevenWorld::addNumber(w.Fg11, 9);
  SevenWorld::addNumber(w.Fg11, 2);
  world.press("Command29");
  ASSERT_EQ(w.FgZ1.rows(), 3);
  EXPECT_EQ(SevenWorld::texts(w.FgZ1, 1, 3, 6), "1   2");
  EXPECT_EQ(SevenWorld::texts(w.FgZ1, 2, 3, 6), "2   9");
  EXPECT_EQ(w.FgZ1.back(1, 3), kWhite);
  EXPECT_EQ(w.FgZ1.back(2, 3), BluChiaro);
  EXPECT_EQ(w.FgEv.text(1, 17), "2");
}

TEST(VerificaTutteLeRighe, LeavesTheNumberPlayedBlankInTheRowOfACaseWithoutHit) {
  SevenWorld world;
  Workbench& w = world.w;
  for (const Table& table : kTables) {
    world.setCases({4}, 1);
    for (GridControl* formulas : {&w.Fg11, &w.Fg22, &w.Fg33, &w.Fg00}) {
      formulas->cutToHeading();
      SevenWorld::addNumber(*formulas, 45);
    }
    world.press(table.all);
    const Grid& hits = w.*table.hits;
    ASSERT_EQ(hits.rows(), 2) << table.all;
    EXPECT_EQ(SevenWorld::texts(hits, 1, 0, 21), "1 4 " + dateOfDraw(4) + std::string(19, ' ')) << table.all;
    EXPECT_EQ(hits.back(1, 0), AranciaMedio) << table.all;
  }
}

TEST(VerificaTutteLeRighe, RebuildsTheColumnOfItsKindAlone) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({4}, 1);
  for (const Table& table : kTables) {
    for (const Table& other : kTables) {
      w.FgEv.setText(1, other.column, "4");
      w.FgEv.setBack(1, other.column, Verde);
    }
    (w.*table.formulas).cutToHeading();
    SevenWorld::addNumber(w.*table.formulas, 45);
    world.press(table.all);
    for (const Table& other : kTables) {
      EXPECT_EQ(w.FgEv.text(1, other.column), other.code == table.code ? "" : "4") << table.all;
      EXPECT_EQ(w.FgEv.back(1, other.column), other.code == table.code ? kWhite : Verde) << table.all;
    }
    EXPECT_EQ(w.TipoVerifica, table.code);
    EXPECT_EQ(w.Fg_Stat.text(0, 1), table.label);
  }
}

TEST(VerificaAmbi, HitsWhereBothNumbersOfAPairStandOnOneWheel) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 3);
  SevenWorld::addNumber(w.Fg11, 7);
  SevenWorld::addNumber(w.Fg22, 9);
  SevenWorld::addNumber(w.Fg22, 8);
  world.press("Command34");
  ASSERT_EQ(w.FgZ2.rows(), 4);
  // The pairs in ascending order, each through all its draws.
  EXPECT_EQ(SevenWorld::texts(w.FgZ2, 1, 3, 15), "1   7 8     7 RO 1 2");
  EXPECT_EQ(SevenWorld::texts(w.FgZ2, 2, 3, 15), "2   7 8     0 BA 3 4");
  EXPECT_EQ(SevenWorld::texts(w.FgZ2, 3, 3, 15), "3   7 9     7 RO 1 2");
  // A repeat of its own pair, not of the case.
  EXPECT_EQ(w.FgZ2.back(1, 3), kWhite);
  EXPECT_EQ(w.FgZ2.back(2, 3), BluChiaro);
  EXPECT_EQ(w.FgZ2.back(3, 3), kWhite);
  for (int column = 17; column <= 21; ++column)
    EXPECT_EQ(w.FgZ2.back(1, column), column == 18 || column == 21 ? Verde : kWhite) << column;
  EXPECT_EQ(w.EsitiPerSorte[2], 3);
  EXPECT_EQ(w.FgEv.text(1, 18), "3");
  EXPECT_EQ(w.FgEv.back(1, 18), Verde);
}

TEST(VerificaAmbi, NeverHitsWithThePairOfANumberWithItself) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 3);
  SevenWorld::addNumber(w.Fg11, 7);
  SevenWorld::addNumber(w.Fg22, 7);
  world.press("Command34");
  ASSERT_EQ(w.FgZ2.rows(), 2);
  EXPECT_EQ(w.FgZ2.back(1, 0), AranciaMedio);
}

TEST(VerificaAmbi, NeverHitsWithTheNumberOfAWheelNotDrawn) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}, {{"BA", {7, 2, 3, 4, 5}}}}));
  Workbench& w = world.w;
  w.Label17.click();
  world.setCases({1}, 1);
  SevenWorld::addNumber(w.Fg11, 0);
  SevenWorld::addNumber(w.Fg22, 0);
  SevenWorld::addNumber(w.Fg22, 7);
  world.press("Command34");
  ASSERT_EQ(w.FgZ2.rows(), 2);
  EXPECT_EQ(w.FgZ2.back(1, 0), AranciaMedio);
}

TEST(VerificaAmbi, FindsNothingWithoutAmbate) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 3);
  SevenWorld::addNumber(w.Fg22, 7);
  world.press("Command34");
  ASSERT_EQ(w.FgZ2.rows(), 2);
  EXPECT_EQ(w.FgZ2.back(1, 0), AranciaMedio);
}

TEST(VerificaTerni, HitsWhereAllThreeNumbersStandOnOneWheel) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 3);
  SevenWorld::addNumber(w.Fg11, 9);
  SevenWorld::addNumber(w.Fg22, 7);
  SevenWorld::addNumber(w.Fg33, 8);
  SevenWorld::addNumber(w.Fg33, 9);
  world.press("Command48");
  ASSERT_EQ(w.FgZ3.rows(), 2);
  EXPECT_EQ(SevenWorld::texts(w.FgZ3, 1, 3, 15), "1   9 7 8    7 RO 1 2");
  for (int column = 17; column <= 21; ++column)
    EXPECT_EQ(w.FgZ3.back(1, column), column == 18 || column == 19 || column == 21 ? Verde : kWhite) << column;
  EXPECT_EQ(w.EsitiPerSorte[3], 1);
  EXPECT_EQ(w.FgEv.text(1, 19), "1");
}

TEST(VerificaTutteLeRighe, CountsACaseAtTheDistanceOfTheColpiAsClosed) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({2, 3}, 4);
  SevenWorld::addNumber(w.Fg11, 45);
  world.press("Command29");
  EXPECT_EQ(w.FgEv.back(1, 1), kWhite);
  EXPECT_EQ(w.FgEv.back(2, 1), Ciano);
  EXPECT_EQ(w.CasiInCorso, 1);
  EXPECT_EQ(w.FgZ1.back(1, 0), AranciaMedio);
  EXPECT_EQ(w.FgZ1.back(2, 0), Ciano);
}

TEST(VerificaTutteLeRighe, MarksTheHitsOfAnOpenCaseAsOpen) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 10);
  SevenWorld::addNumber(w.Fg11, 7);
  world.press("Command29");
  ASSERT_EQ(w.FgZ1.rows(), 4);
  for (int row = 1; row <= 3; ++row) EXPECT_EQ(w.FgZ1.back(row, 0), Ciano) << row;
  EXPECT_EQ(w.FgEv.back(1, 17), Verde);
}

TEST(VerificaTutteLeRighe, KeepsTheMarkOfAnOpenCaseThroughAMoveOfTheReferenceAndAnotherVerification) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({2}, 2);
  w.hs1.set(3);
  SevenWorld::addNumber(w.Fg11, 7);
  world.press("Command29");
  EXPECT_EQ(w.FgEv.back(1, 1), Ciano);
  w.hs1.set(6);
  EXPECT_EQ(w.FgEv.back(1, 1), Ciano);
  SevenWorld::addNumber(w.Fg22, 8);
  world.press("Command34");
  EXPECT_EQ(w.FgEv.back(1, 1), Ciano);
  EXPECT_EQ(w.CasiInCorso, 1);
  EXPECT_EQ(w.FgZ2.back(1, 0), Ciano);
}

TEST(VerificaTutteLeRighe, FindsTheRowsOfAnOpenCaseByItsNumberInTheList) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 6}, 3);
  w.FgEv.setText(1, 0, "2");  // a list whose first case was taken out
  w.FgEv.setText(2, 0, "3");
  w.FgEv.setBack(1, 1, Ciano);
  SevenWorld::addNumber(w.Fg11, 45);
  world.press("Command29");
  EXPECT_EQ(w.CasiInCorso, 2);
  EXPECT_EQ(w.FgZ1.back(1, 0), AranciaMedio);
  EXPECT_EQ(w.FgZ1.back(2, 0), Ciano);
}

TEST(VerificaTutteLeRighe, FillsTheStatisticsOfItsKind) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 2, 4, 5}, 2);
  SevenWorld::addNumber(w.Fg11, 7);
  world.press("Command29");
  // Hit: 1 (twice), 2 (once); missed: 4; still open: 5.
  const std::string wanted[] = {"1N", "4", "2", "3", "1", "1", "3", "", "", "", ""};
  for (int row = 0; row < 11; ++row) EXPECT_EQ(w.Fg_Stat.text(row, 1), wanted[row]) << row;
  EXPECT_EQ(w.FgSSS.text(0, 0), "3");
  EXPECT_EQ(w.FgSSS.text(1, 0), "2");
  EXPECT_EQ(SevenWorld::texts(w.Fg_Graf, 0, 0, 2), "Casi Coperti 2 50.0");
  EXPECT_EQ(SevenWorld::texts(w.Fg_Graf, 1, 0, 2), "Negativi 1 25.0");
  EXPECT_EQ(SevenWorld::texts(w.Fg_Graf, 2, 0, 2), "In corso 1 25.0");
}

TEST(VerificaTutteLeRighe, ColoursItsHitGridAndMergesTheDrawOfTheCase) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1, 4}, 1);
  SevenWorld::addNumber(w.Fg11, 7);
  SevenWorld::addNumber(w.Fg22, 8);
  SevenWorld::addNumber(w.Fg33, 9);
  SevenWorld::addNumber(w.Fg00, 7);
  for (const Table& table : kTables) {
    world.press(table.all);
    const Grid& hits = w.*table.hits;
    EXPECT_EQ(hits.mergedColumns(), std::set<int>{1}) << table.all;
    for (int row = 1; row < hits.rows(); ++row)
      for (int column = 0; column <= 16; ++column) {
        const bool yellow = column == 2 || column == 15 || column == 16;
        const bool number = column >= 6 && column <= 11;
        EXPECT_EQ(hits.at(row, column).bold, number || column == 13 || column == 14) << column;
        EXPECT_EQ(hits.at(row, column).fore, number ? Blu : kBlack) << column;
        if (column == 0 || column == 3) continue;  // they tell hits and repeats
        EXPECT_EQ(hits.back(row, column), yellow ? GialloChiaro : column == 13 ? VerdeMedio : kWhite) << column;
      }
  }
}

TEST(VerificaTutteLeRighe, LeavesColpiWheelsAndSorteAsTheyStand) {
  SevenWorld world;
  Workbench& w = world.w;
  world.setCases({1}, 1);
  WorkbenchWorld::choose(w.ComboColpi, "20");
  w.ComboSorte.pick(3);
  w.Sorte = 2;
  w.Label1[0].click();
  SevenWorld::addNumber(w.Fg11, 7);
  world.press("Command29");
  EXPECT_EQ(w.Colpi, 1);
  EXPECT_EQ(w.Sorte, 2);
  EXPECT_EQ(w.RuoteGioco, 1U | 1U << 7);
  EXPECT_EQ(w.FgZ1.rows(), 3);
}

TEST(VerificaTutteLeRighe, KeepsTheCountsOfTheTotalsGridWithoutCases) {
  SevenWorld world;
  Workbench& w = world.w;
  SevenWorld::addNumber(w.Fg11, 7);
  w.FgSSS.setText(1, 0, "9");
  world.press("Command29");
  EXPECT_EQ(w.FgZ1.rows(), 1);
  EXPECT_EQ(w.FgSSS.text(1, 0), "9");
  EXPECT_EQ(w.Fg_Stat.text(1, 1), "0");
  EXPECT_EQ(w.Fg_Stat.text(2, 1), "9");
  EXPECT_EQ(w.Fg_Graf.text(0, 2), "");
  EXPECT_TRUE(w.Fg_Graf.bars().empty());
  EXPECT_TRUE(world.shell.shown.empty());
}

}  // namespace
}  // namespace trv5
