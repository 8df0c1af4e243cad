#include "engine/ambata_buttons.h"

#include <gtest/gtest.h>

#include <string>

#include "support/workbench_snapshot.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

// The cases are draws 1 and 3; the draws behind them hold 60 twice and once, and 12 beside it.
Archive drawsAfterTwoCases() {
  return archiveOf({{{"BA", {10, 47, 25, 38, 90}}},
                    {{"BA", {60, 12, 1, 2, 3}}, {"RO", {60, 4, 5, 6, 7}}},
                    {{"BA", {11, 47, 26, 39, 89}}},
                    {{"RO", {61, 60, 74, 8, 9}}}});
}

class SearchWorld : public WorkbenchWorld {
 public:
  SearchWorld() : WorkbenchWorld(drawsAfterTwoCases()) {
    setCases({1, 3}, 1);
    playOn({0, 7});
    w.ChFix1R.set(true);
    w.ComboEle.type("2000");
  }

  /// The row of a formula whose elements stand at these positions of Bari; 0 when it isn't ranked.
  int rowOf(int p1, int fix, int p2 = 0, const std::string& wheels = "") {
    for (int row = 1; row < w.FgF.rows(); ++row)
      if (w.FgF.text(row, 1) == "0" && w.FgF.number(row, 3) == p1 && w.FgF.number(row, 6) == p2 &&
          w.FgF.number(row, 11) == fix && w.FgF.text(row, 18) == wheels && w.FgF.number(row, 13) > 0)
        return row;
    return 0;
  }
  int ranked() {
    int rows = 0;
    for (int row = 1; row < w.FgF.rows(); ++row) rows += w.FgF.text(row, 13).empty() ? 0 : 1;
    return rows;
  }
};

TEST(AmbataButtons, DoNothingWithoutCases) {
  SearchWorld world;
  Workbench& w = world.w;
  world.press("Command20");
  world.w.FgEv.cutToHeading();
  w.List1.clear();
  const WorkbenchSnapshot before(w);
  for (const AmbataButton& button : kAmbataButtons) {
    world.press(button.name);
    EXPECT_EQ(difference(before, w), "") << button.name;
  }
}

TEST(AmbataButtons, RankTheFormulasByTheirCoveredCases) {
  SearchWorld world;
  Workbench& w = world.w;
  world.press("Command20");
  // 10 and 50, 11 and 50: 60 after the first case, 61 after the second.
  const int row = world.rowOf(1, 50);
  ASSERT_GT(row, 0);
  EXPECT_EQ(w.FgF.text(row, 2), "BA");
  EXPECT_EQ(w.FgF.text(row, 13), "2");
  for (int i = 2; i < w.FgF.rows(); ++i) EXPECT_GE(w.FgF.number(i - 1, 13), w.FgF.number(i, 13));
}

TEST(AmbataButtons, CountANumberDrawnTwiceAsOneCaseAndTwoPresences) {
  SearchWorld world;
  Workbench& w = world.w;
  world.press("Command20");
  const int row = world.rowOf(1, 50);
  EXPECT_EQ(w.FgF.text(row, 12), "3");
  EXPECT_EQ(w.FgF.text(row, 13), "2");
}

TEST(AmbataButtons, RankWithoutFixOnlyTheNumbersThemselves) {
  SearchWorld world;
  Workbench& w = world.w;
  w.ChFix1R.set(false);
  world.press("Command20");
  for (int position = 1; position <= 5; ++position) EXPECT_EQ(world.rowOf(position, 0), 0) << position;
  w.Combo1R_1N.pick(4);  // 47 is 2, drawn after the first case
  world.press("Command20");
  const int row = world.rowOf(2, 0);
  ASSERT_GT(row, 0);
  EXPECT_EQ(w.FgF.text(row, 11), "");
  EXPECT_EQ(w.FgF.text(row, 13), "1");
}

TEST(AmbataButtons, RankOnlyTheChosenFix) {
  SearchWorld world;
  Workbench& w = world.w;
  w.ComboFix.select(50);
  world.press("Command20");
  ASSERT_GT(world.ranked(), 0);
  for (int row = 1; row <= world.ranked(); ++row) EXPECT_EQ(w.FgF.text(row, 11), "50") << row;
}

TEST(AmbataButtons, ShowAFixOf90WhereAllFixesAreAllowed) {
  SearchWorld world;
  Workbench& w = world.w;
  w.Combo1R_1N.pick(4);
  world.press("Command20");
  const int row = world.rowOf(2, 90);
  ASSERT_GT(row, 0);
  EXPECT_EQ(w.FgF.text(row, 11), "90");
}

TEST(AmbataButtons, LeaveTheRankingBlankWithoutAWheelOfPlay) {
  SearchWorld world;
  world.playOn({});
  for (const char* button : {"Command20", "Command23", "Command18", "Command10"}) {
    world.press(button);
    EXPECT_EQ(world.ranked(), 0) << button;
    EXPECT_EQ(world.w.FgF.rows(), 2001) << button;
  }
}

TEST(AmbataButtons, LeaveTheRankingBlankWhenAllCasesAreCoveredAndOnlyOthersAreAskedFor) {
  SearchWorld world;
  Workbench& w = world.w;
  w.Ch_Scoperti.set(true);
  for (int row : {1, 2}) w.FgEv.setBack(row, 17, Verde);
  for (const AmbataButton& button : kAmbataButtons) {
    world.press(button.name);
    EXPECT_EQ(world.ranked(), 0) << button.name;
  }
}

TEST(AmbataButtons, SearchOnTheCasesThatAreNotExactlyGreenAtTheirSorte) {
  SearchWorld world;
  Workbench& w = world.w;
  w.Ch_Scoperti.set(true);
  w.Sorte = 3;
  w.FgEv.setBack(1, 19, Verde);
  w.FgEv.setBack(2, 19, VerdeScuro);
  w.FgEv.setBack(2, 17, Verde);
  for (const AmbataButton& button : kAmbataButtons) {
    world.press(button.name);
    ASSERT_GT(world.ranked(), 0) << button.name;
    EXPECT_EQ(w.FgF.text(1, 13), "1") << button.name;
  }
  w.Sorte = 1;
  world.press("Command20");
  EXPECT_EQ(w.FgF.text(1, 13), "1");
  w.Ch_Scoperti.set(false);
  world.press("Command20");
  EXPECT_EQ(w.FgF.text(1, 13), "2");
}

// Bari's second number, 47, and a fix of 13 give 60 in both cases, three times; but fix 13 comes after 1.
TEST(AmbataButtons, DropALaterFormulaOfEqualCasesEvenWithMorePresences) {
  WorkbenchWorld world(
      archiveOf({{{"BA", {47, 1, 2, 3, 4}}}, {{"BA", {48, 60, 5, 6, 7}}, {"RO", {60, 8, 9, 10, 11}}}}));
  Workbench& w = world.w;
  world.setCases({1}, 1);
  world.playOn({0, 7});
  w.ChFix1R.set(true);
  w.ComboEle.type("1");
  world.press("Command20");
  EXPECT_EQ(w.FgF.rows(), 2);
  EXPECT_EQ(w.FgF.text(1, 11), "1");
  EXPECT_EQ(w.FgF.text(1, 12), "1");
  w.ComboFix.select(13);
  world.press("Command20");
  EXPECT_EQ(w.FgF.text(1, 12), "2");
}

TEST(AmbataButtons, DoNotSeeDrawsBehindTheReferenceDraw) {
  SearchWorld world;
  Workbench& w = world.w;
  w.hs1.set(3);
  world.press("Command20");
  EXPECT_EQ(w.FgF.text(1, 13), "1");
  EXPECT_EQ(w.FgF.text(world.rowOf(1, 50), 13), "1");
  w.hs1.set(1);
  world.press("Command20");
  EXPECT_EQ(world.ranked(), 0);
}

TEST(AmbataButtons, CountALateCaseWithTheDrawsThatItHas) {
  SearchWorld world;
  world.setCases({3}, 10);
  world.press("Command20");
  EXPECT_GT(world.ranked(), 0);
}

TEST(AmbataButtons, LetZeroAnd90VoteForOneFixAsTwoNumbers) {
  WorkbenchWorld world(archiveOf({{{"BA", {47, 1, 2, 3, 4}}}, {{"BA", {90, 60, 5, 6, 7}}}}));
  Workbench& w = world.w;
  world.setCases({1}, 1);
  world.playOn({0, 1});
  w.ChFix1R.set(true);
  w.ComboFix.select(43);  // 47 and 43 are 90
  world.press("Command20");
  EXPECT_EQ(w.FgF.text(1, 13), "2");
  EXPECT_EQ(w.FgF.text(1, 12), "6");  // five zeros on the wheel that wasn't drawn
}

TEST(AmbataButtons, KeepNoRowWithALengthBelowOne) {
  SearchWorld world;
  Workbench& w = world.w;
  for (const char* length : {"0", "-3", "molti"}) {
    w.ComboEle.type(length);
    for (const AmbataButton& button : kAmbataButtons) {
      world.press(button.name);
      EXPECT_EQ(w.FgF.rows(), 1) << button.name;
      EXPECT_EQ(w.Elenco, 0) << button.name;
    }
  }
}

TEST(AmbataButtons, ShowTheTimeAtTheStartAndAtTheEnd) {
  SearchWorld world;
  Workbench& w = world.w;
  for (const AmbataButton& button : kAmbataButtons) {
    world.shell.clock.second = 15;
    world.press(button.name);
    EXPECT_EQ(w.List1.lines(), (std::vector<std::string>{"10:30:15", "10:30:15"})) << button.name;
  }
}

TEST(AmbataButtons, FillTheConstantColumnsOfAllRowsTheBlankOnesToo) {
  SearchWorld world;
  Workbench& w = world.w;
  w.Combo1R_1N.pick(1);
  w.Combo1R_2N.pick(3);
  struct Constants {
    const char *button, *op, *nr, *qn;
  };
  const Constants wanted[] = {
      {"Command20", "", "1", "1"},        {"Command11", "", "1", "1"},        {"Command13", "", "1", "1"},
      {"Command15", "", "1", "1"},        {"Command23", "N2 - N1", "1", "2"}, {"Command17", "N2 - N1", "1", "2"},
      {"Command16", "N2 - N1", "1", "2"}, {"Command7", "N2 - N1", "1", "2"},  {"Command18", "N1+N2+N3", "1", "3"},
      {"Command10", "N2 - N1", "2", "1"}, {"Command1", "N2 - N1", "2", "1"},  {"Command2", "N2 - N1", "2", "2"}};
  for (const bool blank : {false, true}) {
    w.Colpi = blank ? 0 : 1;
    w.ComboColpi.type(blank ? "0" : "1");
    w.ComboEle.type("30");
    for (const Constants& row : wanted) {
      world.press(row.button);
      EXPECT_EQ(world.ranked() == 0, blank) << row.button;
      for (int i : {1, 30}) {
        EXPECT_EQ(w.FgF.text(i, 10), row.op) << row.button;
        EXPECT_EQ(w.FgF.text(i, 14), row.nr) << row.button;
        EXPECT_EQ(w.FgF.text(i, 15), row.qn) << row.button;
        EXPECT_EQ(w.FgF.text(i, 17), "C91") << row.button;
      }
    }
  }
}

// The empty item stands for the first operator.
TEST(AmbataButtons, AddTwoNumbersWhenNoOperatorIsChosen) {
  SearchWorld world;
  Workbench& w = world.w;
  EXPECT_EQ(w.Combo1R_2N.index(), 0);
  w.ComboFix.select(3);
  world.press("Command23");
  // 10 and 47 and 3 are 60, 11 and 47 and 3 are 61.
  EXPECT_EQ(w.FgF.text(world.rowOf(1, 3, 2), 13), "2");
  EXPECT_EQ(w.FgF.text(1, 10), "N1 + N2");
  const Grid chosenByDefault = w.FgF;
  w.Combo1R_2N.pick(1);
  world.press("Command23");
  EXPECT_EQ(difference(chosenByDefault, w.FgF), "");
}

}  // namespace
}  // namespace trv5
