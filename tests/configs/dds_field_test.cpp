#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "configs/configuration_world.h"

namespace trv5 {
namespace {

using testing::ElementsAre;

constexpr const char* kMissing = "Il campo DDS non esiste, lo si deve aggiungere";
constexpr const char* kFailed = "Attenzione, probabilmente il campo è già stato inserito";

class DdsField : public testing::Test {
 protected:
  void dropField() { world.change("ALTER TABLE Elenco_Memo DROP COLUMN DDS"); }
  void dropPassword() { world.change("DROP TABLE Protezione"); }
  ConfigurationWorld world;
};

TEST_F(DdsField, OfAProtectedFileIsReportedMissingWhateverTheFileHolds) {
  EXPECT_FALSE(TableExists(world.mainFile(), "Elenco_Memo"));
  EXPECT_FALSE(FieldExists(world.mainFile(), "Elenco_Memo", "DDS"));
  EXPECT_THAT(world.dds().List1.lines(), ElementsAre(kMissing));
}

TEST_F(DdsField, OfAnUnprotectedFileIsFoundInWhateverLettersCase) {
  dropPassword();
  EXPECT_TRUE(TableExists(world.mainFile(), "elenco_memo"));
  EXPECT_FALSE(TableExists(world.mainFile(), "Elenco"));
  EXPECT_TRUE(FieldExists(world.mainFile(), "Elenco_Memo", "dds"));
  EXPECT_FALSE(FieldExists(world.mainFile(), "Elenco_Memo", "DD"));
  EXPECT_FALSE(FieldExists(world.folder / "manca.mdb", "Elenco_Memo", "DDS"));
  EXPECT_THAT(world.dds().List1.lines(), ElementsAre("Il campo DDS esiste"));
}

TEST_F(DdsField, TheCheckEmptiesTheLog) {
  FunzioniAggiuntive& form = world.dds();
  form.Command2.press();
  form.Command3.press();
  EXPECT_THAT(form.List1.lines(), ElementsAre(kMissing));
}

TEST_F(DdsField, AddedWhereItIsEndsInTheMessageAndTheTableStaysUsable) {
  world.w().ChDDS.set(true);
  world.save("con");
  FunzioniAggiuntive& form = world.dds();
  form.Command1.press();
  EXPECT_EQ(world.shell.lastBox().text, kFailed);
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  EXPECT_THAT(form.List1.lines(), ElementsAre(kMissing));
  EXPECT_EQ(world.inMain("SELECT DDS FROM Elenco_Memo"), "1");
  world.press("Cmd_Elenco");
  EXPECT_EQ(world.w().FgPir1.rows(), 2);
}

TEST_F(DdsField, SetToZeroIsZeroInAllRows) {
  world.save("senza");
  world.w().ChDDS.set(true);
  world.save("con");
  FunzioniAggiuntive& form = world.dds();
  form.Command2.press();
  EXPECT_EQ(world.shell.lastBox().text, "Il campo è stato popolato con valore zero ");
  EXPECT_EQ(form.List1.lines().back(), "Il campo DDS è stato popolato con valori zero");
  EXPECT_EQ(world.inMain("SELECT group_concat(DDS) FROM Elenco_Memo"), "0,0");
}

TEST_F(DdsField, SetToZeroWhereItIsMissingEndsInTheMessage) {
  dropField();
  world.dds().Command2.press();
  EXPECT_EQ(world.shell.lastBox().text, kFailed);
}

TEST_F(DdsField, IsAddedOnceAndServesFromTheNextStartOn) {
  world.save("vecchia");
  dropField();
  world.press("Cmd_Elenco");
  ASSERT_TRUE(world.shell.isOpen("FunzioniAggiuntive"));
  FunzioniAggiuntive& form = world.dds();
  form.Command1.press();
  EXPECT_EQ(world.shell.lastBox().text, "Il campo è stato inserito nella tabella. Chiudere il programma e riavviarlo.");
  EXPECT_EQ(form.List1.lines().back(), "Il campo DDS è stato aggiunto");
  // The database stays closed: each operation ends in its own message.
  EXPECT_FALSE(world.save("ora no"));
  EXPECT_EQ(world.shell.lastBox().text, kNotSaved);
  world.press("Cmd_Elenco");
  EXPECT_EQ(world.shell.lastBox().text.substr(0, 34), "Attenzione, probabilmente non esis");
  form.Command2.press();
  EXPECT_EQ(world.shell.lastBox().text, kFailed);
  world.exchange();
  EXPECT_EQ(world.shell.lastBox().text, "Il database principale non è aperto.");
  form.Command1.press();
  EXPECT_EQ(world.shell.lastBox().text, kFailed);

  world.restart();
  world.press("Cmd_Elenco");
  EXPECT_EQ(world.w().FgPir1.rows(), 2);
  EXPECT_EQ(world.w().FgPir1.text(1, 25), "0");
  world.reload("vecchia");
  EXPECT_NE(world.shell.lastBox().text, kNotReloaded);
}

TEST_F(DdsField, IsNotAddedWhileAnotherProgramWrites) {
  dropField();
  const OtherProgram other(world.mainFile(), "BEGIN IMMEDIATE");
  world.dds().Command1.press();
  EXPECT_EQ(world.shell.lastBox().text, kFailed);
}

}  // namespace
}  // namespace trv5
