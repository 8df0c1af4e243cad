#include "cases/selections.h"

#include <gtest/gtest.h>

#include "support/workbench_world.h"

namespace trv5 {
namespace {

std::vector<int> selected(const Grid& pad) {
  std::vector<int> numbers;
  for (int n = 1; n <= 90; ++n)
    if (pad.back((n - 1) / 10, (n - 1) % 10) == Ciano) numbers.push_back(n);
  return numbers;
}

int greens(const Grid& wheels) {
  int found = 0;
  for (int wheel = 0; wheel < kWheels; ++wheel) found += wheels.back(0, wheel) == Verde;
  return found;
}

class Selections : public testing::Test {
 protected:
  void click(int number) { w.FgNu.clickCell((number - 1) / 10, (number - 1) % 10); }

  // Draws every fourth day from 07/01/1939: the tenth is the second of February.
  WorkbenchWorld world{archiveOf(std::vector<WheelNumbers>(40, {{"BA", {1, 2, 3, 4, 5}}}))};
  Workbench& w = world.w;
};

TEST_F(Selections, AClickOnANumberTogglesIt) {
  click(7);
  click(90);
  EXPECT_EQ(selected(w.FgNu), (std::vector<int>{7, 90}));
  click(7);
  EXPECT_EQ(selected(w.FgNu), (std::vector<int>{90}));
}

TEST_F(Selections, OkWritesTheNumbersInReadingOrderAndChoosesTheKindNumeri) {
  for (const int number : {45, 7, 90}) click(number);
  world.press("Command6");
  EXPECT_EQ(w.TxtNumeri.text(), "07-45-90");
  EXPECT_EQ(w.ComboFiltro.text(), "Numeri");
}

TEST_F(Selections, OkWithNothingSelectedEmptiesTheTextAndStillChoosesNumeri) {
  w.TxtNumeri.set("12-13");
  world.press("Command6");
  EXPECT_EQ(w.TxtNumeri.text(), "");
  EXPECT_EQ(w.ComboFiltro.index(), 1);
}

TEST_F(Selections, OkRepairsTheTextsOfThePad) {
  w.FgNu.setText(0, 4, "x");
  w.FgNu.setText(8, 9, "");
  world.press("Command6");
  EXPECT_EQ(w.FgNu.text(0, 4), "05");
  EXPECT_EQ(w.FgNu.text(8, 9), "90");
}

TEST_F(Selections, DecadeNineSelectsNothing) {
  click(33);
  w.ComboValF.pick(9);
  world.press("Command24");
  EXPECT_TRUE(selected(w.FgNu).empty());
}

TEST_F(Selections, DecadeZeroHoldsNinetyToo) {
  w.ComboValF.pick(0);
  world.press("Command24");
  EXPECT_EQ(selected(w.FgNu), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 90}));
}

TEST_F(Selections, CadenceZeroSelectsTheTens) {
  w.ComboValF.pick(0);
  world.press("Command25");
  EXPECT_EQ(selected(w.FgNu), (std::vector<int>{10, 20, 30, 40, 50, 60, 70, 80, 90}));
}

TEST_F(Selections, FigureZeroSelectsNothing) {
  click(33);
  w.ComboValF.pick(0);
  world.press("Command26");
  EXPECT_TRUE(selected(w.FgNu).empty());
}

TEST_F(Selections, FigureNineSelectsTheMultiplesOfNine) {
  w.ComboValF.pick(9);
  world.press("Command26");
  EXPECT_EQ(selected(w.FgNu), (std::vector<int>{9, 18, 27, 36, 45, 54, 63, 72, 81, 90}));
}

TEST_F(Selections, APropertyTakesThePlaceOfTheFormerSelection) {
  w.ComboValF.pick(1);
  world.press("Command24");
  w.ComboValF.pick(2);
  world.press("Command25");
  EXPECT_EQ(selected(w.FgNu), (std::vector<int>{2, 12, 22, 32, 42, 52, 62, 72, 82}));
}

TEST_F(Selections, ResetWhitensThePadAndLeavesTheText) {
  click(12);
  w.TxtNumeri.set("12");
  world.press("Command8");
  EXPECT_TRUE(selected(w.FgNu).empty());
  EXPECT_EQ(w.TxtNumeri.text(), "12");
}

TEST_F(Selections, AClickOnAWheelOfPlayTogglesItAndRebuildsTheWheels) {
  w.FgRG.clickCell(0, 10);
  EXPECT_EQ(w.RuoteGioco, 1u | 1u << 10);
  w.FgRG.clickCell(0, 0);
  EXPECT_EQ(w.FgRG.back(0, 0), kWhite);
  EXPECT_EQ(w.RuoteGioco, 1u << 10);
}

TEST_F(Selections, AClickOnAWheelOfDetectionTouchesNoStateUntilTheDetectionRuns) {
  const WheelSet before = w.RuoteRilevazione;
  w.FgRR.clickCell(0, 3);
  EXPECT_EQ(w.FgRR.back(0, 3), Verde);
  EXPECT_EQ(w.RuoteRilevazione, before);
  EXPECT_EQ(w.RuoteGioco, 1u);
  world.press("Command44");
  EXPECT_EQ(w.RuoteRilevazione, 1u << 3);
  w.FgRR.clickCell(0, 3);
  EXPECT_EQ(w.FgRR.back(0, 3), kWhite);
  EXPECT_EQ(w.RuoteRilevazione, 1u << 3);
}

TEST_F(Selections, AClickOnAPositionTogglesItAndRebuildsThePositions) {
  w.LblPN[2].click();
  w.LblPN[5].click();
  EXPECT_EQ(w.LblPN[2].back(), Verde);
  EXPECT_EQ(w.PosizioniScelte, (PositionFlags{false, false, true, false, false, true}));
  w.LblPN[2].click();
  EXPECT_EQ(w.LblPN[2].back().value_or(kWhite), kWhite);
  EXPECT_EQ(w.PosizioniScelte, (PositionFlags{false, false, false, false, false, true}));
}

TEST_F(Selections, GreenSelectsAllWheelsOfPlay) {
  w.Label17.click();
  EXPECT_EQ(greens(w.FgRG), 11);
  EXPECT_EQ(w.RuoteGioco, 0x7FFu);
  EXPECT_EQ(greens(w.FgRR), 0);
}

TEST_F(Selections, WhiteDeselectsAllWheelsOfPlayThoughItsCaptionSaysSelect) {
  w.Label17.click();
  w.Label18.click();
  EXPECT_EQ(w.Label18.text(), "Seleziona tutti");
  EXPECT_NE(w.Label18.toolTip().find("Deseleziona"), std::string::npos);
  EXPECT_EQ(greens(w.FgRG), 0);
  EXPECT_EQ(w.RuoteGioco, 0u);
}

TEST_F(Selections, TheOneCaptionOfItsArrayDeselectsTheWheelsOfPlayWithoutRebuildingThem) {
  EXPECT_EQ(w.find("Label1_1"), nullptr);
  w.Label17.click();
  w.Label1[0].click();
  EXPECT_EQ(greens(w.FgRG), 0);
  EXPECT_EQ(w.RuoteGioco, 0x7FFu) << "kept until the next detection";
  world.press("Command44");
  EXPECT_EQ(w.RuoteGioco, 0u);
}

TEST_F(Selections, GreenAndWhiteSelectAndDeselectAllWheelsOfDetection) {
  w.Label4.click();
  EXPECT_EQ(greens(w.FgRR), 11);
  EXPECT_EQ(greens(w.FgRG), 1);
  w.Label19.click();
  EXPECT_EQ(greens(w.FgRR), 0);
  EXPECT_NE(w.Label19.toolTip().find("Deseleziona"), std::string::npos);
}

TEST_F(Selections, SetsTheMonthlyProgressiveOfTheReferenceDraw) {
  w.hs1.set(10);
  w.ComboPar.pick(30);
  world.press("Command14");
  EXPECT_EQ(w.archive.ProgMese(10), 3);
  EXPECT_EQ(w.ComboPar.index(), 3);
}

TEST_F(Selections, MovingTheReferenceDrawTellsItsIndexDateAndProgressive) {
  w.hs1.set(10);
  EXPECT_EQ(w.EstrazioneRiferimento, 10);
  EXPECT_EQ(w.LabelRifE.text(), "10 12/02/1939  M-3");
}

TEST_F(Selections, ADoubleClickEmptiesTheNumbersAndTheDenomination) {
  w.TxtNumeri.set("05-06");
  w.Txt_Denominazione.set("metodo");
  w.TxtNumeri.doubleClick();
  EXPECT_EQ(w.TxtNumeri.text(), "");
  EXPECT_EQ(w.Txt_Denominazione.text(), "metodo");
  w.Txt_Denominazione.doubleClick();
  EXPECT_EQ(w.Txt_Denominazione.text(), "");
}

TEST_F(Selections, TheSorteFollowsItsList) {
  w.ComboSorte.pick(3);
  EXPECT_EQ(w.Sorte, 4);
}

TEST_F(Selections, PickingTheSorteThatStandsThereSetsItAgain) {
  w.Sorte = 5;
  w.ComboSorte.pick(0);
  EXPECT_EQ(w.Sorte, 1);
}

// "1 green, 2 yellow off, ..": the buttons that add a forecast.
std::string addButtons(const Workbench& w) {
  std::string text;
  for (const auto& [sorte, button] : w.Cmd_LaSorte) {
    text += (text.empty() ? "" : ", ") + std::to_string(sorte);
    text += button->back() == Verde ? " green" : button->back() == Giallo ? " yellow" : " other";
    if (!button->enabled()) text += " off";
  }
  return text;
}

TEST_F(Selections, TheTabsOfTheTablesEnableTheirAddButtonAlone) {
  w.SSTab3.set(1);
  EXPECT_EQ(addButtons(w), "1 yellow off, 2 green, 3 yellow off, 6 yellow off");
  w.SSTab3.set(2);
  EXPECT_EQ(addButtons(w), "1 yellow off, 2 yellow off, 3 green, 6 yellow off");
  w.SSTab3.set(4);
  EXPECT_EQ(addButtons(w), "1 yellow off, 2 yellow off, 3 yellow off, 6 green");
  w.SSTab3.set(0);
  EXPECT_EQ(addButtons(w), "1 green, 2 yellow off, 3 yellow off, 6 yellow off");
}

TEST_F(Selections, TheOtherTabsTurnAllAddButtonsYellowAndChangeNoEnabling) {
  const std::pair<int, const char*> tables[] = {{0, "1 yellow, 2 yellow off, 3 yellow off, 6 yellow off"},
                                                {1, "1 yellow off, 2 yellow, 3 yellow off, 6 yellow off"},
                                                {2, "1 yellow off, 2 yellow off, 3 yellow, 6 yellow off"},
                                                {4, "1 yellow off, 2 yellow off, 3 yellow off, 6 yellow"}};
  for (const auto& [table, wanted] : tables) {
    for (const int other : {3, 5, 6, 7, 8, 9}) {
      w.SSTab3.set(table);
      w.SSTab3.set(other);
      EXPECT_EQ(addButtons(w), wanted) << "from " << table << " to " << other;
    }
  }
}

TEST_F(Selections, NewConfigurationEmptiesTheResults) {
  world.setCases({30, 20, 10});
  for (GridControl* const grid : {&w.FgF, &w.Fg11, &w.Fg22, &w.Fg33, &w.Fg00, &w.FgZ0, &w.FgZ1, &w.FgZ2, &w.FgZ3,
                                  &w.FgZZ, &w.FgRit, &w.Fg15, &w.FgGioco, &w.FgIC})
    grid->appendRow();
  w.ComboFix.pick(33);
  w.Ch_analisi2ruote.set(true);
  w.Label5.setText("20");
  for (GridControl* const grid : {&w.FgSSS, &w.Fg_Stat, &w.Fg_Graf})
    for (int row = 0; row < grid->rows(); ++row) grid->setText(row, 1, "7");
  w.Fg_Graf.setBar(0, 2, {40, Verde});
  world.press("Command41");
  for (const GridControl* const grid : {&w.FgF, &w.Fg11, &w.Fg22, &w.Fg33, &w.Fg00, &w.FgZ0, &w.FgZ1, &w.FgZ2, &w.FgZ3,
                                        &w.FgZZ, &w.FgRit, &w.FgEv, &w.Fg15, &w.FgGioco, &w.FgIC})
    EXPECT_FALSE(grid->hasData()) << grid->name();
  EXPECT_EQ(w.ComboFix.index(), 0);
  EXPECT_FALSE(w.Ch_analisi2ruote.checked());
  EXPECT_EQ(w.Label5.text(), "");
  for (const GridControl* const grid : {&w.FgSSS, &w.Fg_Stat, &w.Fg_Graf})
    for (int row = 0; row < grid->rows(); ++row) EXPECT_EQ(grid->text(row, 1), "") << grid->name();
  EXPECT_TRUE(w.Fg_Graf.bars().empty());
}

TEST_F(Selections, NewConfigurationLeavesListsSelectionsAndCaptions) {
  click(12);
  w.TxtNumeri.set("12");
  w.ComboFiltro.pick(1);
  w.ComboNC.pick(40);
  w.ComboColpi.pick(4);
  w.ComboR1.pick(6);
  w.ComboPar.pick(9);
  w.Label17.click();
  w.Label4.click();
  w.LblPN[3].click();
  w.Ch_ISO.set(true);
  w.FgZ100.appendRow();
  w.Fg_Stat.setBack(1, 1, Arancia);
  w.hs1.set(20);
  world.press("Command41");
  EXPECT_EQ(selected(w.FgNu), (std::vector<int>{12}));
  EXPECT_EQ(w.TxtNumeri.text(), "12");
  EXPECT_EQ(w.ComboFiltro.index(), 1);
  EXPECT_EQ(w.ComboNC.text(), "41");
  EXPECT_EQ(w.ComboColpi.text(), "5");
  EXPECT_EQ(w.ComboR1.index(), 6);
  EXPECT_EQ(w.ComboPar.index(), 9);
  EXPECT_EQ(greens(w.FgRG), 11);
  EXPECT_EQ(greens(w.FgRR), 11);
  EXPECT_EQ(w.RuoteGioco, 0x7FFu);
  EXPECT_EQ(w.LblPN[3].back(), Verde);
  EXPECT_TRUE(w.Ch_ISO.checked());
  EXPECT_TRUE(w.FgZ100.hasData());
  EXPECT_EQ(w.Fg_Stat.back(1, 1), Arancia);
  EXPECT_EQ(w.Fg_Stat.text(0, 0), "Sez");
  EXPECT_EQ(w.Fg_Graf.text(0, 0), "Casi Coperti");
  EXPECT_EQ(w.EstrazioneRiferimento, 20);
}

}  // namespace
}  // namespace trv5
