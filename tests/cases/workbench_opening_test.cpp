#include <gtest/gtest.h>

#include <set>

#include "cases/selections.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

std::vector<std::string> items(int from, int to) {
  std::vector<std::string> texts;
  for (int n = from; n <= to; ++n) texts.push_back(std::to_string(n));
  return texts;
}

std::vector<std::string> after(std::string first, std::vector<std::string> rest) {
  rest.insert(rest.begin(), std::move(first));
  return rest;
}

// Two draws of January and one of February, the first of its month.
Archive monthBegun() {
  return archiveOfRows({drawOf("24/01/1939", {{"BA", {1, 2, 3, 4, 5}}}), drawOf("31/01/1939", {}),
                        drawOf("07/02/1939", {{"BA", {6, 7, 8, 9, 10}}})});
}

class WorkbenchOpening : public testing::Test {
 protected:
  WorkbenchWorld world{monthBegun()};
  Workbench& w = world.w;
};

TEST_F(WorkbenchOpening, FillsEveryListWithItsItems) {
  EXPECT_EQ(w.ComboFiltro.items(),
            (std::vector<std::string>{"Mensile", "Numeri", "Distanza", "Differenza", "Somma", "Ciclo", "Num Pari"}));
  EXPECT_EQ(w.ComboPar.items(), after("U", items(1, 31)));
  EXPECT_EQ(w.ComboR1.items(),
            (std::vector<std::string>{"BA", "CA", "FI", "GE", "MI", "NA", "PA", "RO", "TO", "VE", "NZ"}));
  EXPECT_EQ(w.ComboNC.items(), items(1, 50));
  EXPECT_EQ(w.ComboQNu.items(), items(1, 5));
  EXPECT_EQ(w.ComboColpi.items(), items(1, 20));
  EXPECT_EQ(w.ComboEle.items(), (std::vector<std::string>{"50", "100"}));
  EXPECT_EQ(w.ComboRetro.items(), items(0, 10));
  EXPECT_EQ(w.ComboQNR1.items(), items(1, 5));
  EXPECT_EQ(w.ComboQNR2.items(), items(1, 5));
  EXPECT_EQ(w.ComboValF.items(), items(0, 9));
  EXPECT_EQ(w.ComboSorte.items(), items(1, 5));
  EXPECT_EQ(w.ComboDelta.items(), items(0, 5));
  EXPECT_EQ(w.ComboFix.items(), after("", items(1, 90)));
  EXPECT_EQ(w.Combo1R_1N.items(),
            (std::vector<std::string>{"", "C91", "CAD", "DEC", "DIAM", "DIDE", "D x U", "FIG", "VERT"}));
  EXPECT_EQ(w.Combo1R_2N.items(),
            (std::vector<std::string>{"", "N1 + N2", "N1 - N2", "N2 - N1", "N1 X N2", "D1 e U2", "D2 e U1"}));
}

TEST_F(WorkbenchOpening, SelectsEveryDefault) {
  EXPECT_EQ(w.ComboFiltro.text(), "Mensile");
  EXPECT_EQ(w.ComboR1.text(), "BA");
  EXPECT_EQ(w.ComboNC.text(), "10");
  EXPECT_EQ(w.ComboQNu.text(), "1");
  EXPECT_EQ(w.ComboColpi.text(), "10");
  EXPECT_EQ(w.ComboEle.text(), "50");
  EXPECT_EQ(w.ComboRetro.text(), "0");
  EXPECT_EQ(w.ComboQNR1.text(), "1");
  EXPECT_EQ(w.ComboQNR2.text(), "1");
  EXPECT_EQ(w.ComboValF.text(), "0");
  EXPECT_EQ(w.ComboSorte.text(), "1");
  EXPECT_EQ(w.ComboDelta.text(), "0");
  for (const Combo* const list : {&w.ComboFix, &w.Combo1R_1N, &w.Combo1R_2N}) {
    EXPECT_EQ(list->index(), 0) << list->name();
    EXPECT_EQ(list->text(), "") << list->name();
  }
  for (const Check* const check : {&w.Ch_ultima, &w.Ch_analisi2ruote, &w.ChDDS, &w.Ch_ISO, &w.ChFix1R, &w.Ch_Scoperti,
                                   &w.ChVerifica, &w.Check3, &w.ChA, &w.ChB, &w.ChC, &w.Ch1esito})
    EXPECT_FALSE(check->checked()) << check->name();
  EXPECT_EQ(w.TxtNumeri.text(), "");
}

TEST_F(WorkbenchOpening, OnlyFourListsTakeATypedText) {
  std::set<std::string> editable;
  for (const Control* const control : w.controls())
    if (const auto* const list = dynamic_cast<const Combo*>(control); list != nullptr && list->editable())
      editable.insert(list->name());
  EXPECT_EQ(editable, (std::set<std::string>{"ComboNC", "ComboColpi", "ComboEle", "Combo1R_1N"}));
}

TEST_F(WorkbenchOpening, AnArchiveThatEndsOnTheFirstDrawOfItsMonthSelectsItemOne) {
  EXPECT_EQ(w.ComboPar.index(), 1);
  EXPECT_EQ(w.ComboPar.text(), "1");
}

TEST_F(WorkbenchOpening, PaintsBariAsTheOnlyWheelOfPlay) {
  EXPECT_EQ(w.FgRG.rows(), 1);
  EXPECT_EQ(w.FgRG.columns(), 11);
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    EXPECT_EQ(w.FgRG.text(0, wheel), CodiciRuote[static_cast<std::size_t>(wheel)]);
    EXPECT_EQ(w.FgRR.text(0, wheel), CodiciRuote[static_cast<std::size_t>(wheel)]);
    EXPECT_EQ(w.FgRG.back(0, wheel), wheel == 0 ? Verde : kWhite);
    EXPECT_EQ(w.FgRR.back(0, wheel), kWhite);
  }
  EXPECT_EQ(w.RuoteGioco, 1u);
}

TEST_F(WorkbenchOpening, ShowsTheNinetyNumbersUnselected) {
  EXPECT_EQ(w.FgNu.rows(), 9);
  EXPECT_EQ(w.FgNu.columns(), 10);
  EXPECT_EQ(w.FgNu.headingRows(), 0);
  EXPECT_EQ(w.FgNu.text(0, 0), "01");
  EXPECT_EQ(w.FgNu.text(0, 9), "10");
  EXPECT_EQ(w.FgNu.text(8, 9), "90");
  for (int row = 0; row < 9; ++row)
    for (int column = 0; column < 10; ++column) EXPECT_EQ(w.FgNu.back(row, column), kWhite);
}

TEST_F(WorkbenchOpening, SelectsNoPosition) {
  for (const auto& [position, label] : w.LblPN) {
    EXPECT_EQ(label->text(), std::to_string(position));
    EXPECT_EQ(label->back().value_or(kWhite), kWhite);
  }
}

TEST_F(WorkbenchOpening, BringsAmbateToTheFrontWithItsButtonGreen) {
  EXPECT_EQ(w.SSTab3.index(), 0);
  EXPECT_TRUE(w.Cmd_LaSorte[1].enabled());
  EXPECT_EQ(w.Cmd_LaSorte[1].back(), Verde);
  for (const int other : {2, 3, 6}) {
    EXPECT_FALSE(w.Cmd_LaSorte[other].enabled());
    EXPECT_EQ(w.Cmd_LaSorte[other].back(), Giallo);
  }
}

TEST_F(WorkbenchOpening, HidesTheWorkingColumns) {
  EXPECT_EQ(w.FgF.hiddenColumns(), (std::set<int>{1, 4, 7, 14, 15, 16, 19, 20}));
  for (const Grid* const table : {&w.Fg00.grid(), &w.Fg11.grid(), &w.Fg22.grid(), &w.Fg33.grid()})
    EXPECT_EQ(table->hiddenColumns(), (std::set<int>{1, 4, 7, 14, 15, 16, 18, 19, 20, 21}));
  EXPECT_EQ(w.FgEv.hiddenColumns(), (std::set<int>{20, 21}));
  EXPECT_EQ(w.FgSSS.hiddenColumns(), (std::set<int>{3, 4}));
  for (const Grid* const hits :
       {&w.FgZ0.grid(), &w.FgZ1.grid(), &w.FgZ2.grid(), &w.FgZ3.grid(), &w.FgZZ.grid(), &w.FgZ100.grid()})
    EXPECT_EQ(hits->hiddenColumns(), (std::set<int>{4, 5, 6, 7, 8, 9, 10, 11, 12}));
  EXPECT_EQ(w.Fg15.hiddenColumns(), (std::set<int>{4, 5}));
  EXPECT_EQ(w.FgRagg.hiddenColumns(), (std::set<int>{2}));
}

TEST_F(WorkbenchOpening, AllowsThirtyFiveTriplesOfPositions) {
  int allowed = 0;
  for (const auto& plane : w.TerzineAmmesse)
    for (const auto& line : plane)
      for (const bool triple : line) allowed += triple;
  EXPECT_EQ(allowed, 35);
}

TEST_F(WorkbenchOpening, StandsOnTheLastDraw) {
  EXPECT_EQ(w.hs1.minimum(), 1);
  EXPECT_EQ(w.hs1.maximum(), 3);
  EXPECT_EQ(w.hs1.value(), 3);
  EXPECT_EQ(w.EstrazioneRiferimento, 3);
  EXPECT_EQ(w.LabelRifE.text(), "3 07/02/1939  M-1");
}

TEST_F(WorkbenchOpening, BeginsWithSelezioniAndAnEmptyCaseList) {
  EXPECT_EQ(w.SSTab1.index(), 1);
  EXPECT_FALSE(w.FgEv.hasData());
  EXPECT_EQ(w.FgEv.text(0, 2), "Data Estraz  ");
  EXPECT_EQ(w.FgEv.text(0, 22), "LU");
  EXPECT_EQ(w.FgEv.columns(), 23);
  EXPECT_EQ(w.Label5.text(), "");
}

TEST_F(WorkbenchOpening, SetsTheWidthsOfTheChart) {
  EXPECT_EQ(w.Fg_Graf.width(0), 1500);
  EXPECT_EQ(w.Fg_Graf.width(1), 800);
  EXPECT_EQ(w.Fg_Graf.width(2), 4000);
}

TEST_F(WorkbenchOpening, OffersTheSorteInTheOnlyEditableColumnOfTheCandidates) {
  ASSERT_NE(w.FgF.choices(20), nullptr);
  EXPECT_EQ(*w.FgF.choices(20), (std::vector<std::string>{"", "1", "2", "3", "4", "5"}));
  for (int column = 0; column < 20; ++column) EXPECT_EQ(w.FgF.choices(column), nullptr);
}

TEST_F(WorkbenchOpening, LeavesNoDeadButtonEnabled) {
  for (const Control* const control : w.controls()) {
    const auto* const button = dynamic_cast<const Button*>(control);
    if (button == nullptr || button->hasEvent()) continue;
    EXPECT_FALSE(button->enabled()) << button->name();
    EXPECT_NE(button->toolTip(), "") << button->name();
  }
}

TEST(WorkbenchOpeningOrder, RunsExtractTriplesFirstAndTheSavedConfigurationsLast) {
  const Archive archive = monthBegun();
  FakeShell shell;
  Workbench w(archive, shell);
  std::vector<std::string> run;
  w.hooks.extractTriples = [&] { run.push_back("triples " + std::to_string(w.ComboFiltro.items().size())); };
  w.hooks.listConfigurations = [&] { run.push_back("configurations " + w.LabelRifE.text()); };
  connectSelections(w);
  ApreBanco(w);
  EXPECT_EQ(run, (std::vector<std::string>{"triples 0", "configurations 3 07/02/1939  M-1"}));
}

TEST(WorkbenchOpeningOnOneDraw, RunsTheChangeOfTheReferenceThoughTheScrollBarCannotMove) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}}));
  EXPECT_EQ(world.w.EstrazioneRiferimento, 1);
  EXPECT_EQ(world.w.LabelRifE.text(), "1 07/01/1939  M-1");
  EXPECT_EQ(world.w.hs1.maximum(), 1);
  EXPECT_EQ(world.w.ComboPar.index(), 1);
}

TEST(ResetOfTheWorkbench, AsksForASituationAgain) {
  WorkbenchWorld world(archiveOf({{{"BA", {1, 2, 3, 4, 5}}}}));
  world.w.ComboPar.pick(31);
  world.press("Command44");
  EXPECT_EQ(world.w.FgEv.emptyText(), "Nessun caso per questa situazione: cambia il valore o le posizioni");
  world.press("Command41");
  EXPECT_EQ(world.w.FgEv.emptyText(), "Nessun caso: scegli una situazione e premi RICAVA ELENCO ESTRAZIONI");
}

}  // namespace
}  // namespace trv5
