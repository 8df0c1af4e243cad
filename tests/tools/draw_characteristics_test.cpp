#include "characteristics_world.h"

namespace trv5 {
namespace {

TEST(DrawCharacteristics, OpenOnTheLastDrawWithoutClasses) {
  const CharacteristicsWorld world;
  EXPECT_EQ(world.form.title(), "Caratteristiche estrazione");
  EXPECT_EQ(world.form.hs1.minimum(), 1);
  EXPECT_EQ(world.form.hs1.maximum(), 3);
  EXPECT_EQ(world.form.hs1.value(), 3);
  EXPECT_EQ(world.form.Label2.text(), "3");
  EXPECT_EQ(world.form.Label1.text(), "04/02/1939");
  EXPECT_EQ(world.form.Label3.text(), "PM=1   PA=3");
  EXPECT_EQ(world.row(world.form.fG2, 11), "NZ 90 89 88 87 86");
  EXPECT_EQ(world.form.fG2.rows(), 12);
  EXPECT_EQ(world.form.fG3.rows(), 12);
  EXPECT_TRUE(world.blank(world.form.fG3));
  EXPECT_EQ(world.form.Fg1.rows(), 1);
  EXPECT_EQ(world.form.Fg5.rows(), 91);
  for (const auto& back : world.buttons()) EXPECT_EQ(back, std::nullopt);
}

TEST(DrawCharacteristics, CodesAreBoldAndTheColumnsOfIndicesHidden) {
  const CharacteristicsWorld world;
  for (int row = 1; row <= 11; ++row) EXPECT_TRUE(world.form.fG2.at(row, 0).bold);
  EXPECT_EQ(world.form.Fg1.hiddenColumns(), (std::set<int>{2, 5}));
  EXPECT_EQ(world.form.fG3.hiddenColumns(), std::set<int>{0});
}

TEST(DrawCharacteristics, AnArchiveOfOneDrawIsShownThoughNoScrollBarMoves) {
  const CharacteristicsWorld world({drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}})});
  EXPECT_EQ(world.row(world.form.fG2, 1), "BA 58 22 47 49 69");
  EXPECT_EQ(world.count(80, "SO"), 1) << "58 and 22";
}

TEST(DrawCharacteristics, ADrawBeforeTheNationalWheelShows0WhichTakesPartInSumsAndDifferences) {
  CharacteristicsWorld world;
  world.form.hs1.set(1);
  EXPECT_EQ(world.row(world.form.fG2, 11), "NZ 0 0 0 0 0");
  // Ten wheels without data stand below BA: each sum and each difference of 58 with their 0 is 58.
  EXPECT_EQ(world.count(58, "SV"), 10);
  EXPECT_EQ(world.count(58, "FV"), 10);
  EXPECT_EQ(world.count(58, "SD"), 40);
  EXPECT_EQ(world.count(90, "SV"), 45 * 5) << "two 0 make 90";
}

TEST(DrawCharacteristics, NumbersBeyond90AreShownAsTheyStandAndCountAs0) {
  CharacteristicsWorld world({drawOf("07/01/1939", {{"BA", {91, 99, 47, 49, 69}}})});
  EXPECT_EQ(world.row(world.form.fG2, 1), "BA 91 99 47 49 69");
  EXPECT_EQ(world.count(47, "SO"), 2);
  world.form.Command7.press();
  EXPECT_EQ(world.form.fG3.text(1, 2), "0");
}

TEST(DrawCharacteristics, TheDifference0HasACounterThatNoRowShows) {
  CharacteristicsWorld world;
  world.form.hs1.set(2);  // 45 above 45, 30 above 30
  for (int row = 1; row <= 90; ++row) EXPECT_EQ(world.form.Fg5.number(row, 0), row);
  int differences = 0;
  for (int row = 1; row <= 90; ++row) differences += world.count(row, "FV");
  EXPECT_EQ(275 - differences, 36 * 5 + 2);
}

TEST(DrawCharacteristics, Row90HasNoHorizontalDifference) {
  CharacteristicsWorld world;
  for (int draw = 1; draw <= 3; ++draw) {
    world.form.hs1.set(draw);
    EXPECT_EQ(world.form.Fg5.text(90, 7), "") << draw;
  }
}

TEST(DrawCharacteristics, ACounterOf0LeavesItsCellEmpty) {
  const CharacteristicsWorld world;
  for (int row = 1; row <= 90; ++row)
    for (int column = 1; column <= 9; ++column) EXPECT_NE(world.form.Fg5.text(row, column), "0");
}

TEST(DrawCharacteristics, DsGivesEachPairOneSumRowAndOneDistanceRow) {
  CharacteristicsWorld world;
  world.form.Command1.press();
  const Grid& Fg1 = world.form.Fg1;
  ASSERT_EQ(Fg1.dataRows(), 2970);
  for (int row = 1; row <= 1485; ++row) {
    ASSERT_EQ(Fg1.text(row, 0), "Somma");
    ASSERT_EQ(Fg1.text(row + 1485, 0), "Distanza");
    for (int column = 1; column <= 7; ++column) ASSERT_EQ(Fg1.text(row, column), Fg1.text(row + 1485, column));
  }
  EXPECT_EQ(world.row(Fg1, 1), "Somma Orizzontale 0 BA 1 0 BA 2 87");
  EXPECT_EQ(world.row(Fg1, 111), "Somma Verticale 0 BA 1 1 CA 1 7");
  EXPECT_EQ(world.row(Fg1, 386), "Somma Diagonale 0 BA 1 1 CA 2 7");
  EXPECT_EQ(world.row(Fg1, 1486), "Distanza Orizzontale 0 BA 1 0 BA 2 17");
  EXPECT_EQ(world.row(Fg1, 2970), "Distanza Diagonale 9 VE 5 10 NZ 4 3");
  EXPECT_EQ(Fg1.fitsAsked(), 1);
}

TEST(DrawCharacteristics, EqualClassesBearTheirOwnLabels) {
  CharacteristicsWorld world({drawOf("07/01/1939", {{"BA", {10, 11, 20, 38, 90}}})});
  world.form.Command2.press();
  const Grid& Fg1 = world.form.Fg1;
  EXPECT_EQ(world.row(Fg1, 1), "Decina 1 Orizzontale 0 BA 1 0 BA 2 1");
  std::vector<std::string> lastDigits, figures;
  for (int row = 1; row < Fg1.rows(); ++row) {
    if (Fg1.text(row, 1) != "Orizzontale" || Fg1.text(row, 3) != "BA") continue;
    if (Fg1.text(row, 0).starts_with("cadenze ")) lastDigits.push_back(world.row(Fg1, row));
    if (Fg1.text(row, 0).starts_with("Figure ")) figures.push_back(world.row(Fg1, row));
  }
  EXPECT_EQ(lastDigits,
            (std::vector<std::string>{"cadenze 0 Orizzontale 0 BA 1 0 BA 3 0", "cadenze 0 Orizzontale 0 BA 1 0 BA 5 0",
                                      "cadenze 0 Orizzontale 0 BA 3 0 BA 5 0"}));
  EXPECT_EQ(figures,
            (std::vector<std::string>{"Figure 2 Orizzontale 0 BA 2 0 BA 3 2", "Figure 2 Orizzontale 0 BA 2 0 BA 4 2",
                                      "Figure 2 Orizzontale 0 BA 3 0 BA 4 2"}));
}

TEST(DrawCharacteristics, EachModePaintsItsButtonAndShowsItsClasses) {
  CharacteristicsWorld world;
  const std::vector<std::pair<Button*, std::string>> modes = {{&world.form.Command3, " 0 8 0 1 1"},
                                                              {&world.form.Command4, " 7 0 9 0 1"},
                                                              {&world.form.Command5, " 7 8 9 1 2"},
                                                              {&world.form.Command6, " 7 8  1 1"},
                                                              {&world.form.Command7, "     11"}};
  const std::vector<std::string> captions = {"DECINE", "CADENZE", "FIGURE", "RADICALI", "GEMELLI"};
  for (std::size_t i = 0; i < modes.size(); ++i) {
    modes[i].first->press();
    EXPECT_EQ(modes[i].first->caption(), captions[i]);
    EXPECT_EQ(world.row(world.form.fG3, 1), modes[i].second);
    for (std::size_t other = 0; other < modes.size(); ++other)
      EXPECT_EQ(modes[other].first->back(), other == i ? VerdeMedio : GialloMedio);
  }
}

TEST(DrawCharacteristics, RadLeavesNumbersWithoutAGroupEmptyAndGemShows0OnAnUndrawnWheel) {
  CharacteristicsWorld world;
  world.form.Command6.press();
  EXPECT_EQ(world.form.fG3.text(1, 3), "") << "9 is in no group";
  EXPECT_EQ(world.row(world.form.fG3, 2), "     ");
  world.form.Command7.press();
  EXPECT_EQ(world.row(world.form.fG3, 2), " 0 0 0 0 0");
}

TEST(DrawCharacteristics, AModeTakesTheMarksAndKeepsPairsAndCross) {
  CharacteristicsWorld world;
  world.form.Fg5.clickCell(17, 4);
  const Grid pairs = world.form.Fg1, cross = world.form.Fg5;
  EXPECT_FALSE(world.painted(world.form.fG2, Verde).empty());
  world.form.Command3.press();
  EXPECT_TRUE(world.painted(world.form.fG2, Verde).empty());
  EXPECT_EQ(world.form.Fg1.grid(), pairs);
  EXPECT_EQ(world.form.Fg5.grid(), cross);
}

TEST(DrawCharacteristics, TheModeRunsAgainAfterAChangeOfDrawAndThePairsEmpty) {
  CharacteristicsWorld world;
  world.form.Command5.press();
  world.form.Command1.press();
  world.form.hs1.set(1);
  EXPECT_EQ(world.row(world.form.fG3, 1), " 4 4 2 4 6");
  EXPECT_EQ(world.form.Fg1.rows(), 1);
  EXPECT_EQ(world.form.Command5.back(), VerdeMedio);
}

TEST(DrawCharacteristics, AChangeOfDrawTakesMarksAndCross) {
  CharacteristicsWorld world;
  world.form.Fg5.clickCell(17, 4);
  world.form.hs1.set(2);
  EXPECT_TRUE(world.painted(world.form.fG2, Verde).empty());
  for (int row = 0; row <= 90; ++row)
    for (int column = 0; column <= 9; ++column) {
      EXPECT_EQ(world.form.Fg5.back(row, column), kWhite);
      EXPECT_FALSE(world.form.Fg5.at(row, column).bold);
    }
}

TEST(DrawCharacteristics, AClickOnAClassMarksItsNumbersInBothGrids) {
  CharacteristicsWorld world;
  world.form.Command3.press();
  world.form.fG3.clickCell(1, 2);
  const Cells eighties = {{1, 2}, {11, 2}, {11, 3}, {11, 4}, {11, 5}};
  EXPECT_EQ(world.painted(world.form.fG2, Verde), eighties);
  EXPECT_EQ(world.painted(world.form.fG3, Verde), eighties);
  EXPECT_EQ(world.shell.statusTexts.back(), "Decina 8: 5 numeri");
}

TEST(DrawCharacteristics, AClickOnAnEmptyClassKeepsAllMarksAsTheyStood) {
  CharacteristicsWorld world;
  world.form.Command6.press();
  world.form.fG3.clickCell(1, 1);
  const Grid numbers = world.form.fG2;
  const Cells marks = world.painted(world.form.fG3, Verde);
  EXPECT_FALSE(marks.empty());
  world.form.fG3.clickCell(1, 3);
  world.form.fG3.clickCell(2, 2);
  world.form.fG3.clickCell(0, 2);
  EXPECT_EQ(world.form.fG2.grid(), numbers);
  EXPECT_EQ(world.painted(world.form.fG3, Verde), marks);
}

TEST(DrawCharacteristics, The0OfTheTwinsMarksWheelsWithoutDataAndNoEmptyCell) {
  CharacteristicsWorld world;
  world.form.Command7.press();
  world.form.fG3.clickCell(2, 1);
  EXPECT_EQ(world.painted(world.form.fG3, Verde).size(), 45U);
  EXPECT_EQ(world.form.fG2.back(1, 1), kWhite);
}

TEST(DrawCharacteristics, AClickOnAPairMarksItsTwoNumbersAndEmptiesTheClasses) {
  CharacteristicsWorld world;
  world.form.Command3.press();
  world.form.Command1.press();
  world.form.Fg1.clickCell(386, 0);
  EXPECT_EQ(world.painted(world.form.fG2, Verde), (Cells{{1, 1}, {2, 2}}));
  EXPECT_TRUE(world.blank(world.form.fG3));
  EXPECT_EQ(world.form.fG3.rows(), 12);
  EXPECT_EQ(world.form.Command3.back(), VerdeMedio) << "the mode stays chosen";
  world.form.hs1.set(1);
  EXPECT_FALSE(world.blank(world.form.fG3));
}

TEST(DrawCharacteristics, AClickOnAHeadingOrOnTheValuesDoesNothing) {
  CharacteristicsWorld world;
  world.form.Command3.press();
  world.form.Command1.press();
  const Grid numbers = world.form.fG2, classes = world.form.fG3, pairs = world.form.Fg1;
  world.form.Fg1.clickCell(0, 3);
  world.form.Fg5.clickCell(0, 3);
  world.form.Fg5.clickCell(7, 0);
  EXPECT_EQ(world.form.fG2.grid(), numbers);
  EXPECT_EQ(world.form.fG3.grid(), classes);
  EXPECT_EQ(world.form.Fg1.grid(), pairs);
}

TEST(DrawCharacteristics, AClickOnAFrequencyListsItsPairsAndMarksTheirNumbers) {
  CharacteristicsWorld world;
  world.form.hs1.set(2);
  world.form.Command3.press();
  world.form.Fg5.clickCell(45, 5);  // vertical distances of 45: equal numbers are among them
  EXPECT_EQ(world.row(world.form.Fg1, 1), "Distanza Verticale 0 BA 1 1 CA 1 45");
  EXPECT_EQ(world.form.Fg1.dataRows(), world.form.Fg5.number(45, 5));
  EXPECT_EQ(world.form.fG2.back(1, 1), Verde);
  EXPECT_EQ(world.form.fG2.back(2, 3), Verde);
  EXPECT_TRUE(world.blank(world.form.fG3));
  EXPECT_EQ(world.shell.statusTexts.back(),
            "Distanza 45, coppie verticali: " + std::to_string(world.form.Fg1.dataRows()));
}

TEST(DrawCharacteristics, AFrequencyTellsWhatItCounts) {
  const CharacteristicsWorld world;
  EXPECT_EQ(frequencyText(world.form.Fg5, 87, 1), "Somma 87, coppie orizzontali: 3") << "7 + 80, 88 + 89, 90 + 87";
  EXPECT_EQ(frequencyText(world.form.Fg5, 46, 6), "Distanza 46, coppie diagonali: 0");
  EXPECT_EQ(frequencyText(world.form.Fg5, 90, 8), "Differenza 90, coppie verticali: 9");
  for (const auto& [row, column] : Cells{{0, 1}, {1, 0}, {91, 1}, {1, 10}, {-1, -1}})
    EXPECT_EQ(frequencyText(world.form.Fg5, row, column), "");
}

TEST(DrawCharacteristics, ACrossLeadsToTheClickedFrequency) {
  CharacteristicsWorld world;
  world.form.Fg5.clickCell(70, 8);
  world.form.Fg5.clickCell(3, 2);
  EXPECT_EQ(world.painted(world.form.Fg5, Verde), (Cells{{3, 2}}));
  EXPECT_EQ(world.painted(world.form.Fg5, VerdeChiaro), (Cells{{1, 2}, {2, 2}, {3, 1}}));
  for (int row = 1; row <= 90; ++row) {
    EXPECT_EQ(world.form.Fg5.at(row, 0).fore, row == 3 ? Rosso : kBlack);
    EXPECT_TRUE(world.form.Fg5.at(row, 0).bold);
  }
}

TEST(DrawCharacteristics, TheFirstRowAndColumnHaveNoCross) {
  CharacteristicsWorld world;
  world.form.Fg5.clickCell(1, 1);
  EXPECT_EQ(world.painted(world.form.Fg5, Verde), (Cells{{1, 1}}));
  EXPECT_TRUE(world.painted(world.form.Fg5, VerdeChiaro).empty());
}

TEST(DrawCharacteristics, AnEmptyFrequencyGivesNoPairsAndItsCross) {
  CharacteristicsWorld world;
  world.form.Command1.press();
  ASSERT_EQ(world.form.Fg5.text(46, 4), "") << "no distance is longer than 45";
  world.form.Fg5.clickCell(46, 4);
  EXPECT_EQ(world.form.Fg1.rows(), 1);
  EXPECT_TRUE(world.painted(world.form.fG2, Verde).empty());
  EXPECT_EQ(world.painted(world.form.Fg5, Verde), (Cells{{46, 4}}));
  EXPECT_EQ(world.painted(world.form.Fg5, VerdeChiaro).size(), 45U + 3U);
}

TEST(DrawCharacteristics, TheBroomTakesTheMarksOfNumbersAndClasses) {
  CharacteristicsWorld world;
  world.form.Command3.press();
  world.form.fG3.clickCell(1, 2);
  world.form.Command81.press();
  EXPECT_TRUE(world.painted(world.form.fG2, Verde).empty());
  EXPECT_TRUE(world.painted(world.form.fG3, Verde).empty());
  EXPECT_EQ(world.form.fG3.text(1, 2), "8");
}

TEST(DrawCharacteristics, TheUnseenButtonCountsTheFrequenciesAgain) {
  CharacteristicsWorld world;
  world.form.Fg5.clickCell(3, 2);
  world.form.Command8.press();
  EXPECT_TRUE(world.painted(world.form.Fg5, Verde).empty());
  EXPECT_FALSE(world.form.Fg5.at(1, 0).bold);
}

TEST(DrawCharacteristics, FollowAnArchiveThatHasGrown) {
  CharacteristicsWorld world;
  std::vector<DrawRow> rows = threeDraws();
  rows.push_back(drawOf("11/02/1939", {{"BA", {1, 2, 3, 4, 5}}}));
  world.archive = archiveOfRows(rows);
  world.form.Command56.press();
  EXPECT_EQ(world.form.hs1.maximum(), 4);
  EXPECT_EQ(world.row(world.form.fG2, 1), "BA 1 2 3 4 5");
}

}  // namespace
}  // namespace trv5
