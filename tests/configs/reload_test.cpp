#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "configs/configuration_world.h"

namespace trv5 {
namespace {

using testing::ElementsAre;

class Reload : public testing::Test {
 protected:
  ConfigurationWorld world;
  Workbench& w = world.w();

  // Twenty cases on Bari, "U" of the month.
  void someMethod() {
    w.ComboFiltro.pick(0);
    w.ComboPar.pick(1);
    w.ComboNC.pick(19);
    w.FgRG.clickCell(0, 1);
    WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}, .fix = 7});
    WorkbenchWorld::addFormula(w.Fg33, {.elements = {{1, 2}}, .fix = 30});
  }
};

TEST_F(Reload, OfAMethodWithoutFormulasListsTheCasesAndVerifiesNothing) {
  w.ComboPar.pick(1);
  world.save("vuota");
  w.ComboPar.pick(3);
  world.reload("vuota");
  EXPECT_EQ(w.ComboPar.index(), 1);
  EXPECT_GT(w.FgEv.rows(), 1);
  EXPECT_EQ(w.Fg_Stat.text(0, 1), "");
}

TEST_F(Reload, RunsTheWholeMethodAgain) {
  someMethod();
  world.press("Command44");
  world.press("Command29");
  world.press("Command48");
  const Grid cases = w.FgEv, hits = w.FgZ1, terni = w.FgZ3, table = w.Fg11;
  world.save("intero");
  world.press("Command41");
  w.ComboPar.pick(5);
  w.ComboNC.pick(2);
  w.FgRG.clickCell(0, 7);
  world.reload("intero");
  EXPECT_EQ(w.Txt_Denominazione.text(), "intero");
  EXPECT_EQ(w.FgEv, cases);
  EXPECT_EQ(w.FgZ1, hits);
  EXPECT_EQ(w.FgZ3, terni);
  EXPECT_EQ(w.Fg11.text(1, 11), table.text(1, 11));
  EXPECT_EQ(w.Fg22.rows(), 1);
  EXPECT_EQ(w.Fg_Stat.text(0, 1), "3N") << "the statistics are those of the table verified last";
}

TEST_F(Reload, ByEnterOrADoubleClickOnTheHeadingDoesNothing) {
  world.save("ferma");
  world.press("Cmd_Elenco");
  w.ComboPar.pick(5);
  w.FgPir1.doubleClickCell(0, 2);
  EXPECT_EQ(w.ComboPar.index(), 5);
}

TEST_F(Reload, LightsPositionsThatHoldAnythingButZeroAndOnlyWheelsThatHoldOne) {
  world.save("segni");
  world.change(
      "UPDATE Elenco_Memo SET Posizioni = '0x010', RuoteGioco = '1x000000001', Ruoterilevazione = 'xxxxxxxxxx1'");
  world.reload("segni");
  std::string positions, game, detection;
  for (const auto& [position, label] : w.LblPN) positions += label->back() == Verde ? '1' : '0';
  for (int wheel = 0; wheel < kWheels; ++wheel) {
    game += w.FgRG.back(0, wheel) == Verde ? '1' : '0';
    detection += w.FgRR.back(0, wheel) == Verde ? '1' : '0';
  }
  EXPECT_EQ(positions, "01010");
  EXPECT_EQ(game, "10000000001");
  EXPECT_EQ(detection, "00000000001");
}

TEST_F(Reload, LeavesAnEmptyRowWhereTheRowsHaveAGap) {
  for (int i = 0; i < 3; ++i) WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}, .fix = 7 + i});
  world.save("buco");
  world.change("DELETE FROM Elenco_Dett WHERE Riga = 2");
  world.reload("buco");
  ASSERT_EQ(w.Fg11.rows(), 4);
  EXPECT_EQ(w.Fg11.text(1, 11), "7");
  EXPECT_EQ(w.Fg11.text(2, 11), "");
  EXPECT_EQ(w.Fg11.text(3, 11), "9");
}

TEST_F(Reload, SkipsTheRowsOfTablesFourAndFive) {
  WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}, .fix = 7});
  world.save("tabelle");
  world.change(
      "INSERT INTO Elenco_Dett (Rif_Memo, Grid, Riga, Fix) SELECT Id_Config, 4, 1, '88' FROM Elenco_Memo; INSERT INTO "
      "Elenco_Dett (Rif_Memo, Grid, Riga, Fix) SELECT Id_Config, 5, 9, '88' FROM Elenco_Memo");
  world.reload("tabelle");
  EXPECT_NE(world.shell.lastBox().text, kNotReloaded);
  EXPECT_EQ(w.FgDett.rows(), 4);
  for (const Table table : {Table::Ambate, Table::Ambi, Table::Terni, Table::Lunghetta})
    EXPECT_EQ(w.formulas(table).rows(), table == Table::Ambate ? 2 : 1);
}

TEST_F(Reload, OnALongerArchiveKeepsTheNumberOfTheDraw) {
  someMethod();
  w.hs1.set(60);
  world.save("cresciuto");
  auto rows = ConfigurationWorld::someRows(60);
  rows.push_back(drawOf("30/12/1950", {{"BA", {1, 2, 3, 4, 5}}}));
  world.makeArchive(rows);
  world.restart();
  world.reload("cresciuto");
  EXPECT_EQ(world.w().hs1.value(), 60);
  EXPECT_EQ(world.w().hs1.maximum(), 61);
}

TEST_F(Reload, OfADrawBeyondAShortenedArchiveStopsThere) {
  w.ComboPar.pick(4);
  world.save("tagliato");
  world.makeArchive(ConfigurationWorld::someRows(40));
  world.restart();
  world.w().ComboPar.pick(2);
  world.reload("tagliato");
  EXPECT_EQ(world.shell.lastBox().text, kNotReloaded);
  EXPECT_EQ(world.shell.lastBox().title, "Anomalia nel database");
  EXPECT_EQ(world.w().Txt_Denominazione.text(), "tagliato");
  EXPECT_EQ(world.w().hs1.value(), 40);
  EXPECT_EQ(world.w().ComboPar.index(), 2) << "the fields behind it aren't reached";
}

TEST_F(Reload, OfAListPositionThatNoItemHasStopsThere) {
  someMethod();
  world.save("fuori");
  for (const char* const change : {"Mensile = 99", "RuotaP = -1", "Sorte = 5", "NumCasi = -2", "Qn = NULL", "DDS = 2",
                                   "Fg1 = 0", "fG3 = 2000000"}) {
    world.change(
        "UPDATE Elenco_Memo SET Mensile = 1, RuotaP = 0, Sorte = 0, NumCasi = 9, Qn = 0, DDS = 0, Fg1 = 2, "
        "fG3 = 2");
    world.change(std::string("UPDATE Elenco_Memo SET ") + change);
    const std::size_t boxes = world.shell.shown.size();
    world.reload("fuori");
    ASSERT_EQ(world.shell.shown.size(), boxes + 1) << change;
    EXPECT_EQ(world.shell.lastBox().text, kNotReloaded) << change;
  }
}

TEST_F(Reload, OfARowOutsideItsTableStopsThere) {
  someMethod();
  world.save("righe");
  world.change("UPDATE Elenco_Dett SET Riga = 2 WHERE Grid = 1");
  world.reload("righe");
  EXPECT_EQ(world.shell.lastBox().text, kNotReloaded);
  EXPECT_EQ(w.FgEv.rows(), 1) << "the cases aren't reached";
}

TEST_F(Reload, OfAConfigurationThatAnotherProgramDeletedLeavesTheResetWorkbench) {
  someMethod();
  world.save("sparita");
  world.press("Cmd_Elenco");
  world.change("DELETE FROM Elenco_Memo");
  w.FgPir1.doubleClickCell(1, 1);
  EXPECT_EQ(world.shell.lastBox().text, kNotReloaded);
  EXPECT_EQ(w.Fg11.rows(), 1);
  EXPECT_EQ(w.ComboNC.index(), 19) << "the reset leaves the lists";
}

TEST_F(Reload, BringsATypedListValueBackAsNoText) {
  WorkbenchWorld::choose(w.ComboColpi, "60");
  world.save("digitato");
  world.reload("digitato");
  EXPECT_EQ(w.ComboColpi.index(), -1);
  EXPECT_EQ(w.ComboColpi.text(), "");
}

TEST_F(Reload, SetsTheSorteOnlyWhereItsListChanges) {
  w.ComboSorte.pick(2);
  world.save("sorte");
  w.Sorte = 5;
  world.reload("sorte");
  EXPECT_EQ(w.Sorte, 5) << "the list stood there already";
  w.ComboSorte.pick(0);
  world.reload("sorte");
  EXPECT_EQ(w.Sorte, 3);
}

TEST_F(Reload, LeavesTheListOfConfigurationsAndItsRow) {
  world.save("a");
  world.save("b");
  world.press("Cmd_Elenco");
  w.FgPir1.clickCell(2, 1);
  w.FgPir1.doubleClickCell(2, 1);
  EXPECT_EQ(w.FgPir1.rows(), 3);
  EXPECT_EQ(w.FgPir1.current(), 2);
}

TEST_F(Reload, LeavesTheColumnOfTheTableEmptyUntilItIsVerified) {
  someMethod();
  w.ComboFiltro.pick(1);
  w.TxtNumeri.set("");  // no case, and so no verification that lists anything
  world.save("colonna");
  world.reload("colonna");
  EXPECT_EQ(w.FgEv.rows(), 1);
  EXPECT_EQ(w.Fg33.text(1, 21), "");
}

TEST_F(Reload, VerifiesAmbateAmbiTerniLunghettaInThisOrder) {
  std::vector<std::string> order;
  for (const char* name : {"Command44", "Command51", "Command48", "Command34", "Command29"})
    w.button(name).onEvent([&order, name] { order.emplace_back(name); });
  for (const Table table : {Table::Lunghetta, Table::Terni, Table::Ambi, Table::Ambate})
    WorkbenchWorld::addFormula(w.formulas(table), {.elements = {{0, 1}}, .fix = 7});
  world.save("ordine");
  world.reload("ordine");
  EXPECT_THAT(order, ElementsAre("Command44", "Command29", "Command34", "Command48", "Command51"));
}

}  // namespace
}  // namespace trv5
