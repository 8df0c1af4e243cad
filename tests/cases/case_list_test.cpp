#include "cases/case_list.h"

#include <gtest/gtest.h>

#include "cases/case_map.h"
#include "core/errors.h"
#include "engine/result_forms.h"
#include "maintenance/mini_list.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

class CaseList : public testing::Test {
 protected:
  CaseList() {
    world.shell.addScreen("Estrazioni_minielenco", [this] {
      auto list = std::make_unique<MiniList>(world.archive, world.shell);
      list->load();
      return list;
    });
    world.shell.addScreen("EvoluzioneGrafica", [this] { return std::make_unique<EvoluzioneGrafica>(world.shell); });
  }
  ~CaseList() override { world.shell.forgetScreens(); }

  MiniList& mini() { return static_cast<MiniList&>(world.shell.show("Estrazioni_minielenco")); }
  GridControl& map() { return world.shell.show("EvoluzioneGrafica").get<GridControl>("Fg1"); }

  // Two cases as a detection with the two-element scan leaves them; the second one has no second element.
  void twoCases() {
    world.setCases({300, 200});
    w.FgEv.setText(1, 3, "RO");
    w.FgEv.setBack(1, 5, VerdeMedio);
    w.FgEv.setBack(1, 8, VerdeMedio);
    w.FgEv.setNumber(1, case_column::kDraw2, 299);
    w.FgEv.setText(1, case_column::kWheel2, "NZ");
    w.FgEv.setBack(1, 12, VerdeMedio);
    w.FgEv.setBack(1, 16, VerdeMedio);
    w.FgEv.setText(2, 3, "ba");
    w.FgEv.setBack(2, 4, VerdeMedio);
    w.FgEv.setBack(2, 6, Giallo);
  }
  static std::vector<std::pair<int, int>> green(const Grid& grid) {
    std::vector<std::pair<int, int>> cells;
    for (int row = 0; row < grid.rows(); ++row)
      for (int column = 0; column < grid.columns(); ++column)
        if (grid.back(row, column) == Verde) cells.emplace_back(row, column);
    return cells;
  }
  // The map of these cases, the span taken from them.
  void showMap(const std::vector<int>& draws, int colpi = 10) {
    world.setCases(draws, colpi);
    w.Label5.setText(std::to_string(draws.front() - draws.back()));
    world.press("Command103");
  }
  static std::vector<int> reds(const Grid& grid, int row) {
    std::vector<int> columns;
    for (int column = 0; column < grid.columns(); ++column)
      if (grid.back(row, column) == Rosso) columns.push_back(column);
    return columns;
  }

  WorkbenchWorld world{archiveOf(std::vector<WheelNumbers>(1200, {{"BA", {1, 2, 3, 4, 5}}}))};
  Workbench& w = world.w;
};

using Cells = std::vector<std::pair<int, int>>;

// ---- click on a case

TEST_F(CaseList, AClickOnACaseMovesTheReferenceDraw) {
  world.setCases({300, 200});
  w.FgEv.clickCell(2, 6);
  EXPECT_EQ(w.hs1.value(), 200);
  EXPECT_EQ(w.EstrazioneRiferimento, 200);
  EXPECT_EQ(w.FgEv.current(), 2);
}

TEST_F(CaseList, AClickOnTheHeadingDoesNothing) {
  world.setCases({300, 200});
  w.FgEv.clickCell(0, 1);
  EXPECT_EQ(w.hs1.value(), 1200);
  EXPECT_EQ(w.FgEv.current(), -1);
}

TEST_F(CaseList, AClickOnACaseThatNamesNoDrawIsNoError) {
  world.setCases({300});
  w.FgEv.setText(1, 1, "");
  w.FgEv.clickCell(1, 1);
  EXPECT_TRUE(world.shell.shown.empty());
}

// ---- Visualizza estrazione

TEST_F(CaseList, WithNoRowSelectedTheMiniListIsNotShown) {
  world.setCases({300, 200});
  world.press("Command12");
  EXPECT_TRUE(world.shell.shownScreens.empty());
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST_F(CaseList, TheMiniListShowsTheCaseWithItsMatchingNumbersGreen) {
  twoCases();
  w.FgEv.setCurrent(1);
  world.press("Command12");
  EXPECT_EQ(world.shell.shownScreens, std::vector<std::string>{"Estrazioni_minielenco"});
  EXPECT_EQ(mini().hs1.value(), 300);
  EXPECT_EQ(green(mini().fG2), (Cells{{8, 2}, {8, 5}}));
}

TEST_F(CaseList, TheSecondElementIsShownInTheRightPanel) {
  twoCases();
  w.FgEv.setCurrent(1);
  world.press("Command12");
  EXPECT_EQ(mini().Hs2.value(), 299);
  EXPECT_EQ(green(mini().fG3), (Cells{{11, 1}, {11, 5}}));
}

TEST_F(CaseList, ACaseOfOneElementWhitensTheRightPanelAndLeavesItsDraw) {
  twoCases();
  w.FgEv.setCurrent(1);
  world.press("Command12");
  w.FgEv.setCurrent(2);
  world.press("Command12");
  EXPECT_EQ(mini().hs1.value(), 200);
  EXPECT_EQ(green(mini().fG2), (Cells{{1, 1}})) << "only the marks of the match, the wheel in any case of letters";
  EXPECT_EQ(mini().Hs2.value(), 299);
  EXPECT_TRUE(green(mini().fG3).empty());
}

TEST_F(CaseList, BothPanelsAreWhitenedThoughTheyStandAtTheDrawAlready) {
  twoCases();
  mini().hs1.set(300);
  mini().Hs2.set(299);
  mini().fG2.clickCell(3, 3);
  mini().fG3.setBack(4, 4, Verde);
  w.FgEv.setCurrent(1);
  world.press("Command12");
  EXPECT_EQ(green(mini().fG2), (Cells{{8, 2}, {8, 5}}));
  EXPECT_EQ(green(mini().fG3), (Cells{{11, 1}, {11, 5}}));
}

TEST_F(CaseList, AWheelThatIsNonePaintsNothing) {
  twoCases();
  w.FgEv.setText(1, 3, "??");
  w.FgEv.setCurrent(1);
  world.press("Command12");
  EXPECT_TRUE(green(mini().fG2).empty());
  EXPECT_EQ(green(mini().fG3).size(), 2u);
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST_F(CaseList, AMiniListThatCannotBeShownEndsTheOperationWithoutAWord) {
  world.shell.addScreen("Estrazioni_minielenco", []() -> std::unique_ptr<Form> { throw UserError("manca"); });
  twoCases();
  w.FgEv.setCurrent(1);
  world.press("Command12");
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST_F(CaseList, ShowingACaseLeavesTheReferenceDraw) {
  twoCases();
  w.FgEv.setCurrent(2);
  world.press("Command12");
  EXPECT_EQ(w.hs1.value(), 1200);
}

// ---- map of the cases

TEST_F(CaseList, TheMapShowsEachCasesColpiOnACommonAxisOfDraws) {
  showMap({114, 100});
  EXPECT_EQ(map().rows(), 3);
  EXPECT_EQ(map().columns(), 25) << "114 + 10 - 100 + 1";
  EXPECT_EQ(map().text(0, 1), "100");
  EXPECT_EQ(map().text(0, 24), "123");
  EXPECT_EQ(map().text(1, 0), "1");
  EXPECT_EQ(map().text(2, 0), "2");
  EXPECT_EQ(reds(map(), 2), (std::vector<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
  EXPECT_EQ(reds(map(), 1), (std::vector<int>{16, 17, 18, 19, 20, 21, 22, 23, 24}))
      << "the last colpo of the newest case has no column";
}

TEST_F(CaseList, AMapOfOneCaseHasOneRowAndColpiPlusOneColumns) {
  showMap({500});
  EXPECT_EQ(map().dataRows(), 1);
  EXPECT_EQ(map().columns(), 11);
  EXPECT_EQ(reds(map(), 1), (std::vector<int>{2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(CaseList, CasesCloserThanTheColpiOverlapInTheSameColumnsOnRowsOfTheirOwn) {
  showMap({103, 100}, 5);
  EXPECT_EQ(reds(map(), 1), (std::vector<int>{5, 6, 7, 8}));
  EXPECT_EQ(reds(map(), 2), (std::vector<int>{2, 3, 4, 5, 6}));
}

TEST_F(CaseList, TheMapBeforeLeavesNoTrace) {
  showMap({114, 107, 100});
  showMap({500, 495}, 5);
  EXPECT_EQ(map().rows(), 3);
  EXPECT_EQ(map().columns(), 11);
  EXPECT_EQ(reds(map(), 2), (std::vector<int>{2, 3, 4, 5, 6}));
}

TEST_F(CaseList, ASpanThatReachesAThousandWithItsColpiIsRefused) {
  showMap({1000, 10});
  ASSERT_EQ(world.shell.shown.size(), 1u);
  EXPECT_EQ(world.shell.lastBox().text, "Non si possono considerare più di 1000 estrazuioni");
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  EXPECT_TRUE(world.shell.shownScreens.empty());
}

TEST_F(CaseList, ASpanOf989WithTenColpiIsAccepted) {
  showMap({1000, 11});
  EXPECT_TRUE(world.shell.shown.empty());
  EXPECT_EQ(map().columns(), 1000);
}

TEST_F(CaseList, TheSpanIsTestedBeforeTheCasesAsItStands) {
  w.Label5.setText("990");
  world.press("Command103");
  EXPECT_EQ(world.shell.shown.size(), 1u);
}

TEST_F(CaseList, WithNoCaseTheMapIsNotShown) {
  w.Label5.setText("12");
  world.press("Command103");
  EXPECT_TRUE(world.shell.shown.empty());
  EXPECT_TRUE(world.shell.shownScreens.empty());
}

TEST_F(CaseList, TheSizeOfTheMapFollowsTheSpan) {
  const std::pair<int, int> sizes[] = {{1, 180},  {100, 180}, {101, 85}, {200, 85}, {201, 55}, {300, 55},
                                       {301, 40}, {400, 40},  {401, 25}, {500, 25}, {601, 25}, {700, 25}};
  for (const auto& [span, size] : sizes) {
    map().setCellSize(1);
    showMap({span + 1, 1});
    EXPECT_EQ(map().cellSize(), size) << span;
  }
}

TEST_F(CaseList, SpansInTheGapsKeepTheSizeOfTheMapBefore) {
  for (const int span : {0, 501, 600, 701, 980}) {
    map().setCellSize(77);
    showMap(span == 0 ? std::vector<int>{1} : std::vector<int>{span + 1, 1});
    EXPECT_EQ(map().cellSize(), 77) << span;
  }
}

// ---- Nuova configurazione of the list

TEST_F(CaseList, NewConfigurationClearsTheMarksOfVerificationAndTheCasesStay) {
  world.setCases({300, 200});
  for (int row = 1; row <= 2; ++row) {
    for (int column = 0; column < w.FgEv.columns(); ++column) w.FgEv.setBack(row, column, VerdeMedio);
    for (int column = 17; column <= 22; ++column) w.FgEv.setText(row, column, "3");
  }
  for (int row = 0; row < 2; ++row)
    for (int column = 0; column < 6; ++column) w.FgSSS.setText(row, column, "9");
  w.Label5.setText("100");
  world.press("Command27");
  EXPECT_EQ(w.FgEv.dataRows(), 2);
  for (int row = 1; row <= 2; ++row) {
    EXPECT_EQ(caseDraw(w, row), row == 1 ? 300 : 200);
    for (int column = 0; column <= 16; ++column) EXPECT_EQ(w.FgEv.back(row, column), VerdeMedio);
    for (int column = 17; column <= 22; ++column) EXPECT_EQ(w.FgEv.at(row, column), Cell{});
  }
  EXPECT_EQ(w.FgEv.text(0, 17), "S1");
  for (int row = 0; row < 2; ++row)
    for (int column = 0; column < 6; ++column) EXPECT_EQ(w.FgSSS.text(row, column), "");
  EXPECT_EQ(w.Label5.text(), "100");
}

TEST_F(CaseList, AClickOnTheTotalsDoesNothing) {
  EXPECT_FALSE(w.FgSSS.hasCellClick());
}

// ---- the four commands of the reference draw

TEST_F(CaseList, TheFirstCommandRunsTheChangeOfTheReferenceAgain) {
  w.LabelRifE.setText("");
  w.EstrazioneRiferimento = 0;
  world.press("Command42_0");
  EXPECT_EQ(w.LabelRifE.text(), "1200 " + dateOfDraw(1200) + "  M-" + std::to_string(world.archive.ProgMese(1200)));
  EXPECT_EQ(w.EstrazioneRiferimento, 1200);
}

TEST_F(CaseList, TheLastCommandGoesToTheLastDraw) {
  w.hs1.set(7);
  world.press("Command42_3");
  EXPECT_EQ(w.hs1.value(), 1200);
}

TEST_F(CaseList, TheCommandsFollowAnArchiveThatHasGrown) {
  world.archive = archiveOf(std::vector<WheelNumbers>(1300, WheelNumbers{}));
  world.press("Command42_3");
  EXPECT_EQ(w.EstrazioneRiferimento, 1300);
  EXPECT_EQ(w.hs1.maximum(), 1300);
  world.archive = archiveOf(std::vector<WheelNumbers>(1400, WheelNumbers{}));
  world.shell.answerText("1350");
  world.press("Command42_2");
  EXPECT_EQ(w.EstrazioneRiferimento, 1350);
  world.archive = archiveOf(std::vector<WheelNumbers>(1500, WheelNumbers{}));
  world.shell.answerText(dateOfDraw(1450));
  world.press("Command42_1");
  EXPECT_EQ(w.EstrazioneRiferimento, 1450);
}

TEST_F(CaseList, TheSearchByDateAsksUnderTheTitleDataAndTellsTheFormInItsText) {
  world.shell.answerText(dateOfDraw(321));
  world.press("Command42_1");
  ASSERT_EQ(world.shell.shown.size(), 1u);
  EXPECT_EQ(world.shell.lastBox().kind, ShownBox::Kind::Input);
  EXPECT_EQ(world.shell.lastBox().title, "Data ?");
  EXPECT_EQ(world.shell.lastBox().text, "Ricerca per data GG/MM/AAAA");
  EXPECT_EQ(w.hs1.value(), 321);
}

TEST_F(CaseList, TheSearchByDateComparesTexts) {
  for (const char* const answer : {"7/1/1939", "07-01-1939", "1939/01/07", "08/01/1939", "x", " 07/01/1939"}) {
    world.shell.answerText(answer);
    world.press("Command42_1");
    EXPECT_EQ(world.shell.lastBox().text, "Data non trovata") << answer;
    EXPECT_EQ(world.shell.lastBox().title, "Cerca data");
    EXPECT_EQ(world.shell.lastBox().icon, Icon::Information);
    EXPECT_EQ(w.hs1.value(), 1200);
  }
}

TEST_F(CaseList, TheSearchByDateFindsDrawsBeforeTheModelArchiveToo) {
  world.archive.setModelFrom(100);
  world.shell.answerText("07/01/1939");
  world.press("Command42_1");
  EXPECT_EQ(w.hs1.value(), 1);
}

TEST_F(CaseList, ACancelledOrEmptySearchByDateDoesNothing) {
  world.shell.answerCancel();
  world.press("Command42_1");
  world.shell.answerText("");
  world.press("Command42_1");
  EXPECT_EQ(world.shell.shown.size(), 2u) << "the two questions";
  EXPECT_EQ(w.hs1.value(), 1200);
}

TEST_F(CaseList, TheSearchByIndexIgnoresNineteenAndTakesTwenty) {
  world.shell.answerText("19");
  world.press("Command42_2");
  EXPECT_EQ(w.hs1.value(), 1200);
  world.shell.answerText("20");
  world.press("Command42_2");
  EXPECT_EQ(w.hs1.value(), 20);
  EXPECT_EQ(world.shell.lastBox().title, "Scelta estrazione");
  EXPECT_EQ(world.shell.lastBox().text, "Inserire il n° indice dell'archivio modello.");
  EXPECT_EQ(world.shell.shown.size(), 2u) << "without a word";
}

TEST_F(CaseList, TheSearchByIndexIgnoresWhatIsNoDraw) {
  for (const char* const answer : {"1201", "", "0", "-30", "trenta", "99999999999999"}) {
    world.shell.answerText(answer);
    world.press("Command42_2");
    EXPECT_EQ(w.hs1.value(), 1200) << answer;
  }
  world.shell.answerCancel();
  world.press("Command42_2");
  EXPECT_EQ(w.hs1.value(), 1200);
  EXPECT_EQ(world.shell.shown.size(), 7u);
}

}  // namespace
}  // namespace trv5
