#include "followup/live_forecasts.h"

#include <gtest/gtest.h>

#include "support/workbench_world.h"

namespace trv5 {
namespace {

// Forty draws in which BA holds 1 to 5 all along; the cases are open at the reference draw 40.
class LiveForecasts : public testing::Test {
 protected:
  LiveForecasts() { w.Label18.click(); }

  static Archive draws() {
    std::vector<WheelNumbers> all(40, {{"BA", {1, 2, 3, 4, 5}}});
    return archiveOf(all);
  }
  void pure(Grid& table, int number) { WorkbenchWorld::addFormula(table, {.fix = number, .nr = "0"}); }
  // Cases at these draws, the ambate verified up to the reference draw.
  void verified(const std::vector<int>& cases, int colpi = 9) {
    world.playOn({0, 2});
    world.setCases(cases, colpi);
    world.press("Command29");
  }
  std::vector<std::string> row(const Grid& grid, int at) {
    std::vector<std::string> texts;
    for (int column = 0; column < grid.columns(); ++column) texts.push_back(grid.text(at, column));
    return texts;
  }
  std::vector<std::string> kinds() {
    std::vector<std::string> texts;
    for (int at = 1; at < w.FgIC.rows(); ++at) texts.push_back(w.FgIC.text(at, 1));
    return texts;
  }
  std::vector<int> shown() {
    std::vector<int> rows;
    for (int at = 1; at < w.FgIC.rows(); ++at)
      if (!w.FgIC.rowHidden(at)) rows.push_back(at);
    return rows;
  }
  void everyKind() {
    pure(w.Fg11, 77);
    pure(w.Fg22, 88);
    pure(w.Fg33, 66);
    pure(w.Fg00, 55);
    w.ComboSorte.pick(2);
    verified({38});
    world.press("Command35");
  }

  WorkbenchWorld world{draws()};
  Workbench& w = world.w;
};

TEST_F(LiveForecasts, TellDrawKindColpiNumbersDateAndWheels) {
  pure(w.Fg11, 7);
  verified({38, 20});
  world.press("Command35");
  ASSERT_EQ(w.FgIC.dataRows(), 1) << "the case of draw 20 is over";
  EXPECT_EQ(row(w.FgIC, 1), (std::vector<std::string>{"38", "1", "2/9", "07", "", "", "", "", "", "", "", "", "",
                                                      world.archive.DateEstrazioni(38), "BA-FI"}));
  EXPECT_EQ(w.FgIC.back(1, 1), GialloMedio);
  EXPECT_EQ(w.FgIC.at(1, 3).fore, Rosso);
  EXPECT_EQ(w.FgIC.at(1, 13).fore, Rosso);
  EXPECT_EQ(w.FgIC.at(1, 14).fore, kBlack);
  EXPECT_EQ(w.FgIC.mergedColumns(), (std::set<int>{13, 14}));
  EXPECT_EQ(w.FgIC.current(), -1);
}

TEST_F(LiveForecasts, OfALunghettaBearTheSorteAndAnL) {
  everyKind();
  EXPECT_EQ(kinds(), (std::vector<std::string>{"1", "2", "3", "3L"}));
}

TEST_F(LiveForecasts, HaveARowForEachNumberAndEachPairOfAnOpenCase) {
  pure(w.Fg11, 7);
  pure(w.Fg11, 6);
  pure(w.Fg22, 88);
  verified({38});
  world.press("Command35");
  EXPECT_EQ(kinds(), (std::vector<std::string>{"1", "1", "2", "2"}));
  EXPECT_EQ(w.FgIC.text(3, 3) + w.FgIC.text(3, 4), "0688");
}

TEST_F(LiveForecasts, StayAtTheirHeadingWithoutAnOpenCase) {
  pure(w.Fg11, 7);
  verified({20});
  world.press("Command35");
  EXPECT_FALSE(w.FgIC.hasData());
  EXPECT_EQ(w.FgIC.emptyText(), "Nessun caso in corso");
  world.press("Command41");
  EXPECT_EQ(w.FgIC.emptyText(), "Premi Elenco previsioni in corso");
}

TEST_F(LiveForecasts, HaveNoRowForAnOpenCaseWithoutFormulas) {
  pure(w.Fg11, 7);
  verified({38});
  w.Fg15.setText(1, 1, "");
  world.press("Command35");
  EXPECT_FALSE(w.FgIC.hasData());
  EXPECT_FALSE(w.FgGioco.hasData());
}

TEST_F(LiveForecasts, AreAPictureOfTheirMoment) {
  pure(w.Fg11, 7);
  verified({38});
  world.press("Command35");
  const Grid before = w.FgIC;
  w.hs1.set(39);
  pure(w.Fg11, 9);
  w.Label17.click();
  w.ComboColpi.pick(0);
  EXPECT_EQ(w.FgIC.grid(), before);
  world.press("Command35");
  EXPECT_EQ(w.FgIC.text(1, 2), "1/9");
  EXPECT_EQ(w.FgIC.text(1, 14), "BA-CA-FI-GE-MI-NA-PA-RO-TO-VE-NZ");
}

TEST_F(LiveForecasts, CountColpiBelowNoughtWhenTheReferenceWentBack) {
  pure(w.Fg11, 7);
  verified({38});
  w.hs1.set(30);
  world.press("Command35");
  EXPECT_EQ(w.FgIC.text(1, 2), "-8/9");
}

TEST_F(LiveForecasts, ThatComeOutBehindTheReferenceDrawTurnGreenOnTheWheelsOfNow) {
  pure(w.Fg11, 3);
  w.hs1.set(36);
  verified({36});
  world.press("Command35");
  EXPECT_EQ(w.FgIC.back(1, 0), kWhite);
  world.playOn({1});
  world.press("Command102");
  EXPECT_EQ(w.FgIC.back(1, 0), kWhite) << "CA is empty";
  world.playOn({0});
  world.press("Command102");
  EXPECT_EQ(w.FgIC.back(1, 0), Verde);
  EXPECT_EQ(w.FgIC.text(1, 14), "BA-FI") << "the list keeps its wheels";
  world.playOn({1});
  world.press("Command102");
  EXPECT_EQ(w.FgIC.back(1, 0), Verde) << "a green row stays green";
  EXPECT_EQ(world.shell.statusTexts.back(), "Verifica oltre limite: uscite 0 previsioni su 1");
}

TEST_F(LiveForecasts, AreCheckedAlsoInHiddenRows) {
  pure(w.Fg11, 3);
  w.hs1.set(36);
  verified({36});
  world.press("Command35");
  world.press("Command55");
  EXPECT_TRUE(shown().empty());
  world.press("Command102");
  EXPECT_EQ(w.FgIC.back(1, 0), Verde);
  EXPECT_TRUE(w.FgIC.rowHidden(1));
}

TEST_F(LiveForecasts, CheckedGoOnBelowTheHitsAndEmptyTheStatistics) {
  pure(w.Fg11, 3);
  w.hs1.set(36);
  verified({36});
  ASSERT_EQ(w.FgZ1.dataRows(), 1) << "the open case without hit";
  world.press("Command35");
  const int hits = w.EsitiPerSorte[1];
  w.Fg11.cutToHeading();  // neither the formulas nor their evaluation are looked at again
  const Grid inPlay = w.Fg15;
  world.press("Command102");
  ASSERT_EQ(w.FgZ1.dataRows(), 5);
  EXPECT_EQ(w.FgZ1.text(2, hit_column::kColpo), "1");
  EXPECT_EQ(w.EsitiPerSorte[1], hits + 4);
  EXPECT_EQ(w.FgEv.back(1, case_column::kHits), kWhite) << "nothing is painted among the cases";
  EXPECT_EQ(w.Fg15.grid(), inPlay);
  for (int at = 0; at < 3; ++at) EXPECT_EQ(w.Fg_Graf.text(at, 1) + w.Fg_Graf.text(at, 2), "");
  EXPECT_EQ(w.FgSSS.text(0, 0) + w.FgSSS.text(1, 0), "");
  world.press("Command102");
  EXPECT_EQ(w.FgZ1.dataRows(), 9);
}

TEST_F(LiveForecasts, AreNotCheckedWhileThereAreNone) {
  pure(w.Fg11, 3);
  verified({36});
  const Grid hits = w.FgZ1, totals = w.FgSSS;
  world.press("Command102");
  EXPECT_EQ(w.FgZ1.grid(), hits);
  EXPECT_EQ(w.FgSSS.grid(), totals);
}

TEST_F(LiveForecasts, AreFilteredFromAllRowsEachTime) {
  everyKind();
  const std::pair<const char*, int> filters[] = {
      {"Command50", 1}, {"Command55", 2}, {"Command60", 3}, {"Command61", 4}};
  for (const auto& [button, kept] : filters) {
    world.press(button);
    EXPECT_EQ(shown(), std::vector<int>{kept}) << button;
  }
}

TEST_F(LiveForecasts, AreFilteredByTheTickedKinds) {
  everyKind();
  world.press("Command62");
  EXPECT_TRUE(shown().empty()) << "no box ticked hides all";
  w.Ch_FF[0].set(true);
  w.Ch_FF[2].set(true);
  world.press("Command62");
  EXPECT_EQ(shown(), (std::vector<int>{2, 4}));
}

TEST_F(LiveForecasts, ArePrintedUprightUnderTheWheelsOfNow) {
  everyKind();
  world.playOn({0, 9});
  world.press("Command38");
  ASSERT_EQ(world.shell.prints.size(), 1U);
  const PrintSetup& setup = world.shell.prints.front().setup;
  EXPECT_EQ(setup.title, "Ruote gioco    BA  VE");
  EXPECT_FALSE(setup.landscape);
  EXPECT_EQ(setup.horizontalMargin, 450);
}

TEST_F(LiveForecasts, OfTheCaseClickedStandInTheirOwnGrid) {
  everyKind();
  w.Fg15.clickCell(1, 1);
  ASSERT_EQ(w.FgGioco.dataRows(), 4);
  EXPECT_EQ(row(w.FgGioco, 3), (std::vector<std::string>{"3", "77", "88", "66", "", "", "", "", "", "", ""}));
  EXPECT_EQ(w.FgGioco.text(4, 0), "LU");
  EXPECT_EQ(w.FgGioco.back(4, 0), Giallo);
  EXPECT_TRUE(w.FgGioco.at(4, 0).bold);
}

TEST_F(LiveForecasts, OfAClickOnTheHeadingAreNone) {
  everyKind();
  w.Fg15.clickCell(1, 1);
  w.Fg15.clickHeading();
  EXPECT_FALSE(w.FgGioco.hasData());
  EXPECT_FALSE(w.FgS1.hasData());
  EXPECT_EQ(w.Fg15.current(), 1);
}

TEST_F(LiveForecasts, NeedAmbateForTheirPairs) {
  pure(w.Fg22, 88);
  pure(w.Fg33, 66);
  world.playOn({0});
  world.setCases({38}, 9);
  world.press("Command34");
  w.Fg15.clickCell(1, 2);
  EXPECT_TRUE(w.FgS2.hasData());
  EXPECT_FALSE(w.FgGioco.hasData());
}

TEST_F(LiveForecasts, FillTwoScratchGridsForNothing) {
  everyKind();
  w.Fg15.setText(1, 4, "30-12");
  w.Fg15.setText(1, 5, "9x");
  w.Fg15.clickCell(1, 1);
  EXPECT_EQ(w.FgS4.text(1, 0) + w.FgS4.text(2, 0), "1230");
  EXPECT_TRUE(w.FgS5.hasData());
  EXPECT_EQ(w.FgGioco.dataRows(), 4);
}

TEST_F(LiveForecasts, MarkTheirCasesAmongTheNumbersInPlay) {
  pure(w.Fg11, 7);
  verified({38, 20});
  world.press("Command63");
  EXPECT_EQ(w.Fg15.back(1, 0), Ciano);
  EXPECT_EQ(w.Fg15.back(2, 0), kWhite);
}

}  // namespace
}  // namespace trv5
