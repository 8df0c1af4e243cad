#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/ambata_buttons.h"
#include "support/workbench_snapshot.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

/// CC and Pres of the formula of Bari's first number; blank when it isn't ranked.
std::string countsOf(const Grid& ranking, int fix, const std::string& wheels) {
  for (int row = 1; row < ranking.rows(); ++row)
    if (ranking.text(row, 1) == "0" && ranking.text(row, 3) == "1" && ranking.text(row, 18) == wheels &&
        ranking.number(row, 11) == fix)
      return ranking.text(row, 13) + " " + ranking.text(row, 12);
  return "";
}

// Draw 1 is the case; only Bari is drawn: 47, whose figure is 2 and whose vertible is 74.
class DeviationWorld : public WorkbenchWorld {
 public:
  explicit DeviationWorld(const WheelNumbers& after) : WorkbenchWorld(archiveOf({{{"BA", {47, 1, 3, 4, 5}}}, after})) {
    setCases({1}, 1);
    playOn({0});
    w.ComboEle.type("20000");
  }

  std::string counts(int fix = 0, const std::string& wheels = "") const { return countsOf(w.FgF, fix, wheels); }
};

TEST(OneNumberOneWheel, RanksByTheVertibleWithFigWhileTheRowIsReplayedByTheFigure) {
  DeviationWorld world({{"BA", {74, 20, 60, 61, 62}}});
  Workbench& w = world.w;
  w.Combo1R_1N.pick(7);
  ASSERT_EQ(w.Combo1R_1N.text(), "FIG");
  world.press("Command20");
  EXPECT_EQ(world.counts(), "1 1");
  EXPECT_EQ(w.FgF.text(1, 17), "FIG");
  w.FgF.setCurrent(1);
  world.press("Command22");
  EXPECT_EQ(w.FgZ1.text(1, 6), "2");
  EXPECT_EQ(w.FgZ1.back(1, 0), AranciaMedio);
}

TEST(OneNumberOneWheel, UsesTheTrueTablesWhenItLooksForTheBestWheels) {
  DeviationWorld world({{"BA", {74, 2, 60, 61, 62}}, {"RO", {2, 20, 21, 22, 23}}});
  Workbench& w = world.w;
  w.Colpi = 1;
  for (const char* button : {"Command11", "Command13", "Command15"}) {
    const std::string wheels = std::string("BA-CA-FI")
                                   .substr(0, button == std::string("Command11")   ? 2
                                              : button == std::string("Command13") ? 5
                                                                                   : 8);
    w.Combo1R_1N.pick(7);
    world.press(button);
    EXPECT_EQ(world.counts(0, wheels), "1 1") << button;
    w.Combo1R_1N.pick(8);
    ASSERT_EQ(w.Combo1R_1N.text(), "VERT");
    world.press(button);
    EXPECT_EQ(world.counts(0, wheels), "1 1") << button;
    EXPECT_EQ(w.FgF.text(1, 17), "VERT") << button;
  }
}

TEST(OneNumberOneWheel, TakesTheNumberBeforeTheRunAsAConstantWithVert) {
  DeviationWorld world({{"BA", {33, 74, 60, 61, 62}}});
  Workbench& w = world.w;
  w.Combo1R_1N.pick(8);
  w.Formula.NumeroOttenuto = 33;
  world.press("Command20");
  // All 55 elements are the same constant.
  ASSERT_EQ(w.FgF.rows(), 20001);
  for (int row = 1; row <= 55; ++row) EXPECT_EQ(w.FgF.text(row, 13), "1") << row;
  EXPECT_EQ(w.FgF.text(56, 13), "");
  w.Formula.NumeroOttenuto = 40;
  world.press("Command20");
  EXPECT_EQ(w.FgF.text(1, 13), "");
}

TEST(OneNumberOneWheel, ReadsAConstantOfZeroAs90) {
  DeviationWorld world({{"BA", {90, 74, 60, 61, 62}}});
  Workbench& w = world.w;
  w.Combo1R_1N.pick(8);
  w.Formula.NumeroOttenuto = 0;
  world.press("Command20");
  EXPECT_EQ(world.counts(), "1 1");
  EXPECT_EQ(w.Formula.NumeroOttenuto, 90);
}

TEST(OneNumberOneWheel, RanksAFixedHeadNumberWithCapo) {
  DeviationWorld world({{"BA", {12, 74, 60, 61, 62}}});
  Workbench& w = world.w;
  w.Combo1R_1N.type("CAPO");
  w.TxtNumeri.set("12-34-56");
  world.press("Command20");
  EXPECT_EQ(world.counts(), "1 1");
  EXPECT_EQ(w.FgF.text(55, 13), "1");
  EXPECT_EQ(w.FgF.text(1, 17), "CAPO");
  EXPECT_EQ(w.Formula.NumeroOttenuto, 12);
  w.TxtNumeri.set("");
  world.press("Command20");
  EXPECT_EQ(world.counts(), "");
  EXPECT_EQ(w.Formula.NumeroOttenuto, 90);
}

TEST(OneNumberOneWheel, AloneKnowsCapo) {
  DeviationWorld world({{"BA", {12, 33, 60, 61, 62}}});
  Workbench& w = world.w;
  w.Combo1R_1N.type("CAPO");
  w.TxtNumeri.set("12");
  w.Formula.Elem1 = 33;  // what an unknown alteration leaves
  world.press("Command11");
  EXPECT_EQ(world.counts(0, "BA"), "1 1");
  w.Formula.Elem1 = 44;
  world.press("Command11");
  EXPECT_EQ(world.counts(0, "BA"), "");
}

// The last counting case, the national wheel, the fifth position.
TEST(OneNumberOneWheel, LeavesItsLastElementInTheSharedRecord) {
  WorkbenchWorld world(archiveOf(
      {{{"NZ", {1, 2, 3, 4, 34}}}, {{"NZ", {1, 2, 3, 4, 56}}}, {{"BA", {1, 2, 3, 4, 5}}}, {{"BA", {1, 2, 3, 4, 5}}}}));
  Workbench& w = world.w;
  world.setCases({1, 2}, 1);
  world.press("Command20");
  EXPECT_EQ(w.Formula.NumeroOttenuto, 56);
  w.Combo1R_1N.pick(1);
  world.press("Command20");
  EXPECT_EQ(w.Formula.NumeroOttenuto, 35);
  w.Ch_Scoperti.set(true);
  w.FgEv.setBack(2, 17, Verde);
  world.press("Command20");
  EXPECT_EQ(w.Formula.NumeroOttenuto, 57);
  world.setCases({3}, 1);
  w.Combo1R_1N.pick(0);
  world.press("Command20");
  EXPECT_EQ(w.Formula.NumeroOttenuto, 90);
}

TEST(OneNumberOneWheel, AloneTouchesTheSharedRecord) {
  DeviationWorld world({{"BA", {12, 33, 60, 61, 62}}});
  Workbench& w = world.w;
  w.Formula.NumeroOttenuto = 77;
  w.Formula.Elem1 = 5;
  for (const AmbataButton& button : kAmbataButtons) {
    if (button.name == std::string("Command20")) continue;
    world.press(button.name);
    EXPECT_EQ(w.Formula.NumeroOttenuto, 77) << button.name;
    EXPECT_EQ(w.Formula.Elem1, 5) << button.name;
  }
}

// Bari's 47 is drawn on Bari and on Cagliari.
TEST(BestWheelsOfOneNumber, LeaveTheRepeatsOfAFormulaWithoutFixOutOfItsPresences) {
  DeviationWorld world({{"BA", {47, 10, 60, 61, 62}}, {"CA", {47, 20, 21, 22, 23}}});
  Workbench& w = world.w;
  world.press("Command13");
  EXPECT_EQ(world.counts(0, "BA-CA"), "1 1");
  world.playOn({0, 1});
  world.press("Command20");
  EXPECT_EQ(world.counts(), "1 2");
  // With another fix the repeats count.
  w.ChFix1R.set(true);
  w.Combo1R_1N.pick(1);
  w.ComboFix.select(3);  // 44 and 3 are 47
  world.press("Command13");
  EXPECT_EQ(world.counts(3, "BA-CA"), "1 2");
}

TEST(BestWheels, RankTheSameFormulaOnceForEachOfItsWheelSets) {
  DeviationWorld world({{"BA", {47, 10, 60, 61, 62}}, {"CA", {47, 20, 21, 22, 23}}});
  world.press("Command11");
  EXPECT_EQ(world.counts(0, "BA"), "1 1");
  EXPECT_EQ(world.counts(0, "CA"), "1 1");
  EXPECT_EQ(world.counts(0, "FI"), "");
  EXPECT_EQ(world.w.FgF.text(1, 18), "BA");  // among equals the earlier wheel set stays
}

TEST(BestWheels, PlayOnEveryWheelWhateverTheUserChose) {
  DeviationWorld world({{"NZ", {47, 10, 60, 61, 62}}});
  world.playOn({});
  world.press("Command11");
  EXPECT_EQ(world.counts(0, "NZ"), "1 1");
  world.press("Command13");
  EXPECT_EQ(world.counts(0, "VE-NZ"), "1 1");
}

TEST(BestWheels, LeaveTheFixBlankWithoutFixAndStillNameTheWheels) {
  DeviationWorld world({{"RO", {47, 10, 60, 61, 62}}});
  Workbench& w = world.w;
  world.press("Command11");
  EXPECT_EQ(world.counts(0, "RO"), "1 1");
  ASSERT_GT(w.FgF.number(1, 13), 0);
  for (int row = 1; w.FgF.number(row, 13) > 0; ++row) {
    EXPECT_EQ(w.FgF.text(row, 11), "");
    EXPECT_EQ(w.FgF.text(row, 18).size(), 2U);
  }
}

TEST(BestWheels, JoinTheCodesOfTheWheelsInTheirOrder) {
  DeviationWorld world({{"TO", {47, 10, 60, 61, 62}}});
  world.press("Command15");
  EXPECT_EQ(world.counts(0, "BA-CA-TO"), "1 1");
  EXPECT_EQ(world.counts(0, "FI-TO-NZ"), "1 1");
  EXPECT_EQ(world.counts(0, "BA-CA-FI"), "");
  world.press("Command13");
  EXPECT_EQ(world.counts(0, "TO-VE"), "1 1");
}

TEST(BestWheels, OfThreeTakeTheColpiOfTheLastOperation) {
  WorkbenchWorld world(archiveOf({{{"BA", {47, 1, 3, 4, 5}}}, {}, {{"BA", {47, 10, 60, 61, 62}}}}));
  Workbench& w = world.w;
  w.ComboEle.type("20000");
  // As the workbench stands after its opening, whatever the list shows then.
  EXPECT_EQ(w.Colpi, 10);
  w.FgEv.setText(w.FgEv.appendRow(), 1, "1");
  w.ComboColpi.type("1");
  world.press("Command15");
  EXPECT_EQ(countsOf(w.FgF, 0, "BA-CA-FI"), "1 1");
  EXPECT_EQ(w.Colpi, 10);
  world.press("Command13");
  EXPECT_EQ(w.Colpi, 1);
  EXPECT_EQ(countsOf(w.FgF, 0, "BA-CA"), "");
  world.press("Command15");
  EXPECT_EQ(countsOf(w.FgF, 0, "BA-CA-FI"), "");
}

TEST(BestWheels, MoveTheProgressBarByWheelSetsButForTwoButtons) {
  DeviationWorld world({{"BA", {47, 10, 60, 61, 62}}});
  const auto maximumAfter = [&world](const char* button) {
    world.shell.progressValues.clear();
    world.press(button);
    return world.shell.progressValues.empty() ? 0 : world.shell.progressValues.back().second;
  };
  for (const char* button : {"Command11", "Command17"}) EXPECT_EQ(maximumAfter(button), 0) << button;
  EXPECT_EQ(maximumAfter("Command1"), 11);
  for (const char* button : {"Command13", "Command16", "Command2"}) EXPECT_EQ(maximumAfter(button), 55) << button;
  for (const char* button : {"Command15", "Command7"}) EXPECT_EQ(maximumAfter(button), 165) << button;
  for (const char* button : {"Command20", "Command23", "Command18", "Command10"})
    EXPECT_EQ(maximumAfter(button), 1) << button;
}

TEST(TwoNumbersTwoWheels, ReplaysAlikeWithBothValuesOfQn) {
  WorkbenchWorld world(
      archiveOf({{{"BA", {10, 1, 2, 3, 4}}, {"RO", {20, 5, 6, 7, 8}}}, {{"BA", {30, 50, 51, 52, 53}}}}));
  Workbench& w = world.w;
  world.setCases({1}, 1);
  world.playOn({0});
  for (const char* button : {"Command1", "Command2"}) {
    world.press(button);
    int row = 1;
    while (w.FgF.text(row, 2) + w.FgF.text(row, 5) != "BARO") ++row;
    EXPECT_EQ(w.FgF.text(row, 15), button == std::string("Command1") ? "1" : "2");
    w.FgF.setCurrent(row);
    w.Cmd_LaSorte[1].press();
    w.Fg11.setCurrent(w.Fg11.rows() - 1);
    world.press("Command21");
    EXPECT_EQ(w.FgZ1.text(1, 6), "30") << button;
    EXPECT_EQ(w.FgZ1.back(1, 0), VerdeMedio) << button;
  }
}

}  // namespace
}  // namespace trv5
