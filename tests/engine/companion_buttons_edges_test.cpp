#include <gtest/gtest.h>

#include <string>

#include "cases/hit_rows.h"
#include "core/text.h"
#include "engine/companion_buttons.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

// 60 simulated draws, three ambate verified on five cases, all wheels in play.
class CompanionButtonsOnAMethod : public testing::Test {
 protected:
  CompanionButtonsOnAMethod() : world(draws()), w(world.w) {
    w.Label17.click();
    world.setCases({50, 44, 38, 32, 26}, 8);
    for (int position : {1, 2, 3}) WorkbenchWorld::addFormula(w.Fg11, {.elements = {{2, position}}});
    WorkbenchWorld::choose(w.ComboEle, "5");
    w.ChFix1R.set(true);
    world.press("Command29");
  }

  static Archive draws() {
    std::mt19937 rng(77);
    return randomArchive(rng, 60);
  }

  void verifiedAmbi() {
    for (int position : {4, 5}) WorkbenchWorld::addFormula(w.Fg22, {.elements = {{2, position}}});
    world.press("Command34");
    w.FgZ2.cutToHeading();
    // Two hit rows of one draw, with the two first numbers of its first wheel.
    for (int caseRow : {2, 3}) {
      const int row = w.FgZ2.appendRow();
      w.FgZ2.setNumber(row, hit_column::kCase, caseRow);
      w.FgZ2.setNumber(row, hit_column::kCaseDraw, caseDraw(w, caseRow));
      for (int i : {0, 1}) w.FgZ2.setNumber(row, hit_column::kNumbers + i, w.archive.number(46, 0, i + 1));
      w.FgZ2.setNumber(row, hit_column::kDraw, 46);
    }
  }

  std::string column(int c) const {
    std::string texts;
    for (int row = 1; row < w.FgF.rows(); ++row) texts += w.FgF.text(row, c) + "|";
    return texts;
  }
  std::vector<std::string> boxes() const { return world.shell.texts(); }

  WorkbenchWorld world;
  Workbench& w;
};

TEST_F(CompanionButtonsOnAMethod, AskForTheAmbateFirst) {
  w.FgZ1.cutToHeading();
  world.press("Command23");
  const Grid before = w.FgF;
  for (const char* name : {"Command28", "Command39", "Command37", "Command31", "Command105"}) world.press(name);
  EXPECT_EQ(boxes(), std::vector<std::string>(5, "Attenzione manca l'elaborazione per le ambate."));
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  EXPECT_EQ(w.FgF.grid(), before);
}

TEST_F(CompanionButtonsOnAMethod, AskForTheAmbiFirst) {
  const Grid before = w.FgF;
  for (const char* name : {"Command46", "Command43", "Command45", "Command40", "Command107"}) world.press(name);
  EXPECT_EQ(boxes(), std::vector<std::string>(5, "Attenzione manca l'elaborazione per gli ambi."));
  EXPECT_EQ(w.FgF.grid(), before);
}

TEST_F(CompanionButtonsOnAMethod, OfTheLunghettaSearchAnEmptyGridInSilence) {
  for (const char* name : {"Command56", "Command58", "Command57", "Command59"}) {
    world.press(name);
    EXPECT_EQ(w.FgF.dataRows(), 5) << name;
    EXPECT_EQ(column(formula_column::kR1), "|||||") << name;
  }
  EXPECT_TRUE(boxes().empty());
}

TEST_F(CompanionButtonsOnAMethod, LeaveBlankRowsWhereNoHitIsAndCcWalksThem) {
  for (int row = 1; row < w.FgZ1.rows(); ++row) w.FgZ1.setText(row, hit_column::kDraw, "");
  for (int c = 0; c < 6; ++c) w.FgSSS.setNumber(1, c, 3);
  for (int c = 0; c < 6; ++c) w.FgSSS.setNumber(0, c, 7);
  world.press("Command28");
  EXPECT_EQ(column(formula_column::kFix), "|||||");
  EXPECT_EQ(column(formula_column::kCc), "3|3|3|3|3|") << "blank rows take the counts that the totals show";
  EXPECT_EQ(column(formula_column::kPres), "7|7|7|7|7|");
}

TEST_F(CompanionButtonsOnAMethod, FindNothingWhenEveryCaseIsCovered) {
  for (int row = 1; row < w.FgEv.rows(); ++row) w.FgEv.setBack(row, 18, Verde);
  w.Ch_Scoperti.set(true);
  world.press("Command39");
  EXPECT_EQ(column(formula_column::kR1), "|||||");
}

TEST_F(CompanionButtonsOnAMethod, OfTerniGoByTheColumnOfTheTerni) {
  verifiedAmbi();
  w.Ch_Scoperti.set(true);
  for (int row = 1; row < w.FgEv.rows(); ++row) w.FgEv.setBack(row, 18, Verde);
  world.press("Command46");
  EXPECT_NE(column(formula_column::kR1), "|||||");
  for (int row = 1; row < w.FgEv.rows(); ++row) w.FgEv.setBack(row, 19, Verde);
  world.press("Command46");
  EXPECT_EQ(column(formula_column::kR1), "|||||");
}

TEST_F(CompanionButtonsOnAMethod, TakeHitsWithoutACaseAnyMoreAsNotCovered) {
  w.Ch_Scoperti.set(true);
  w.FgEv.setRows(2);  // a shorter case list, the hits of the longer one still there
  world.press("Command28");
  EXPECT_NE(column(formula_column::kR1), "|||||");
}

TEST_F(CompanionButtonsOnAMethod, WriteTheOperatorWhereTheirTableSaysSo) {
  WorkbenchWorld::choose(w.Combo1R_2N, "N1 - N2");
  world.press("Command37");
  EXPECT_EQ(column(formula_column::kOperator), "|||||") << "three numbers of ambi";
  EXPECT_EQ(w.OperazioneCorrente, "N1 - N2") << "set all the same";
  WorkbenchWorld::choose(w.Combo1R_2N, "N1 X N2");
  world.press("Command39");
  EXPECT_EQ(column(formula_column::kOperator), "N1 X N2|N1 X N2|N1 X N2|N1 X N2|N1 X N2|");
  WorkbenchWorld::choose(w.Combo1R_2N, "D1 e U2");
  world.press("Command31");
  EXPECT_EQ(column(formula_column::kOperator), "N1 X N2|N1 X N2|N1 X N2|N1 X N2|N1 X N2|")
      << "an operator that the button doesn't know leaves that of the search before";
  EXPECT_EQ(column(formula_column::kNr), "1|1|1|1|1|");
  EXPECT_EQ(column(formula_column::kQn), "2|2|2|2|2|");
}

TEST_F(CompanionButtonsOnAMethod, OfTerniWriteTheOperatorBesideThreeSummedNumbers) {
  verifiedAmbi();
  WorkbenchWorld::choose(w.Combo1R_2N, "N2 - N1");
  world.press("Command45");
  EXPECT_EQ(column(formula_column::kOperator), "N2 - N1|N2 - N1|N2 - N1|N2 - N1|N2 - N1|");
  EXPECT_EQ(column(formula_column::kQn), "3|3|3|3|3|");
  world.press("Command40");
  EXPECT_EQ(column(formula_column::kNr), "2|2|2|2|2|");
  EXPECT_EQ(column(formula_column::kQn), "2|2|2|2|2|");
}

TEST_F(CompanionButtonsOnAMethod, OfTheLunghettaWriteNoOperatorBesideThreeNumbers) {
  WorkbenchWorld::addFormula(w.Fg00, {.elements = {{2, 1}}});
  world.press("Cmd_Elabora100");
  world.press("Command57");
  EXPECT_EQ(column(formula_column::kOperator), "|||||");
}

TEST_F(CompanionButtonsOnAMethod, StartWithoutAnOperatorOfTheirOwn) {
  EXPECT_EQ(w.OperazioneCorrente, "");
  WorkbenchWorld::choose(w.Combo1R_2N, "D2 e U1");
  world.press("Command31");
  EXPECT_EQ(column(formula_column::kOperator), "|||||");
}

TEST_F(CompanionButtonsOnAMethod, ReadTheColpi) {
  WorkbenchWorld::choose(w.ComboColpi, "4");
  world.press("Command28");
  EXPECT_EQ(w.Colpi, 4);
  WorkbenchWorld::choose(w.ComboColpi, "6");
  world.press("Command105");
  EXPECT_EQ(w.Colpi, 6);
  WorkbenchWorld::choose(w.ComboColpi, "7");
  world.press("Command56");
  EXPECT_EQ(w.Colpi, 7);
}

TEST_F(CompanionButtonsOnAMethod, LeaveThreeTimesInTheLog) {
  world.press("Command28");
  EXPECT_EQ(w.List1.lines(), std::vector<std::string>(3, "10:30:15"));
  world.press("Command64");
  EXPECT_EQ(w.List1.lines().size(), 2U);
}

TEST_F(CompanionButtonsOnAMethod, HideTheMarkThatCcByHandLeaves) {
  world.press("Command28");
  EXPECT_EQ(w.FgF.back(1, formula_column::kCc), GialloMedio);
  w.FgF.setNumber(1, formula_column::kCc, 99);
  world.press("Command64");
  EXPECT_EQ(w.FgF.back(1, formula_column::kCc), VerdeMedio);
  EXPECT_NE(w.FgF.text(1, formula_column::kCc), "99");
}

TEST_F(CompanionButtonsOnAMethod, KeepTheNumbersOfTheLastCandidateWhenTheTableIsEmpty) {
  world.press("Command28");
  EXPECT_FALSE(w.Fg22.hasData());
  EXPECT_FALSE(w.FgZ2.hasData());
  for (int row = 1; row < w.FgEv.rows(); ++row) EXPECT_EQ(w.FgEv.at(row, 18), Cell{});
  ASSERT_EQ(w.Fg15.dataRows(), w.FgEv.dataRows());
  for (int row = 1; row < w.Fg15.rows(); ++row) EXPECT_EQ(w.Fg15.text(row, 2).size(), 2U);
}

TEST_F(CompanionButtonsOnAMethod, OfTheLunghettaTakeTheSorteOfTheList) {
  w.ComboSorte.pick(2);
  w.Sorte = 1;
  world.press("Command56");
  EXPECT_EQ(w.Sorte, 3);
}

TEST_F(CompanionButtonsOnAMethod, OfTheLunghettaNeedCasesOneNumberShort) {
  WorkbenchWorld::addFormula(w.Fg00, {.elements = {{2, 1}}});
  world.press("Cmd_Elabora100");
  w.Ch_Scoperti.set(true);
  w.ComboSorte.pick(1);  // one number in play stands on the wheels of FgZ100: one short of two
  for (int row = 1; row < w.FgEv.rows(); ++row) w.FgEv.setBack(row, case_column::kLunghetta, kWhite);
  world.press("Command56");
  EXPECT_NE(column(formula_column::kR1), "|||||");
  w.ComboSorte.pick(3);
  world.press("Command56");
  EXPECT_EQ(column(formula_column::kR1), "|||||");
}

TEST(FirstCandidate, IsCurrentAfterEverySearchAndARefusedOneLeavesTheRowWhereItWas) {
  std::mt19937 rng(3);
  WorkbenchWorld world(randomArchive(rng, 300));
  Workbench& w = world.w;
  w.Label17.click();
  w.ChFix1R.set(true);
  world.setCases({290, 270, 250, 230, 210}, 10);
  WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}});
  WorkbenchWorld::addFormula(w.Fg22, {.elements = {{1, 2}}});
  WorkbenchWorld::addFormula(w.Fg00, {.elements = {{2, 3}}});
  for (const char* name : {"Command29", "Command34", "Cmd_Elabora100"}) world.press(name);
  for (const char* name :
       {"Command20", "Command13", "Command77", "Command99", "Command39", "Command105", "Command58"}) {
    world.press(name);
    EXPECT_EQ(w.FgF.current(), 1) << name;
    w.FgF.setCurrent(3);
  }
  w.FgEv.cutToHeading();
  w.FgZ1.cutToHeading();
  for (const char* name : {"Command20", "Command77", "Command39", "Command105"}) {
    world.press(name);
    EXPECT_EQ(w.FgF.current(), 3) << name;
  }
}

TEST(ProgressBar, MovesWithEverySearchOfCompanionsAndOfPureNumbers) {
  std::mt19937 rng(3);
  WorkbenchWorld world(randomArchive(rng, 300));
  Workbench& w = world.w;
  w.Label17.click();
  world.setCases({290, 270, 250}, 10);
  WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}});
  world.press("Command29");
  const int hitRows = w.FgZ1.dataRows();
  const std::pair<const char*, int> wanted[] = {{"Command77", 3},       {"Command101", 11},      {"Command100", 55},
                                                {"Command99", 165},     {"Command105", hitRows}, {"Command108", 11},
                                                {"Command28", hitRows}, {"Command39", 11},       {"Command31", 10}};
  for (const auto& [name, steps] : wanted) {
    world.shell.progressValues.clear();
    world.press(name);
    ASSERT_GE(world.shell.progressValues.size(), 2U) << name;  // the recount then moves it on its own
    EXPECT_EQ(world.shell.progressValues[0], std::pair(0, steps)) << name;
    EXPECT_EQ(world.shell.progressValues[1], std::pair(steps, steps)) << name;
  }
}

}  // namespace
}  // namespace trv5
