#include <gtest/gtest.h>

#include "cases/case_search.h"
#include "cases/detection_world.h"

namespace trv5 {
namespace {

TEST(DetectionOnWheels, RelatesTwoWheelsOfTheSameDraw) {
  Detection d({{{"BA", {1, 31, 50, 50, 50}}, {"FI", {60, 60, 7, 37, 60}}}});
  d.onWheels({0, 1, 2});
  d.look("Distanza", "30");
  ASSERT_EQ(d.cases(), (Ints{1}));
  EXPECT_EQ(d.green(1), (Ints{1, 2}));
  EXPECT_EQ(d.green2(1), (Ints{3, 4}));
  std::string row;
  for (int column = 9; column <= 16; ++column) row += d.w.FgEv.text(1, column) + "|";
  EXPECT_EQ(row, "1|07/01/1939|FI|60|60|7|37|60|");
  EXPECT_EQ(d.w.FgEv.back(1, 11), Giallo);
  EXPECT_TRUE(d.w.FgEv.at(1, 11).bold);
}

TEST(DetectionOnWheels, WithRetroTheSecondElementIsAnEarlierDrawOfTheSameWheel) {
  Detection d(onBari({{1, 31, 50, 50, 50}, {80, 80, 80, 80, 80}, {2, 32, 50, 50, 50}}));
  d.onWheels({0});
  d.w.ComboRetro.pick(1);
  d.look("Distanza", "30");
  EXPECT_TRUE(d.cases().empty());
  d.w.ComboRetro.pick(2);
  d.look("Distanza", "30");
  ASSERT_EQ(d.cases(), (Ints{3}));
  EXPECT_EQ(d.w.FgEv.text(1, case_column::kDraw2), "1");
  EXPECT_EQ(d.w.FgEv.text(1, case_column::kWheel2), "BA");
}

TEST(DetectionOnWheels, ADrawFoundThroughSeveralWheelsShowsOneRowTheFirstMatch) {
  const std::array<int, 5> pair{1, 31, 50, 50, 50};
  Detection d({{{"CA", pair}, {"FI", pair}, {"NZ", pair}}});
  d.w.Label4.click();
  d.w.Ch_analisi2ruote.set(true);
  d.look("Distanza", "30");
  ASSERT_EQ(d.cases(), (Ints{1}));
  EXPECT_EQ(d.w.FgEv.text(1, case_column::kWheel), "CA");
  EXPECT_EQ(d.w.FgEv.text(1, case_column::kWheel2), "FI");
  EXPECT_EQ(d.w.NumeroCasi, 1);
}

TEST(DetectionOnWheels, OneToOneRelatesOneNumberOfEach) {
  Detection d({{{"BA", {1, 60, 60, 60, 60}}, {"CA", {8, 9, 31, 8, 8}}}});
  d.onWheels({0, 1});
  d.w.ChDDS.set(true);
  d.look("Differenza", "30");
  ASSERT_EQ(d.cases(), (Ints{1}));
  EXPECT_EQ(d.green(1), (Ints{1}));
  EXPECT_EQ(d.green2(1), (Ints{3}));
  d.w.Ch_ISO.set(true);
  d.look("Differenza", "30");
  EXPECT_TRUE(d.cases().empty()) << "not at the same position";
}

TEST(DetectionOnWheels, IsotopicPairsStandAtTheSamePositions) {
  Detection d({{{"BA", {1, 31, 50, 50, 50}}, {"CA", {60, 60, 7, 37, 60}}, {"FI", {8, 38, 70, 70, 70}}}});
  d.onWheels({0, 1, 2});
  d.w.Ch_ISO.set(true);
  d.look("Distanza", "30");
  ASSERT_EQ(d.cases(), (Ints{1}));
  EXPECT_EQ(d.w.FgEv.text(1, case_column::kWheel2), "FI");
  EXPECT_EQ(d.green2(1), (Ints{1, 2}));
}

TEST(DetectionOnWheels, NumbersMustBeExactlyAsManyInEachElement) {
  Detection d({{{"BA", {1, 2, 50, 51, 52}}, {"CA", {1, 60, 61, 62, 63}}}});
  d.onWheels({0, 1});
  d.look("Numeri", "01-02");
  EXPECT_TRUE(d.cases().empty()) << "two in the first, one wanted";
  d.w.ComboQNR1.pick(1);
  d.look("Numeri", "01-02");
  EXPECT_EQ(d.cases(), (Ints{1}));
  d.w.ComboQNR2.pick(1);
  d.look("Numeri", "01-02");
  EXPECT_TRUE(d.cases().empty());
}

TEST(DetectionOnWheels, IsotopicNumbersStandAtTheSamePositions) {
  Detection d({{{"BA", {1, 50, 51, 52, 53}}, {"CA", {60, 1, 61, 62, 63}}, {"FI", {2, 70, 71, 72, 73}}}});
  d.onWheels({0, 1, 2});
  d.w.Ch_ISO.set(true);
  d.look("Numeri", "01-02");
  ASSERT_EQ(d.cases(), (Ints{1}));
  EXPECT_EQ(d.w.FgEv.text(1, case_column::kWheel2), "FI");
}

TEST(DetectionOnWheels, ChosenNumbersAreGreenAlsoOutsideTheChosenPositions) {
  Detection d({{{"BA", {1, 50, 51, 52, 2}}, {"CA", {2, 60, 61, 1, 62}}}});
  d.positions({1});
  d.onWheels({0, 1});
  d.look("Numeri", "01-02");
  ASSERT_EQ(d.cases(), (Ints{1}));
  EXPECT_EQ(d.green(1), (Ints{1, 5}));
  EXPECT_EQ(d.green2(1), (Ints{1, 4}));
}

TEST(DetectionOnWheels, KindsWithoutATwoElementTestGiveAnEmptyList) {
  Detection d(std::vector<WheelNumbers>(9, WheelNumbers{{"BA", {2, 4, 3, 5, 7}}, {"CA", {2, 4, 3, 5, 7}}}));
  d.onWheels({0, 1});
  for (const char* const kind : {"Mensile", "Ciclo", "Num Pari"}) {
    d.w.ComboPar.pick(2);
    d.look(kind);
    EXPECT_TRUE(d.cases().empty()) << kind;
    EXPECT_EQ(d.w.SSTab1.index(), 0) << kind;
  }
}

TEST(DetectionOnWheels, ADistanceAbove45StopsTheRunWithTheListCutAndTheRestAsItWas) {
  Detection d(onBari({{1, 2, 3, 4, 5}, {1, 7, 8, 9, 10}}));
  d.look("Numeri", "01");
  ASSERT_EQ(d.w.Label5.text(), "1");
  d.onWheels({0, 1});
  d.look("Distanza", "46");
  ASSERT_EQ(d.shell.shown.size(), 1u);
  EXPECT_EQ(d.shell.lastBox().text, "Selezionare un valore compreso tra 1 e 45");
  EXPECT_TRUE(d.cases().empty());
  EXPECT_EQ(d.w.NumeroCasi, 0);
  EXPECT_EQ(d.w.Label5.text(), "1");
  EXPECT_EQ(d.w.SSTab1.index(), 1) << "the ending doesn't run";
  EXPECT_EQ(d.w.TxtNumeri.text(), "46");
  d.look("Somma", "46");
  EXPECT_TRUE(d.shell.shown.empty()) << "no other kind has this bound";
}

TEST(DetectionOnWheels, ASecondElementOnAWheelNotDrawnIsTakenAsItIs) {
  Detection d({{{"BA", {30, 50, 51, 52, 53}}}});
  d.onWheels({0, 1});
  d.w.ChDDS.set(true);
  d.look("Differenza", "30");
  ASSERT_EQ(d.cases(), (Ints{1})) << "30 against 0: only the first element is tested";
  EXPECT_EQ(d.w.FgEv.text(1, case_column::kWheel2), "CA");
  EXPECT_EQ(d.w.FgEv.text(1, case_column::kNumbers2), "0");
  EXPECT_EQ(d.green2(1), (Ints{1}));
}

TEST(DetectionOnWheels, LeavesTheMarksForCicloAlone) {
  Detection d(onBari({{1, 7, 3, 4, 8}, {1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}}));
  d.look("Numeri", "07-08");
  const PositionFlags struck = d.w.PosizioniColpite;
  ASSERT_EQ(struck, (PositionFlags{false, false, true, false, false, true}));
  d.onWheels({0, 1});
  d.look("Numeri", "01-02");
  EXPECT_EQ(d.w.PosizioniColpite, struck);
}

TEST(DetectionOnWheels, WithoutWheelsFindsNothing) {
  Detection d({{{"BA", {1, 31, 50, 50, 50}}, {"CA", {1, 31, 50, 50, 50}}}});
  d.onWheels({});
  d.look("Distanza", "30");
  EXPECT_TRUE(d.cases().empty());
  EXPECT_TRUE(d.shell.shown.empty());
}

}  // namespace
}  // namespace trv5
