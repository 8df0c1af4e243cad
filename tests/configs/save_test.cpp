#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "configs/configuration_world.h"

namespace trv5 {
namespace {

using testing::ElementsAre;

class Save : public testing::Test {
 protected:
  ConfigurationWorld world;
  Workbench& w = world.w();
  void addFormulas() {
    WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}, .fix = 7});
    WorkbenchWorld::addFormula(w.Fg22, {.elements = {{1, 2}}, .fix = 8});
    WorkbenchWorld::addFormula(w.Fg22, {.elements = {{1, 3}}, .fix = 9});
    WorkbenchWorld::addFormula(w.Fg00, {.elements = {{2, 4}}, .fix = 10});
  }
};

TEST_F(Save, WritesOneHeadAndARowForEachFormula) {
  addFormulas();
  EXPECT_TRUE(world.save("Bari"));
  EXPECT_EQ(world.shell.lastBox().text, kSaved);
  EXPECT_EQ(world.saved(), 1);
  EXPECT_EQ(world.inMain("SELECT group_concat(Grid || '.' || Riga || '.' || Fix, ' ') FROM Elenco_Dett"),
            "1.1.7 2.1.8 2.2.9 6.1.10");
}

TEST_F(Save, WithoutFormulasCountsTheHeadingsAndHasNoRows) {
  world.save("vuota");
  EXPECT_EQ(world.inMain("SELECT Fg0 || Fg1 || fG2 || fG3 FROM Elenco_Memo"), "1111");
  EXPECT_EQ(world.savedRows(), 0);
}

TEST_F(Save, CountsTheRowsOfEachTableWithTheHeading) {
  addFormulas();
  world.save("righe");
  EXPECT_EQ(world.inMain("SELECT Fg0 || Fg1 || fG2 || fG3 FROM Elenco_Memo"), "2231");
}

TEST_F(Save, UnderANameThatIsThereLeavesTheTablesAsTheyWere) {
  world.save("Roma");
  addFormulas();
  EXPECT_FALSE(world.save("Roma"));
  EXPECT_EQ(world.shell.lastBox().text, kNotSaved);
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
  EXPECT_EQ(world.saved(), 1);
  EXPECT_EQ(world.savedRows(), 0);
}

TEST_F(Save, TakesNoNameInOtherLettersCaseAccentsIncluded) {
  world.save("Città di Bari");
  for (const char* name : {"città di bari", "CITTÀ DI BARI"}) {
    EXPECT_FALSE(world.save(name)) << name;
    EXPECT_EQ(world.shell.lastBox().text, kNotSaved);
  }
  EXPECT_EQ(world.saved(), 1);
}

TEST_F(Save, TakesANameOfAHundredCharactersAndNotOfOneMore) {
  std::string name;
  for (int i = 0; i < 100; ++i) name += "è";
  EXPECT_TRUE(world.save(name));
  EXPECT_FALSE(world.save(name + "x"));
  EXPECT_EQ(world.shell.lastBox().text, kNotSaved);
  EXPECT_EQ(world.saved(), 1);
}

TEST_F(Save, TakesNoEmptyName) {
  EXPECT_FALSE(world.save(""));
  EXPECT_EQ(world.shell.lastBox().text, kNotSaved);
  EXPECT_EQ(world.saved(), 0);
}

TEST_F(Save, UnderTwoNamesGivesTwoRowsWithTheirOwnFormulas) {
  addFormulas();
  world.save("prima");
  w.Fg22.cutToHeading();
  world.save("seconda");
  EXPECT_EQ(world.inMain("SELECT group_concat(n) FROM (SELECT count(*) AS n FROM Elenco_Dett GROUP BY Rif_Memo)"),
            "4,2");
}

TEST_F(Save, LeavesTheListAsItIsUntilElenco) {
  world.save("nuova");
  EXPECT_EQ(w.FgPir1.rows(), 1);
  world.press("Cmd_Elenco");
  EXPECT_EQ(w.FgPir1.rows(), 2);
}

TEST_F(Save, NeverUsesAKeyAgain) {
  world.save("a");
  world.save("b");
  world.press("Cmd_Elenco");
  const std::string last = world.keyOf("b");
  world.change("PRAGMA foreign_keys = ON; DELETE FROM Elenco_Memo");
  world.save("c");
  world.press("Cmd_Elenco");
  EXPECT_GT(std::stoi(world.keyOf("c")), std::stoi(last));
}

TEST_F(Save, WorksWithKeysBeyondSixteenBitsAndEndsAtThirtyTwo) {
  world.change("INSERT INTO sqlite_sequence (name, seq) VALUES ('Elenco_Memo', 2147483646)");
  EXPECT_TRUE(world.save("ultima"));
  EXPECT_FALSE(world.save("una di troppo"));
  EXPECT_EQ(world.inMain("SELECT max(Id_Config) FROM Elenco_Memo"), "2147483647");
}

TEST_F(Save, KeepsATypedListValueAsNoItem) {
  WorkbenchWorld::choose(w.ComboColpi, "60");
  world.save("digitato");
  EXPECT_EQ(world.inMain("SELECT Colpi FROM Elenco_Memo"), "-1");
}

TEST_F(Save, WritesChosenCellsAsFullStrings) {
  w.LblPN[2].click();
  w.LblPN[5].click();
  w.FgRG.clickCell(0, 10);
  w.FgRR.clickCell(0, 3);
  world.save("segni");
  EXPECT_EQ(world.inMain("SELECT Posizioni || ' ' || RuoteGioco || ' ' || Ruoterilevazione FROM Elenco_Memo"),
            "01001 10000000001 00010000000");
}

TEST_F(Save, TakesOnlyTheExactGreenForChosen) {
  w.FgRG.setBack(0, 4, VerdeMedio);
  world.save("altro verde");
  EXPECT_EQ(world.inMain("SELECT RuoteGioco FROM Elenco_Memo"), "10000000000");
}

TEST_F(Save, WritesTheReferenceDrawAndTheListPositions) {
  w.hs1.set(41);
  w.ComboFiltro.pick(4);
  w.ComboNC.pick(19);
  w.ComboR1.pick(10);
  w.TxtNumeri.set("30-45");
  w.ChDDS.set(true);
  world.save("campi");
  EXPECT_EQ(world.inMain("SELECT Estrazione || ' ' || Tiporilevazione || ' ' || NumCasi || ' ' || RuotaP || ' ' || "
                         "Parametro || ' ' || DDS FROM Elenco_Memo"),
            "41 4 19 10 30-45 1");
}

TEST_F(Save, SaysNothingOfItsOwnWhereTheDatabaseIsClosed) {
  world.program->DbParametri.reset();
  EXPECT_FALSE(world.save("chiuso"));
  EXPECT_EQ(world.shell.lastBox().text, kNotSaved);
}

TEST_F(Save, TheNameGoesAtADoubleClick) {
  w.Txt_Denominazione.set("da buttare");
  w.Txt_Denominazione.setBack(Verde);
  w.Txt_Denominazione.doubleClick();
  EXPECT_EQ(w.Txt_Denominazione.text(), "");
  EXPECT_EQ(w.Txt_Denominazione.back(), Verde) << "white belongs to the screen of exchange alone";
}

}  // namespace
}  // namespace trv5
