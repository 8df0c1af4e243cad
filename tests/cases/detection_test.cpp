#include "method/detection.h"

#include <gtest/gtest.h>

#include "cases/case_search.h"
#include "cases/detection_world.h"

namespace trv5 {
namespace {

TEST(DetectionMensile, WithoutForceTheNewestDrawIsNeverACaseEvenIfItClosesTheMonth) {
  Detection d(std::vector<WheelNumbers>(7, WheelNumbers{}));  // 07/01 .. 31/01: the last closes January
  d.w.ComboPar.pick(0);
  d.look("Mensile");
  EXPECT_TRUE(d.cases().empty());
}

TEST(DetectionMensile, WithForceTheNewestDrawAlwaysIsACase) {
  Detection d(std::vector<WheelNumbers>(10, WheelNumbers{}));  // 12/02 doesn't close February
  d.w.ComboPar.pick(0);
  d.w.Ch_ultima.set(true);
  d.look("Mensile");
  EXPECT_EQ(d.cases(), (Ints{10, 7}));
  d.w.hs1.set(9);
  d.look("Mensile");
  EXPECT_EQ(d.cases(), (Ints{7})) << "the force is for the archive's last draw, not for the reference";
}

TEST(DetectionMensile, AProgressiveFindsThatDrawOfEachMonth) {
  Detection d(std::vector<WheelNumbers>(20, WheelNumbers{}));
  d.w.ComboPar.pick(2);
  d.look("Mensile");
  EXPECT_EQ(d.cases(), (Ints{16, 9, 2}));
  EXPECT_TRUE(d.green(1).empty());
}

TEST(DetectionMensile, NeedsNeitherNumbersNorPositions) {
  Detection d(std::vector<WheelNumbers>(20, WheelNumbers{}));
  d.positions({});
  d.w.ComboPar.pick(2);
  d.look("Mensile");
  EXPECT_EQ(d.cases().size(), 3u);
  EXPECT_TRUE(d.shell.shown.empty());
}

// ---- Numeri

TEST(DetectionNumeri, CountsTheChosenNumbersAtTheChosenPositions) {
  Detection d(onBari({{1, 2, 3, 4, 5}, {1, 8, 9, 10, 11}, {12, 13, 14, 2, 1}}));
  d.look("Numeri", "01-02");
  EXPECT_EQ(d.cases(), (Ints{3, 2, 1}));
  EXPECT_EQ(d.green(1), (Ints{4, 5}));
  d.w.ComboQNu.pick(1);
  d.look("Numeri", "01-02");
  EXPECT_EQ(d.cases(), (Ints{3, 1}));
  d.positions({1, 2, 3});
  d.look("Numeri", "01-02");
  EXPECT_EQ(d.cases(), (Ints{1}));
}

TEST(DetectionNumeri, WithAnyRetroOneNumberIsEnough) {
  Detection d(onBari({{1, 2, 3, 4, 5}, {1, 8, 9, 10, 11}}));
  d.w.ComboQNu.pick(1);
  d.w.ComboRetro.pick(7);
  d.look("Numeri", "01-02");
  EXPECT_EQ(d.cases(), (Ints{2, 1})) << "QN is passed over";
}

TEST(DetectionNumeri, AcceptsAnySeparatorAndPassesOverWhatIsNoNumber) {
  Detection d(onBari({{1, 2, 3, 4, 5}, {7, 8, 9, 10, 11}}));
  d.look("Numeri", "05.99/00xab·08");
  EXPECT_EQ(d.cases(), (Ints{2, 1}));
  EXPECT_EQ(d.green(1), (Ints{2}));
  EXPECT_EQ(d.green(2), (Ints{5}));
}

// ---- pairs

TEST(DetectionSomma, FortyFiveAndFortyFiveGiveNinety) {
  Detection d(onBari({{45, 45, 1, 2, 3}, {45, 46, 1, 2, 3}}));
  d.look("Somma", "90");
  EXPECT_EQ(d.cases(), (Ints{1}));
  EXPECT_EQ(d.green(1), (Ints{1, 2}));
  d.look("Somma", "00");
  EXPECT_TRUE(d.cases().empty());
}

TEST(DetectionDistanza, BetweenOneAndNinetyIsOne) {
  Detection d(onBari({{1, 90, 30, 30, 30}}));
  d.look("Distanza", "1");
  EXPECT_EQ(d.cases(), (Ints{1}));
  EXPECT_EQ(d.green(1), (Ints{1, 2}));
  d.look("Distanza", "89");
  EXPECT_TRUE(d.cases().empty());
}

TEST(DetectionDifferenza, BetweenOneAndNinetyIsEightyNine) {
  Detection d(onBari({{1, 90, 30, 30, 30}}));
  d.look("Differenza", "89");
  EXPECT_EQ(d.cases(), (Ints{1}));
  d.look("Differenza", "1");
  EXPECT_TRUE(d.cases().empty());
}

TEST(DetectionPairs, OnlyTheFirstNumberOfAPairIsTestedForZero) {
  Detection d(onBari({{20, 0, 1, 2, 3}, {0, 20, 1, 2, 3}}));
  d.positions({1, 2});
  d.look("Differenza", "20");
  EXPECT_EQ(d.cases(), (Ints{1})) << "20 against 0 counts, 0 against 20 doesn't";
}

TEST(DetectionPairs, AWheelThatWasNotDrawnGivesNoCase) {
  Detection d(onBari({kNotDrawn}));
  for (const char* const kind : {"Differenza", "Distanza", "Somma"}) {
    d.look(kind, "90");
    EXPECT_TRUE(d.cases().empty()) << kind;
  }
}

TEST(DetectionPairs, AsManyPairsMustMatchAsAreWanted) {
  Detection d(onBari({{10, 20, 30, 50, 90}, {10, 20, 41, 55, 90}}));
  d.w.ComboQNu.pick(1);
  d.look("Differenza", "10");
  EXPECT_EQ(d.cases(), (Ints{1}));
  EXPECT_EQ(d.green(1), (Ints{1, 2, 3}));
}

TEST(DetectionPairs, TheOneElementScanTakesADistanceAbove45WithoutAWord) {
  Detection d(onBari({{1, 90, 30, 30, 30}}));
  d.look("Distanza", "46");
  EXPECT_TRUE(d.shell.shown.empty());
  EXPECT_TRUE(d.cases().empty());
  EXPECT_EQ(d.w.SSTab1.index(), 0);
}

// ---- Num Pari

TEST(DetectionNumPari, WantsExactlyAsManyEvenNumbers) {
  Detection d(onBari({{2, 4, 6, 7, 9}, {2, 4, 5, 7, 9}, {2, 4, 6, 8, 9}}));
  d.w.ComboPar.pick(2);
  d.look("Num Pari");
  EXPECT_EQ(d.cases(), (Ints{2}));
  EXPECT_EQ(d.green(1), (Ints{1, 2}));
  EXPECT_TRUE(d.shell.shown.empty()) << "no value is asked for";
}

TEST(DetectionNumPari, WithULooksForDrawsWithoutAnEvenNumber) {
  Detection d(onBari({{1, 3, 5, 7, 9}, {2, 4, 5, 7, 9}}));
  d.w.ComboPar.pick(0);
  d.look("Num Pari");
  EXPECT_EQ(d.cases(), (Ints{1}));
}

// ---- Ciclo

TEST(DetectionCiclo, TakesTheReferenceDrawAndEachDrawOfThePeriodBefore) {
  Detection d(std::vector<WheelNumbers>(23, WheelNumbers{}));
  d.w.ComboPar.pick(6);
  d.w.hs1.set(20);
  d.look("Ciclo");
  EXPECT_EQ(d.cases(), (Ints{20, 14, 8, 2}));
  EXPECT_TRUE(d.shell.shown.empty());
}

TEST(DetectionCiclo, APeriodBelowFiveIsTalkedAboutAndTakenAllTheSame) {
  Detection d(std::vector<WheelNumbers>(9, WheelNumbers{}));
  d.w.ComboPar.pick(4);
  d.look("Ciclo");
  ASSERT_EQ(d.shell.shown.size(), 1u);
  EXPECT_EQ(d.shell.lastBox().text,
            "Quanso è selezionata la rilevazione per ciclo la dursta non può essere inferiore a 5. Va impostata dalla "
            "lista Mensile");
  EXPECT_EQ(d.shell.lastBox().title, "Avviso");
  EXPECT_EQ(d.shell.lastBox().icon, Icon::Exclamation);
  EXPECT_EQ(d.cases(), (Ints{9, 5, 1}));
}

TEST(DetectionCiclo, WithUFindsNothing) {
  Detection d(std::vector<WheelNumbers>(9, WheelNumbers{}));
  d.w.ComboPar.pick(0);
  d.look("Ciclo");
  EXPECT_TRUE(d.cases().empty());
  EXPECT_EQ(d.w.NumeroCasi, 0);
  EXPECT_EQ(d.w.SSTab1.index(), 0);
}

TEST(DetectionCiclo, PaintsEveryRowWithTheMarksOfTheLastDrawOfTheRunBefore) {
  Detection d(
      onBari({{1, 7, 3, 4, 8}, {1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}}));
  d.look("Numeri", "07-08");  // the last draw examined is draw 1, struck at positions 2 and 5
  ASSERT_EQ(d.cases(), (Ints{1}));
  d.w.ComboPar.pick(5);
  d.look("Ciclo");
  ASSERT_EQ(d.cases(), (Ints{6, 1}));
  EXPECT_EQ(d.green(1), (Ints{2, 5}));
  EXPECT_EQ(d.green(2), (Ints{2, 5}));
  d.look("Ciclo");
  EXPECT_EQ(d.green(1), (Ints{2, 5})) << "nothing clears them but another kind";
  d.look("Numeri", "90");
  d.look("Ciclo");
  EXPECT_TRUE(d.green(1).empty());
}

// ---- positions, reference, quantity

TEST(DetectionPositions, WithoutOneOnlyMensileAndCicloFindCases) {
  Detection d(onBari({{1, 90, 45, 45, 2}, {1, 90, 45, 45, 2}}));
  d.positions({});
  for (const char* const kind : {"Numeri", "Differenza", "Distanza", "Somma"}) {
    d.look(kind, "89");
    EXPECT_TRUE(d.cases().empty()) << kind;
  }
  for (const int even : {0, 1, 2}) {
    d.w.ComboPar.pick(even);
    d.look("Num Pari");
    EXPECT_TRUE(d.cases().empty()) << even;
  }
  d.w.ComboPar.pick(5);
  d.look("Ciclo");
  EXPECT_EQ(d.cases(), (Ints{2}));
  d.w.ComboPar.pick(1);
  d.look("Mensile");
  EXPECT_EQ(d.cases(), (Ints{1}));
}

TEST(DetectionReference, AtOneExaminesOneDraw) {
  Detection d(onBari({{1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}}));
  d.w.hs1.set(1);
  d.look("Numeri", "01");
  EXPECT_EQ(d.cases(), (Ints{1}));
  d.onWheels({0, 1});
  d.w.ComboRetro.pick(5);
  d.look("Numeri", "01");
  EXPECT_TRUE(d.cases().empty()) << "no draw before it";
}

TEST(DetectionReference, InThePastLeavesLaterDrawsOut) {
  Detection d(onBari({{1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}}));
  d.w.hs1.set(2);
  d.look("Numeri", "01");
  EXPECT_EQ(d.cases(), (Ints{2, 1}));
}

TEST(DetectionList, ShowsIndexDateWheelAndNumbersOfACase) {
  Detection d({{}, {{"CA", {7, 80, 9, 10, 11}}}});
  d.w.ComboR1.pick(1);
  d.look("Numeri", "80");
  ASSERT_EQ(d.cases(), (Ints{2}));
  std::string row;
  for (int column = 0; column < d.w.FgEv.columns(); ++column) row += d.w.FgEv.text(1, column) + "|";
  EXPECT_EQ(row, "1|2|11/01/1939|CA|7|80|9|10|11|||||||||||||||");
  EXPECT_EQ(d.w.FgEv.back(1, 3), Giallo);
  EXPECT_TRUE(d.w.FgEv.at(1, 3).bold);
  EXPECT_EQ(d.w.FgEv.current(), -1);
}

TEST(DetectionList, TheSpanOfOneCaseIsZero) {
  Detection d(onBari({{1, 2, 3, 4, 5}, {6, 7, 8, 9, 10}}));
  d.look("Numeri", "01");
  EXPECT_EQ(d.w.Label5.text(), "0");
}

TEST(DetectionList, WithoutACaseTheSpanKeepsItsText) {
  Detection d(onBari({{1, 2, 3, 4, 5}, {6, 7, 8, 9, 10}, {1, 2, 3, 4, 5}}));
  d.look("Numeri", "01");
  EXPECT_EQ(d.w.Label5.text(), "2");
  d.look("Numeri", "90");
  EXPECT_EQ(d.w.Label5.text(), "2");
  EXPECT_EQ(d.w.SSTab1.index(), 0);
}

TEST(DetectionList, EndsAtTheWantedNumberOfCases) {
  Detection d(std::vector<WheelNumbers>(40, WheelNumbers{{"BA", {1, 2, 3, 4, 5}}}));
  d.w.ComboNC.pick(2);
  d.look("Numeri", "01");
  EXPECT_EQ(d.cases(), (Ints{40, 39, 38}));
  EXPECT_EQ(d.w.NumeroCasi, 3);
}

TEST(DetectionList, MoreThanFiftyCasesAreCutToTheMostRecentAndTheirNumberStays) {
  Detection d(std::vector<WheelNumbers>(80, WheelNumbers{{"BA", {1, 2, 3, 4, 5}}}));
  d.choose(d.w.ComboNC, "60");
  d.look("Numeri", "01");
  ASSERT_EQ(d.shell.shown.size(), 1u);
  EXPECT_EQ(d.shell.lastBox().text, "Non sono consentite più di 50 casistiche... quelle eccedenti saranno rimosse.");
  EXPECT_EQ(d.shell.lastBox().title, "Avviso");
  EXPECT_EQ(d.shell.lastBox().icon, Icon::Critical);
  EXPECT_EQ(d.w.FgEv.dataRows(), 50);
  EXPECT_EQ(caseDraw(d.w, 1), 80);
  EXPECT_EQ(caseDraw(d.w, 50), 31);
  EXPECT_EQ(d.w.NumeroCasi, 60);
  EXPECT_EQ(d.w.Label5.text(), "49");
}

TEST(DetectionList, FiftyCasesAreNotTalkedAbout) {
  Detection d(std::vector<WheelNumbers>(80, WheelNumbers{{"BA", {1, 2, 3, 4, 5}}}));
  d.w.ComboNC.pick(49);
  d.look("Numeri", "01");
  EXPECT_TRUE(d.shell.shown.empty());
  EXPECT_EQ(d.w.FgEv.dataRows(), 50);
}

TEST(DetectionList, AQuantityOfZeroOrNonsenseGivesOneCase) {
  Detection d(std::vector<WheelNumbers>(9, WheelNumbers{{"BA", {1, 2, 3, 4, 5}}}));
  for (const char* const typed : {"0", "tanti", "", "-1"}) {
    d.choose(d.w.ComboNC, typed);
    d.look("Numeri", "01");
    EXPECT_EQ(d.cases(), (Ints{9})) << typed;
  }
}

TEST(DetectionList, NumbersBeyondNinetyAreShownAndCountAsNone) {
  Detection d(onBari({{91, 99, 3, 4, 5}}));
  d.look("Numeri", "03-91-99");
  ASSERT_EQ(d.cases(), (Ints{1}));
  EXPECT_EQ(d.w.FgEv.text(1, 4), "91");
  EXPECT_EQ(d.green(1), (Ints{3}));
}

// ---- two elements

}  // namespace
}  // namespace trv5
