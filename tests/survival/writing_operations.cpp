// Every operation of the program that writes.
#include "configs/draft.h"
#include "core/text.h"
#include "core/verifica_archivio.h"
#include "maintenance/backups.h"
#include "support/left_journal.h"
#include "survival/writing_world.h"

namespace trv5 {
namespace {

Database* archiveOf(const WritingWorld& world) {
  return world.program->DbArchivio.get();
}
Database* mainOf(const WritingWorld& world) {
  return world.program->DbParametri.get();
}

void type(Archivio& a, int first) {
  for (int box = 1; box <= EntryBoxes::kBoxes; ++box) a.txtin[box].set(std::to_string(10 + (first + box) % 80));
}

std::function<void(WritingWorld&)> readyToCorrect(int draw, int first) {
  return [=](WritingWorld& world) {
    world.archivio().HScrestrazione.set(draw);
    type(world.archivio(), first);
    world.shell.answerYes();
  };
}

void pressCorrection(WritingWorld& world) {
  world.archivio().Command3.press();
}

// A method on the workbench, under no name yet.
void layMethod(WritingWorld& world) {
  Workbench& w = world.w();
  w.button("Command41").press();
  for (int i = 0; i < 5; ++i) {
    WorkbenchWorld::addFormula(w.Fg11, {.elements = {{0, 1}, {3, 2}}, .fix = 7 + i});
    WorkbenchWorld::addFormula(w.Fg00, {.elements = {{5, 4}}, .fix = 50 + i});
  }
}

void saveMethod(WritingWorld& world, const std::string& name) {
  layMethod(world);
  world.save(name);
}

void chooseSaved(WritingWorld& world, const std::string& name) {
  world.press("Cmd_Elenco");
  world.w().FgPir1.setCurrent(world.rowOf(name));
}

ImportExport& exchangeOn(WritingWorld& world, const std::filesystem::path& file) {
  ImportExport& form = world.exchange();
  form.Command1.press();
  for (int row = 1; row < form.Fg1.rows(); ++row)
    if (form.Fg1.text(row, 2) == "da esportare") form.Fg1.clickCell(row, 1);
  world.shell.answerFile(file);
  form.Command2.press();
  return form;
}

// The two steps before the last, made backwards out of the file as it stands after all of them.
std::vector<std::string> statesOfExport(const std::filesystem::path& folder) {
  std::vector<std::string> states;
  for (const char* sql : {"DELETE FROM Elenco_Dett", "DELETE FROM Elenco_Memo"}) {
    { const OtherProgram other(folder / "TRV5_Export.mdb", sql); }
    states.push_back(contentsOf(folder).at("TRV5_Export.mdb"));
  }
  return states;
}

std::vector<WritingOperation> drawOperations() {
  return {{.name = "SalvaEstrazione",
           .ready =
               [](WritingWorld& world) {
                 world.archivio().MonthView1.set("05/03/1949");
                 type(world.archivio(), 3);
                 world.shell.answerYes();
               },
           .run = [](WritingWorld& world) { world.archivio().Command8.press(); },
           .database = archiveOf},
          {.name = "ModificaEstrazione", .ready = readyToCorrect(20, 7), .run = pressCorrection, .database = archiveOf},
          {.name = "EliminaEstrazione",
           .ready =
               [](WritingWorld& world) {
                 world.archivio().HScrestrazione.set(30);
                 world.shell.answerYes();
               },
           .run = [](WritingWorld& world) { world.archivio().Command2.press(); },
           .database = archiveOf},
          {.name = "AggiornaDiCentoEstrazioni",
           .ready =
               [](WritingWorld& world) {
                 world.shell.answerFile(world.updateFile());
                 world.archivio().Command21.press();
               },
           .run = [](WritingWorld& world) { world.archivio().Command28.press(); },
           .database = archiveOf}};
}

constexpr const char* kForeign = "UPDATE EstrazioniLotto SET Ca = '01-02-03-04-05' WHERE rowid = 7";

// Copies of the archive, a day apart, up to the day before the clock's, each of another state than the next one.
void makeCopies(WritingWorld& world, int copies) {
  const std::filesystem::path file = world.folder / "Archivio.mdb";
  for (int copy = copies; copy > 0; --copy) {
    DateTime then = world.shell.clock;
    then.day -= copy;
    makeBackup(Database(file, FileKind::Archive), BackupReason::Aggiornamento, then);
    const OtherProgram other(
        file, "UPDATE EstrazioniLotto SET orareg = '10:00:0" + std::to_string(copy % 10) + "' WHERE rowid = 1");
  }
}

// The one of so many days ago, wherever it stands in the list.
void chooseCopy(WritingWorld& world, int days) {
  Archivio& a = world.archivio();
  a.SSTab1.set(Archivio::kCopie);
  const std::string day = twoDigits(world.shell.clock.day - days);
  for (int row = 1; row < a.Fg_Copie.rows(); ++row)
    if (a.Fg_Copie.text(row, 0).substr(0, 2) == day) a.Fg_Copie.clickCell(row, 0);
  world.shell.answerYes();
}

// The copies of the archive, and what is taken back from them.
std::vector<WritingOperation> copyOperations() {
  return {{.name = "CopiaAlPostoDellaPiuVecchia",
           .files = [](WritingWorld& world) { makeCopies(world, 12); },
           .ready = readyToCorrect(20, 7),
           .run = pressCorrection,
           .database = archiveOf},
          {.name = "RipristinaCopia",
           .files =
               [](WritingWorld& world) {
                 makeCopies(world, 2);
                 const OtherProgram other(world.folder / "Archivio.mdb", "DELETE FROM EstrazioniLotto WHERE rowid > 9");
               },
           .ready = [](WritingWorld& world) { chooseCopy(world, 2); },
           .run = [](WritingWorld& world) { world.archivio().Cmd_Ripristina.press(); },
           .database = archiveOf},
          {.name = "RipristinaEstrazione",
           .files =
               [](WritingWorld& world) {
                 makeCopies(world, 1);
                 const OtherProgram other(world.folder / "Archivio.mdb", kForeign);
               },
           .ready =
               [](WritingWorld& world) {
                 Archivio& a = world.archivio();
                 a.SSTab1.set(Archivio::kCopie);
                 a.Cmd_VerificaArchivio.press();
                 a.Fg_Controllo.moveTo(2, 0);
                 world.shell.answerYes();
               },
           .run = [](WritingWorld& world) { world.archivio().Cmd_RipristinaEstrazione.press(); },
           .database = archiveOf}};
}

// The sums of the draws, which are written with them and by themselves.
std::vector<WritingOperation> sumOperations() {
  return {{.name = "AccettaEstrazioniCambiate",
           .files =
               [](WritingWorld& world) {
                 const OtherProgram other(world.folder / "Archivio.mdb",
                                          "UPDATE EstrazioniLotto SET Ca = '01-02-03-04-05' WHERE rowid % 7 = 0");
               },
           .ready = [](WritingWorld& world) { world.container().Cmd_Verifica.press(); },
           .run =
               [](WritingWorld& world) {
                 dynamic_cast<VerificaArchivio&>(world.shell.show("VerificaArchivio")).Cmd_Accetta.press();
               },
           .database = archiveOf},
          {.name = "SommeDiUnArchivioCheNonNeHa",
           .files =
               [](WritingWorld& world) {
                 const OtherProgram other(world.folder / "Archivio.mdb", "DROP TABLE VerificaEstrazioni");
               },
           .ready = readyToCorrect(10, 9),
           .run = pressCorrection,
           .database = archiveOf}};
}

std::vector<WritingOperation> configurationOperations() {
  return {{.name = "SalvaConfigurazione",
           .ready =
               [](WritingWorld& world) {
                 layMethod(world);
                 world.w().Txt_Denominazione.set("nuova");
               },
           .run = [](WritingWorld& world) { world.press("Command4"); },
           .database = mainOf},
          {.name = "CancellaConfigurazione",
           .files =
               [](WritingWorld& world) {
                 for (const char* name : {"una", "due", "tre"}) saveMethod(world, name);
               },
           .ready =
               [](WritingWorld& world) {
                 chooseSaved(world, "due");
                 world.shell.answerYes();
               },
           .run = [](WritingWorld& world) { world.press("Command54"); },
           .database = mainOf}};
}

std::vector<WritingOperation> exchangeOperations() {
  return {{.name = "ImportaConfigurazione",
           .files =
               [](WritingWorld& world) {
                 createExportFile(world.importFile(), Existing::Replace);
                 saveMethod(world, "da esportare");
                 exchangeOn(world, world.importFile()).Command3.press();
               },
           .ready =
               [](WritingWorld& world) {
                 ImportExport& form = world.exchange();
                 world.shell.answerFile(world.importFile());
                 form.Command4.press();
                 form.Txt_Denominazione.set("importata");
               },
           .run = [](WritingWorld& world) { world.exchange().Command6.press(); },
           .database = mainOf},
          {.name = "EsportaConfigurazione",
           .files =
               [](WritingWorld& world) {
                 saveMethod(world, "vecchia");
                 saveMethod(world, "da esportare");
                 world.exportFile();
               },
           .ready = [](WritingWorld& world) { exchangeOn(world, world.folder / "TRV5_Export.mdb"); },
           .run = [](WritingWorld& world) { world.exchange().Command3.press(); },
           .between = statesOfExport}};
}

std::vector<WritingOperation> draftOperations() {
  return {{.name = "BozzaDelBanco", .ready = layMethod, .run = [](WritingWorld& world) { keepDraft(world.w()); }},
          {.name = "BozzaAlPostoDellaPrecedente",
           .files =
               [](WritingWorld& world) {
                 layMethod(world);
                 keepDraft(world.w());
               },
           .ready =
               [](WritingWorld& world) {
                 layMethod(world);
                 WorkbenchWorld::addFormula(world.w().Fg22, {.elements = {{1, 1}}, .fix = 33});
               },
           .run = [](WritingWorld& world) { keepDraft(world.w()); }}};
}

std::vector<WritingOperation> settingOperations() {
  return {{.name = "AggiungeCampoDDS",
           .files =
               [](WritingWorld& world) {
                 saveMethod(world, "una");
                 world.change("ALTER TABLE Elenco_Memo DROP COLUMN DDS");
               },
           .ready = [](WritingWorld& world) { world.dds(); },
           .run = [](WritingWorld& world) { world.dds().Command1.press(); }},
          {.name = "AzzeraCampoDDS",
           .files =
               [](WritingWorld& world) {
                 saveMethod(world, "una");
                 world.change("UPDATE Elenco_Memo SET DDS = 1");
               },
           .ready = [](WritingWorld& world) { world.dds(); },
           .run = [](WritingWorld& world) { world.dds().Command2.press(); },
           .database = mainOf},
          {.name = "MemorizzaImpostazioni",
           .ready =
               [](WritingWorld& world) {
                 Archivio& a = world.archivio();
                 a.Txt_CartellaRuotafast.set(world.folder.path().string());
                 a.Txt_ServerWeb.set("www.example.org");
                 a.Txt_ServerFtp.set("ftp.example.org");
               },
           .run = [](WritingWorld& world) { world.archivio().Cmd_Impostazioni.press(); },
           .database = mainOf},
          {.name = "RendePredefinitoIlSito",
           .ready = [](WritingWorld& world) { world.archivio().Text2.set("https://example.org/altro"); },
           .run = [](WritingWorld& world) { world.archivio().Command15.press(); },
           .database = mainOf},
          {.name = "SelezionaArchivio",
           .files = [](WritingWorld& world) { world.makeArchive(WritingWorld::someRows(5), "Archivio2.mdb"); },
           .ready =
               [](WritingWorld& world) {
                 world.shell.answerFile(world.folder / "Archivio2.mdb");
                 world.shell.show("INIZIO");
               },
           .run = [](WritingWorld& world) { world.inizio().Command4.press(); }}};
}

std::vector<WritingOperation> fileOperations() {
  return {{.name = "SalvaDatiIii",
           .files = [](WritingWorld& world) { writeBytes(world.folder / "Dati.iii", std::string(5000, 'v')); },
           .ready = [](WritingWorld& world) { world.shell.answerFile(world.folder / "Dati.iii"); },
           .run = [](WritingWorld& world) { world.archivio().Command10.press(); }},
          {.name = "SalvaNazionale",
           .ready = [](WritingWorld& world) { world.shell.answerFile(world.folder / "Nazionale.txt"); },
           .run = [](WritingWorld& world) { world.archivio().Command34.press(); }},
          {.name = "CreaFileDiEsportazioneVuoto",
           .ready =
               [](WritingWorld& world) {
                 world.exchange();
                 world.shell.answerFile(world.folder / "Vuoto.mdb");
               },
           .run = [](WritingWorld& world) { world.exchange().Cmd_CreaVuoto.press(); }}};
}

}  // namespace

const std::vector<WritingOperation>& writingOperations() {
  static const std::vector<WritingOperation> all = [] {
    std::vector<WritingOperation> operations;
    for (const auto group : {drawOperations, copyOperations, sumOperations, configurationOperations, exchangeOperations,
                             draftOperations, settingOperations, fileOperations})
      for (WritingOperation& operation : group()) operations.push_back(std::move(operation));
    return operations;
  }();
  return all;
}

}  // namespace trv5
