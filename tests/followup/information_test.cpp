#include "followup/information.h"

#include <gtest/gtest.h>

#include "support/workbench_world.h"

namespace trv5 {
namespace {

class Information : public testing::Test {
 protected:
  static Archive draws() {
    std::vector<WheelNumbers> all(30, {{"CA", {11, 12, 13, 14, 15}}});
    all[9]["BA"] = {1, 2, 3, 4, 5};
    all[19]["BA"] = {6, 7, 8, 9, 10};
    return archiveOf(all);
  }
  std::string value(int number, int wheel) { return w.FgRit.text(number, wheel + 1); }
  bool marked(int number, int wheel) { return w.FgRit.back(number, wheel + 1) == AranciaMedio; }

  WorkbenchWorld world{draws()};
  Workbench& w = world.w;
};

TEST_F(Information, ShowsDelaysWithTheWheelsOfPlayInColour) {
  world.playOn({1});
  world.press("Command9");
  EXPECT_EQ(w.FgRit.dataRows(), 90);
  EXPECT_EQ(value(1, 0), "20");
  EXPECT_EQ(value(11, 1), "0") << "drawn in the reference draw";
  EXPECT_EQ(value(90, 5), "0") << "never drawn";
  EXPECT_EQ(w.FgRit.back(1, 2), GialloMedio);
  EXPECT_EQ(w.FgRit.back(90, 2), GialloMedio);
  EXPECT_EQ(w.FgRit.back(1, 1), kWhite);
  EXPECT_EQ(w.FgRit.back(0, 2), kWhite);
  EXPECT_TRUE(w.FgRit.at(45, 0).bold);
  EXPECT_EQ(w.FgRit.text(1, 12), "");
  EXPECT_EQ(w.RuoteGioco, 0b10U);
}

TEST_F(Information, StandsOnSevenHundredAndTwentyAtTheOpening) {
  EXPECT_TRUE(w.OptionRit[0].checked());
  w.OptionRit[2].set(true);
  EXPECT_FALSE(w.OptionRit[0].checked());
  w.OptionRit[2].set(false);
  EXPECT_TRUE(w.OptionRit[2].checked()) << "one of the three always stands";
}

TEST_F(Information, CountsPresencesFromTheFirstDrawOn) {
  w.hs1.set(15);
  world.press("Command88");
  EXPECT_EQ(value(11, 1), "15");
  EXPECT_EQ(value(1, 0), "1");
  EXPECT_EQ(value(6, 0), "0");
}

TEST_F(Information, OfNoCaseIsAllNoughtsWithItsColumnsInColour) {
  world.playOn({1});
  world.press("Command76");
  for (int number = 1; number <= 90; ++number)
    for (int wheel = 0; wheel < kWheels; ++wheel) EXPECT_EQ(value(number, wheel), "0");
  EXPECT_EQ(w.FgRit.back(1, 2), GialloMedio);
}

TEST_F(Information, OfACaseStopsAtTheReferenceDraw) {
  world.setCases({8}, 10);
  w.hs1.set(9);
  world.press("Command76");
  EXPECT_EQ(value(1, 0), "0");
  w.hs1.set(10);
  world.press("Command76");
  EXPECT_EQ(value(1, 0), "1");
  EXPECT_EQ(value(11, 1), "2");
}

TEST_F(Information, LeavesTheLastColumnBlankWithoutCoverage) {
  world.setCases({8}, 10);
  world.press("Command76");
  EXPECT_EQ(w.FgRit.text(11, 12), "");
  EXPECT_EQ(w.FgRit.back(11, 12), kWhite);
}

TEST_F(Information, CountsCoveredCasesAndInTheLastColumnTheWheelsOfPlayAlone) {
  world.playOn({0});
  world.setCases({8, 1}, 10);
  w.Ch_coperture.set(true);
  world.press("Command76");
  EXPECT_EQ(value(11, 1), "2") << "cases, not draws";
  EXPECT_EQ(w.FgRit.text(11, 12), "0") << "CA isn't played";
  EXPECT_EQ(w.FgRit.text(1, 12), "2");
  EXPECT_EQ(w.FgRit.back(1, 12), AranciaMedio);
  EXPECT_EQ(w.FgRit.at(1, 12).fore, Blu);
  EXPECT_TRUE(w.FgRit.at(1, 12).bold);
}

TEST_F(Information, SearchesAmongDelaysWhateverStoodThereAndInAllRows) {
  world.press("Command88");
  w.FgGioco.appendRow();
  w.FgGioco.setText(1, 1, "01");
  world.press("Command104");
  EXPECT_EQ(w.FgRit.hiddenRows().size(), 89U);
  world.press("Command111");
  EXPECT_EQ(value(1, 0), "20") << "delays again";
  EXPECT_TRUE(w.FgRit.hiddenRows().empty()) << "the hidden rows are back";
  EXPECT_TRUE(marked(90, 0)) << "the noughts of what was never drawn are equal";
  EXPECT_FALSE(marked(1, 0));
  EXPECT_TRUE(marked(1, 1)) << "also on wheels that aren't played";
}

TEST_F(Information, SearchesForTheVeryDistance) {
  w.hs1.set(12);  // 1 to 5 two draws late on BA, never drawn elsewhere
  w.ComboDelta.pick(2);
  world.press("Command111");
  EXPECT_TRUE(marked(1, 0));
  EXPECT_TRUE(marked(1, 10));
  EXPECT_FALSE(marked(11, 1));
  w.ComboDelta.pick(3);
  world.press("Command113");
  EXPECT_FALSE(marked(1, 0)) << "equal, not at most";
  w.ComboDelta.pick(2);
  world.press("Command112");
  EXPECT_TRUE(marked(1, 0));
}

TEST_F(Information, FiltersWhatItShowsByTheNumbersOfTheForecasts) {
  world.press("Command9");
  world.press("Command104");
  EXPECT_TRUE(w.FgRit.hiddenRows().empty()) << "no forecast, no filter";
  for (const char* const number : {"07", "90"}) w.FgGioco.setText(w.FgGioco.appendRow(), 2, number);
  world.press("Command104");
  EXPECT_EQ(w.FgRit.hiddenRows().size(), 88U);
  EXPECT_FALSE(w.FgRit.rowHidden(7));
  EXPECT_FALSE(w.FgRit.rowHidden(90));
  w.FgGioco.setText(1, 2, "08");
  world.press("Command104");
  EXPECT_FALSE(w.FgRit.rowHidden(8));
  EXPECT_TRUE(w.FgRit.rowHidden(7));
}

TEST_F(Information, GrowsOldWithTheReferenceDraw) {
  world.press("Command9");
  const auto told = [this] { return w.get<Label>("LblStato_FgRit").toolTip(); };
  EXPECT_EQ(told(), "");
  w.hs1.set(12);
  EXPECT_EQ(told(), "Fatto sull'estrazione 30, ora 12");
}

}  // namespace
}  // namespace trv5
