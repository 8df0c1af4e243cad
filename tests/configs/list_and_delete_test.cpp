#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "configs/configuration_world.h"

namespace trv5 {
namespace {

using testing::ElementsAre;

class SavedList : public testing::Test {
 protected:
  ConfigurationWorld world;
  Workbench& w = world.w();
  std::vector<std::string> names() const {
    std::vector<std::string> texts;
    for (int row = 1; row < world.bench->FgPir1.rows(); ++row) texts.push_back(world.bench->FgPir1.text(row, 2));
    return texts;
  }
};

TEST_F(SavedList, IsReadWhenTheWorkbenchOpensAndHasAllColumnsAlsoWhenEmpty) {
  EXPECT_EQ(w.FgPir1.rows(), 1);
  ASSERT_EQ(w.FgPir1.columns(), 26);
  EXPECT_EQ(w.FgPir1.text(0, 1), "Cod");
  EXPECT_EQ(w.FgPir1.text(0, 3), "Estraz");
  EXPECT_EQ(w.FgPir1.text(0, 25), "DDS");
  for (int column = 0; column < 26; ++column) EXPECT_EQ(w.FgPir1.columnHidden(column), column >= 4) << column;
}

TEST_F(SavedList, IsInTheOrderOfTheNamesWithoutACurrentRow) {
  for (const char* name : {"zeta", "Bari", "ambo", "Zara"}) world.save(name);
  world.press("Cmd_Elenco");
  EXPECT_THAT(names(), ElementsAre("ambo", "Bari", "Zara", "zeta"));
  EXPECT_EQ(w.FgPir1.current(), -1);
  w.FgPir1.setCurrent(3);
  world.press("Cmd_Elenco");
  EXPECT_EQ(w.FgPir1.current(), -1);
}

TEST_F(SavedList, BringsTheOneJustSavedIntoSight) {
  for (const char* name : {"zeta", "Bari", "ambo", "Zara"}) world.save(name);
  w.Txt_Denominazione.set("BARI");
  const int before = w.FgPir1.showsAsked().first;
  world.press("Cmd_Elenco");
  EXPECT_EQ(w.FgPir1.showsAsked(), std::pair(before + 1, world.rowOf("Bari")));
  EXPECT_EQ(world.shell.statusTexts.back(), "ELENCO: 4 configurazioni");
  w.Txt_Denominazione.set("mai salvata");
  world.press("Cmd_Elenco");
  EXPECT_EQ(w.FgPir1.showsAsked().first, before + 1);
}

TEST_F(SavedList, OfADatabaseWithoutTheFieldSaysSoAndOpensTheScreenThatAddsIt) {
  world.change("ALTER TABLE Elenco_Memo DROP COLUMN DDS");
  world.press("Cmd_Elenco");
  EXPECT_EQ(world.shell.lastBox().text,
            "Attenzione, probabilmente non esiste il campo DDS, provvedere ad inserirlo, ed eventualmente azzerare il "
            "campo DDS");
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  EXPECT_TRUE(world.shell.isOpen("FunzioniAggiuntive"));
}

TEST_F(SavedList, IsFilteredByATextInWhateverLettersCase) {
  for (const char* name : {"Bari à la carte", "Roma", "barile"}) world.save(name);
  world.press("Cmd_Elenco");
  w.Txt_FiltroConfig.set("BARI");
  EXPECT_THAT(w.FgPir1.hiddenRows(), ElementsAre(world.rowOf("Roma")));
  w.Txt_FiltroConfig.set("À LA");
  EXPECT_THAT(w.FgPir1.hiddenRows(), ElementsAre(world.rowOf("barile"), world.rowOf("Roma")));
  world.press("Cmd_Elenco");
  EXPECT_THAT(w.FgPir1.hiddenRows(), ElementsAre(world.rowOf("barile"), world.rowOf("Roma")));
  w.Txt_FiltroConfig.set("Zara");
  EXPECT_EQ(w.FgPir1.hiddenRows().size(), 3U);
  EXPECT_EQ(w.FgPir1.emptyText(), "Nessuna denominazione con questo testo");
  w.Txt_FiltroConfig.set("");
  EXPECT_TRUE(w.FgPir1.hiddenRows().empty());
}

TEST_F(SavedList, DeletesNothingWithoutARow) {
  world.save("resta");
  world.press("Cmd_Elenco");
  const std::size_t boxes = world.shell.shown.size();
  world.press("Command54");
  EXPECT_EQ(world.shell.shown.size(), boxes);
  EXPECT_EQ(world.shell.statusTexts.back(), "Scegli prima una configurazione dell'elenco");
  EXPECT_EQ(world.saved(), 1);
}

TEST_F(SavedList, AsksBeforeADeletionWithTheKeyInTheQuestion) {
  world.change("INSERT INTO sqlite_sequence (name, seq) VALUES ('Elenco_Memo', 70000)");
  world.save("lontana");
  world.press("Cmd_Elenco");
  w.FgPir1.clickCell(1, 2);
  world.shell.answerNo();
  world.press("Command54");
  EXPECT_EQ(world.shell.lastBox().text, "Concellare la riga: 70001 ?");
  EXPECT_EQ(world.shell.lastBox().title, "Cancellazione record");
  EXPECT_EQ(world.saved(), 1);
}

TEST_F(SavedList, DeletesHeadAndRowsAlsoOfAKeyBeyondSixteenBitsAndReadsTheListAgain) {
  world.change("INSERT INTO sqlite_sequence (name, seq) VALUES ('Elenco_Memo', 70000)");
  WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}, .fix = 7});
  world.save("lontana");
  world.save("vicina");
  world.press("Cmd_Elenco");
  w.FgPir1.clickCell(world.rowOf("lontana"), 1);
  world.shell.answerYes();
  world.press("Command54");
  EXPECT_EQ(world.shell.lastBox().text, "Record eliminato.");
  EXPECT_EQ(world.shell.lastBox().title, "Cancellazione record");
  EXPECT_THAT(names(), ElementsAre("vicina"));
  EXPECT_EQ(world.savedRows(), 1);
}

TEST_F(SavedList, DeletesWithoutABoxWhatAnotherProgramHasDeleted) {
  world.save("sparita");
  world.press("Cmd_Elenco");
  w.FgPir1.clickCell(1, 1);
  world.change("DELETE FROM Elenco_Memo");
  world.shell.answerYes();
  world.press("Command54");
  EXPECT_EQ(world.shell.lastBox().kind, ShownBox::Kind::Confirm);
  EXPECT_EQ(w.FgPir1.rows(), 1);
}

}  // namespace
}  // namespace trv5
