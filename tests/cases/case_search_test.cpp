#include "cases/case_search.h"

#include <gtest/gtest.h>

#include "support/workbench_world.h"

namespace trv5 {
namespace {

class CaseSearch : public testing::Test {
 protected:
  CaseSearch() { world.positions({1, 2, 3, 4, 5}); }
  void kind(const char* text) { world.choose(w.ComboFiltro, text); }

  WorkbenchWorld world{archiveOf(std::vector<WheelNumbers>(40, {{"BA", {1, 2, 3, 4, 5}}}))};
  Workbench& w = world.w;
};

TEST_F(CaseSearch, BringsTheListToTheFront) {
  w.SSTab1.set(1);
  world.press("Command44");
  EXPECT_EQ(w.SSTab1.index(), 0);
}

TEST_F(CaseSearch, WithoutAValueAsksForOneAndChangesNothingInTheList) {
  w.ComboPar.pick(5);
  kind("Ciclo");
  world.press("Command44");
  const Grid before = w.FgEv;
  ASSERT_TRUE(before.hasData());
  const int found = w.NumeroCasi;
  for (const char* const wanted : {"Numeri", "Distanza", "Differenza", "Somma"}) {
    world.shell.shown.clear();
    w.SSTab1.set(0);
    kind(wanted);
    world.press("Command44");
    ASSERT_EQ(world.shell.shown.size(), 1u) << wanted;
    EXPECT_EQ(world.shell.lastBox().text, "Attenzione: Selezionare almeno un valore");
    EXPECT_EQ(world.shell.lastBox().title, "Avviso");
    EXPECT_EQ(w.SSTab1.index(), 1) << "Selezioni";
    EXPECT_EQ(w.FgEv.grid(), before);
    EXPECT_EQ(w.NumeroCasi, found);
  }
}

TEST_F(CaseSearch, MoreThanOneValueIsRefusedForTheKindsOfPairsAndTheFieldEmptied) {
  for (const char* const wanted : {"Distanza", "Differenza", "Somma"}) {
    world.shell.shown.clear();
    w.SSTab1.set(0);
    kind(wanted);
    w.TxtNumeri.set("12-13");
    world.press("Command44");
    ASSERT_EQ(world.shell.shown.size(), 1u) << wanted;
    EXPECT_EQ(world.shell.lastBox().text, "Attenzione: per Distanza, Differenza e Somma, selezionare un solo valore");
    EXPECT_EQ(world.shell.lastBox().icon, Icon::Exclamation);
    EXPECT_EQ(w.TxtNumeri.text(), "");
    EXPECT_EQ(w.SSTab1.index(), 1);
  }
}

TEST_F(CaseSearch, TwoCharactersAreOneValueWhateverTheirBytes) {
  kind("Somma");
  w.TxtNumeri.set("5à");
  world.press("Command44");
  EXPECT_TRUE(world.shell.shown.empty());
  EXPECT_EQ(w.FgEv.dataRows(), 10) << "2 and 3 make 5";
}

TEST_F(CaseSearch, ReadsTheSelectionsIntoTheState) {
  kind("Numeri");
  w.TxtNumeri.set("07-33-90");
  w.ComboR1.pick(6);
  w.ComboRetro.pick(3);
  w.ComboQNR1.pick(1);
  w.ComboQNR2.pick(2);
  w.ComboQNu.pick(4);
  w.ComboPar.pick(8);
  w.ComboNC.pick(24);
  w.ComboColpi.pick(6);
  w.ComboEle.pick(1);
  w.FgRR.clickCell(0, 5);
  world.press("Command44");
  EXPECT_EQ(w.TipoRilevazione, "Numeri");
  EXPECT_EQ(w.RuotaRilevazione, 6);
  EXPECT_EQ(w.Retro, 3);
  EXPECT_EQ(w.QNR1, 2);
  EXPECT_EQ(w.QNR2, 3);
  EXPECT_EQ(w.QuantiNumeri, 5);
  EXPECT_EQ(w.ValoreMensile, 8);
  EXPECT_EQ(w.MaxCasi, 25);
  EXPECT_EQ(w.Colpi, 7);
  EXPECT_EQ(w.Elenco, 100);
  EXPECT_EQ(w.RuoteRilevazione, 1u << 5);
  EXPECT_EQ(w.TestoNumeri, "07-33-90");
  EXPECT_TRUE(w.NumeriScelti[7] && w.NumeriScelti[33] && w.NumeriScelti[90]);
  EXPECT_EQ(w.DecineScelte, (std::array<bool, 10>{true, false, false, true}));
  EXPECT_EQ(w.CadenzeScelte, (std::array<bool, 10>{true, false, false, true, false, false, false, true}));
  EXPECT_EQ(w.FigureScelte, (std::array<bool, 10>{false, false, false, false, false, false, true, true, false, true}));
}

TEST_F(CaseSearch, MensileKeepsTheNumbersOfTheRunBeforeButNotTheirProperties) {
  kind("Numeri");
  w.TxtNumeri.set("07");
  world.press("Command44");
  kind("Mensile");
  w.TxtNumeri.set("08");
  world.press("Command44");
  EXPECT_TRUE(w.NumeriScelti[7]);
  EXPECT_FALSE(w.NumeriScelti[8]);
  EXPECT_EQ(w.DecineScelte, (std::array<bool, 10>{}));
  EXPECT_EQ(w.CadenzeScelte, (std::array<bool, 10>{}));
  EXPECT_EQ(w.FigureScelte, (std::array<bool, 10>{}));
}

TEST_F(CaseSearch, AStopForWantOfAValueHasReadTheWheelsOfPlayButNotTheColpi) {
  w.Label1[0].click();
  w.ComboColpi.pick(1);
  kind("Numeri");
  world.press("Command44");
  EXPECT_EQ(w.RuoteGioco, 0u);
  EXPECT_EQ(w.Colpi, 10);
}

TEST_F(CaseSearch, ATypedNonsenseInTheEditableListsIsNoCrash) {
  kind("Numeri");
  w.TxtNumeri.set("01");
  for (const char* const typed : {"", "abc", "-5", "99999999999999", "1e3", "  7", "3,5", "è", "\t"}) {
    world.choose(w.ComboNC, typed);
    world.choose(w.ComboColpi, typed);
    world.choose(w.ComboEle, typed);
    world.choose(w.Combo1R_1N, typed);
    world.press("Command44");
    EXPECT_GE(w.FgEv.dataRows(), 1) << typed;
    EXPECT_LE(w.FgEv.dataRows(), 50) << typed;
    EXPECT_GE(w.Colpi, 0) << typed;
  }
}

TEST_F(CaseSearch, NonsenseInTheNumbersFindsNothing) {
  kind("Numeri");
  for (const char* const typed : {"x", "--", "00", "99", "-7-", "è", "      "}) {
    w.TxtNumeri.set(typed);
    world.press("Command44");
    EXPECT_FALSE(w.FgEv.hasData()) << typed;
  }
}

TEST_F(CaseSearch, TakesTheMarksOfVerificationAwayWithTheList) {
  kind("Numeri");
  w.TxtNumeri.set("01");
  world.press("Command44");
  w.FgEv.setBack(1, 17, VerdeMedio);
  w.FgEv.setText(1, 17, "1");
  world.press("Command44");
  EXPECT_EQ(w.FgEv.at(1, 17), Cell{});
}

TEST(CaseSearchOnOneDraw, FindsWhatTheDrawShows) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}}));
  world.positions({1, 2, 3, 4, 5});
  world.choose(world.w.ComboFiltro, "Numeri");
  world.w.TxtNumeri.set("03");
  world.press("Command44");
  EXPECT_EQ(world.w.FgEv.dataRows(), 1);
  EXPECT_EQ(world.w.Label5.text(), "0");
}

}  // namespace
}  // namespace trv5
