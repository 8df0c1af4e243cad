#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "configs/configuration_world.h"
#include "support/broken_world.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoTarget = "Errore nella selezione del database di destinazione.";
constexpr const char* kNoSource = "Errore nella selezione del database da importare.";
constexpr const char* kNotExported = "Attenzione! problemi di salvataggio.";
constexpr const char* kNotImported = "Attenzione la procedura non è andata a buon fine.";

class Exchange : public testing::Test {
 protected:
  Exchange() {
    WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}}, .fix = 7});
    WorkbenchWorld::addFormula(w.Fg11, {.elements = {{4, 1}}, .fix = 9});
    world.save("Roma");
    w.Fg11.cutToHeading();
    world.save("vuota");
    form.Command1.press();
  }

  void select(const std::string& name) {
    for (int row = 1; row < form.Fg1.rows(); ++row)
      if (form.Fg1.text(row, 2) == name) form.Fg1.clickCell(row, 2);
  }
  void chooseTarget(const fs::path& path) {
    world.shell.answerFile(path);
    form.Command2.press();
  }
  void chooseSource(const fs::path& path) {
    world.shell.answerFile(path);
    form.Command4.press();
  }
  void exportTo(const fs::path& path, const std::string& name) {
    chooseTarget(path);
    select(name);
    form.Command3.press();
  }
  static std::string inFile(const fs::path& path, const std::string& select) {
    return ConfigurationWorld::value(path, FileKind::Export, select);
  }

  ConfigurationWorld world;
  Workbench& w = world.w();
  ImportExport& form = world.exchange();
  fs::path file = world.exportFile();
};

TEST_F(Exchange, ListsTheConfigurationsAtItsOpeningByName) {
  EXPECT_EQ(form.Fg1.rows(), 3);
  EXPECT_EQ(form.Fg1.columns(), 3);
  EXPECT_EQ(form.Fg1.text(0, 1), "Cod");
  EXPECT_EQ(form.Fg1.text(1, 2), "Roma");
  EXPECT_EQ(form.Fg1.text(2, 2), "vuota");
}

TEST_F(Exchange, TheListEmptiesTheLog) {
  exportTo(file, "Roma");
  EXPECT_EQ(form.List1.lines().size(), 4U);
  form.Command1.press();
  EXPECT_THAT(form.List1.lines(), IsEmpty());
}

TEST_F(Exchange, ExportsHeadAndRowsWithTheirOwnKeys) {
  exportTo(file, "Roma");
  EXPECT_THAT(form.List1.lines(), ElementsAre("Tabelle di destinazione azzerate", "Inseriti dati 1° tabella",
                                              "Inseriti dati 2° tabella", "Esportazione terminata"));
  EXPECT_EQ(inFile(file, "SELECT group_concat(Id_Config || Denominazione) FROM Elenco_Memo"), "1Roma");
  EXPECT_EQ(inFile(file, "SELECT group_concat(Rif_Memo || '.' || Riga || '.' || Fix) FROM Elenco_Dett"), "1.1.7,1.2.9");
}

TEST_F(Exchange, ASecondExportToTheSameFileReplacesTheFirst) {
  exportTo(file, "Roma");
  exportTo(file, "vuota");
  EXPECT_EQ(inFile(file, "SELECT group_concat(Denominazione) FROM Elenco_Memo"), "vuota");
  EXPECT_EQ(inFile(file, "SELECT count(*) FROM Elenco_Dett"), "0");
}

TEST_F(Exchange, AnExportWithoutARowDoesNothing) {
  form.Fg1.setCurrent(-1);
  form.Command3.press();
  EXPECT_THAT(form.List1.lines(), IsEmpty());
  EXPECT_EQ(world.shell.statusTexts.back(), "Scegli prima una configurazione dell'elenco");
}

TEST_F(Exchange, AnExportWithoutAFileLogsTheErrorAndSaysSo) {
  select("Roma");
  form.Command3.press();
  EXPECT_THAT(form.List1.lines(), ElementsAre("Rilevamento errore"));
  EXPECT_EQ(world.shell.lastBox().text, kNotExported);
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
}

TEST_F(Exchange, AnExportToAFileThatCantBeWrittenLogsTheError) {
  const fs::path apart = world.folder / "apart";
  fs::create_directory(apart);
  fs::rename(file, apart / "f.mdb");
  const ReadOnlyFolder readOnly(apart);
  exportTo(apart / "f.mdb", "Roma");
  EXPECT_THAT(form.List1.lines(), ElementsAre("Rilevamento errore"));
  EXPECT_EQ(world.shell.lastBox().text, kNotExported);
}

TEST_F(Exchange, AnExportToAFullDiskLogsTheErrorAndKeepsTheFileReadable) {
  exportTo(file, "vuota");
  {
    const FullDisk disk(1024);
    select("Roma");
    form.Command3.press();
  }
  EXPECT_EQ(form.List1.lines().back(), "Rilevamento errore");
  EXPECT_EQ(world.shell.lastBox().text, kNotExported);
  EXPECT_EQ(inFile(file, "SELECT group_concat(Denominazione) FROM Elenco_Memo"), "vuota");
}

TEST_F(Exchange, WhatAnExportHasDoneStaysWhereALaterStepFails) {
  exportTo(file, "vuota");
  const OtherProgram other(file, "ALTER TABLE Elenco_Dett ADD COLUMN X TEXT NOT NULL DEFAULT ''");
  world.change("ALTER TABLE Elenco_Dett ADD COLUMN Y TEXT");
  select("Roma");
  form.Command3.press();
  EXPECT_THAT(form.List1.lines(),
              ElementsAre("Tabelle di destinazione azzerate", "Inseriti dati 1° tabella", "Rilevamento errore"));
  EXPECT_EQ(inFile(file, "SELECT group_concat(Denominazione) FROM Elenco_Memo"), "Roma");
}

TEST_F(Exchange, EachSideKeepsItsOwnPathAndACancelledDialogGivesTheError) {
  const fs::path second = world.exportFile("altro.mdb");
  chooseTarget(file);
  exportTo(second, "Roma");
  chooseSource(second);
  chooseTarget(file);
  EXPECT_EQ(form.Label1.text(), file.string());
  EXPECT_EQ(form.Label4.text(), second.string());
  world.shell.answerCancel();
  form.Command2.press();
  EXPECT_EQ(world.shell.lastBox().text, kNoTarget);
  world.shell.answerCancel();
  form.Command4.press();
  EXPECT_EQ(world.shell.lastBox().text, kNoSource);
  EXPECT_EQ(form.Label1.text(), file.string());
  EXPECT_EQ(form.Label4.text(), second.string());
}

TEST_F(Exchange, TheDialogStartsInTheProgramsFolder) {
  chooseTarget(file);
  const auto& box = world.shell.shown.back();
  EXPECT_EQ(box.kind, ShownBox::Kind::Open);
  EXPECT_EQ(box.folder, world.folder.path());
}

TEST_F(Exchange, ThePathStandsInTheLabelAlsoWhereTheFileCantBeOpened) {
  writeBytes(world.folder / "lettera.mdb", "non è un database");
  chooseTarget(world.folder / "lettera.mdb");
  EXPECT_EQ(world.shell.lastBox().text, kNoTarget);
  EXPECT_EQ(form.Label1.text(), (world.folder / "lettera.mdb").string());
  chooseSource(world.folder / "manca.mdb");
  EXPECT_EQ(world.shell.lastBox().text, kNoSource);
  EXPECT_FALSE(fs::exists(world.folder / "manca.mdb"));
}

TEST_F(Exchange, TheMainDatabaseAndTheArchiveAreNoExportFiles) {
  for (const char* name : {"DbTRV5.mdb", "Archivio.mdb"}) {
    const std::string before = readBytes(world.folder / name);
    chooseTarget(world.folder / name);
    EXPECT_EQ(world.shell.lastBox().text, kNoTarget);
    select("Roma");
    form.Command3.press();
    EXPECT_EQ(world.shell.lastBox().text, kNotExported);
    chooseSource(world.folder / name);
    EXPECT_EQ(world.shell.lastBox().text, kNoSource);
    EXPECT_EQ(readBytes(world.folder / name), before);
  }
}

TEST_F(Exchange, ThePreviewShowsTheNameGreenWhereItIsFreeAndRedWhereItIsTaken) {
  exportTo(file, "Roma");
  chooseSource(file);
  EXPECT_EQ(form.Txt_Denominazione.text(), "Roma");
  EXPECT_EQ(form.Txt_Denominazione.back(), 0xFF8080);
  world.change("UPDATE Elenco_Memo SET Denominazione = 'altra' WHERE Denominazione = 'Roma'");
  chooseSource(file);
  EXPECT_EQ(form.Txt_Denominazione.back(), Verde);
}

TEST_F(Exchange, ThePreviewReadsTheFileAgainAndPaintsItsName) {
  exportTo(file, "Roma");
  chooseSource(file);
  form.Txt_Denominazione.set("scritto a mano");
  EXPECT_EQ(form.Txt_Denominazione.back(), 0xFF8080);
  world.change("UPDATE Elenco_Memo SET Denominazione = 'altra' WHERE Denominazione = 'Roma'");
  form.Command5.press();
  EXPECT_EQ(form.Txt_Denominazione.text(), "Roma");
  EXPECT_EQ(form.Txt_Denominazione.back(), Verde);
}

TEST_F(Exchange, ThePreviewLeavesTheColourWhereNothingIsSaved) {
  exportTo(file, "Roma");
  world.change("PRAGMA foreign_keys = ON; DELETE FROM Elenco_Memo");
  form.Txt_Denominazione.setBack(kWhite);
  chooseSource(file);
  EXPECT_EQ(form.Txt_Denominazione.text(), "Roma");
  EXPECT_EQ(form.Txt_Denominazione.back(), kWhite);
}

TEST_F(Exchange, AFileWithoutAConfigurationEmptiesTheNameAndIsNotImported) {
  form.Txt_Denominazione.set("x");
  form.Txt_Denominazione.setBack(Verde);
  chooseSource(file);
  EXPECT_EQ(form.Txt_Denominazione.text(), "");
  EXPECT_EQ(form.Txt_Denominazione.back(), kWhite);
  form.Txt_Denominazione.set("nuova");
  form.Command6.press();
  EXPECT_EQ(world.shell.lastBox().text, kNotImported);
  EXPECT_THAT(form.List2.lines(), ElementsAre("Rilevato errore"));
  EXPECT_EQ(world.saved(), 2);
}

TEST_F(Exchange, ADoubleClickEmptiesTheNameAndPaintsItWhite) {
  form.Txt_Denominazione.set("x");
  form.Txt_Denominazione.setBack(Verde);
  form.Txt_Denominazione.doubleClick();
  EXPECT_EQ(form.Txt_Denominazione.text(), "");
  EXPECT_EQ(form.Txt_Denominazione.back(), kWhite);
}

TEST_F(Exchange, AnImportUnderATakenNameIsRolledBackAndAnotherNamePasses) {
  exportTo(file, "Roma");
  chooseSource(file);
  form.Command6.press();
  EXPECT_EQ(world.shell.lastBox().text, kNotImported);
  EXPECT_THAT(form.List2.lines(), ElementsAre("Rilevato errore"));
  EXPECT_EQ(world.saved(), 2);
  EXPECT_EQ(world.savedRows(), 2);
  form.Txt_Denominazione.set("Roma bis");
  form.Command6.press();
  EXPECT_THAT(form.List2.lines(), ElementsAre("Importata 1° tabella", "Importata 2° tabella"));
  EXPECT_EQ(world.savedRows(), 4);
  EXPECT_EQ(world.inMain("SELECT group_concat(Riga || '.' || Fix) FROM Elenco_Dett WHERE Rif_Memo = 3"), "1.7,2.9");
}

TEST_F(Exchange, AnImportTakesTheTypedNameAndNotTheFiles) {
  exportTo(file, "Roma");
  chooseSource(file);
  form.Txt_Denominazione.set("la mia");
  form.Command6.press();
  EXPECT_EQ(world.inMain("SELECT Denominazione FROM Elenco_Memo WHERE Id_Config = 3"), "la mia");
}

TEST_F(Exchange, AnImportWithoutRowsAddsTheHeadAndLogsBothTables) {
  exportTo(file, "vuota");
  chooseSource(file);
  form.Txt_Denominazione.set("ancora vuota");
  form.Command6.press();
  EXPECT_THAT(form.List2.lines(), ElementsAre("Importata 1° tabella", "Importata 2° tabella"));
  EXPECT_EQ(world.saved(), 3);
  EXPECT_EQ(world.savedRows(), 2);
}

TEST_F(Exchange, AFileOfAnOlderInstallationCanBeChosenAndIsNotImported) {
  exportTo(file, "Roma");
  { const OtherProgram other(file, "ALTER TABLE Elenco_Memo DROP COLUMN DDS"); }
  const std::size_t boxes = world.shell.shown.size();
  chooseSource(file);
  EXPECT_EQ(world.shell.shown.size(), boxes + 1) << "the dialog alone";
  form.Txt_Denominazione.set("vecchia");
  form.Command6.press();
  EXPECT_EQ(world.shell.lastBox().text, kNotImported);
  EXPECT_EQ(world.saved(), 2);
}

TEST_F(Exchange, AllRowsOfTheFileAreTakenWhoeverTheyBelongTo) {
  exportTo(file, "Roma");
  {
    const OtherProgram other(file,
                             "PRAGMA foreign_keys = OFF; INSERT INTO Elenco_Dett (Rif_Memo, Grid, Riga, Fix) "
                             "VALUES (99, 2, 1, '44')");
  }
  chooseSource(file);
  form.Txt_Denominazione.set("tre righe");
  form.Command6.press();
  EXPECT_EQ(world.savedRows(), 5);
}

TEST_F(Exchange, TheListOfTheWorkbenchWantsElencoAfterAnImport) {
  exportTo(file, "Roma");
  world.press("Cmd_Elenco");
  chooseSource(file);
  form.Txt_Denominazione.set("nuova");
  form.Command6.press();
  EXPECT_EQ(world.rowOf("nuova"), 0);
  EXPECT_EQ(form.Fg1.rows(), 3);
  world.press("Cmd_Elenco");
  EXPECT_GT(world.rowOf("nuova"), 0);
}

TEST_F(Exchange, AnImportedMethodReloadsAsTheOneThatWasSaved) {
  exportTo(file, "Roma");
  chooseSource(file);
  form.Txt_Denominazione.set("copia");
  form.Command6.press();
  world.reload("copia");
  EXPECT_EQ(w.Fg11.rows(), 3);
  EXPECT_EQ(w.Fg11.text(2, 11), "9");
}

TEST_F(Exchange, AnEmptyFileIsMadeByAButtonAndNeverOverAnother) {
  world.shell.answerFile(world.folder / "nuovo.mdb");
  form.Cmd_CreaVuoto.press();
  EXPECT_EQ(inFile(world.folder / "nuovo.mdb", "SELECT count(*) FROM Elenco_Memo"), "0");
  exportTo(world.folder / "nuovo.mdb", "Roma");
  world.shell.answerFile(world.folder / "nuovo.mdb");
  form.Cmd_CreaVuoto.press();
  EXPECT_EQ(inFile(world.folder / "nuovo.mdb", "SELECT Denominazione FROM Elenco_Memo"), "Roma");
  world.shell.answerCancel();
  const std::size_t boxes = world.shell.shown.size();
  form.Cmd_CreaVuoto.press();
  EXPECT_EQ(world.shell.shown.size(), boxes + 1) << "the dialog alone";
}

}  // namespace
}  // namespace trv5
