#include <gtest/gtest.h>

#include "core/errors.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

constexpr const char* kFirstTime = "Attenzione, la prima volta è necessario configurare l'origine dell'archivio";

std::vector<DrawRow> threeDraws() {
  return {drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}}), drawOf("14/01/1939", {{"RO", {1, 2, 3, 4, 5}}}),
          drawOf("04/02/1939", {{"NZ", {90, 89, 88, 87, 86}}})};
}

std::string storedArchive(ProgramWorld& world) {
  return world.program->parameters().Valore1("PercorsoArchivio").value_or("(nessuno)");
}

ShownBox failedProcedi() {
  return {.kind = ShownBox::Kind::Message,
          .title = "Avviso",
          .text = "Attenzione, probabilmente è stato selezionato un altro archivio. Chiudere il programma e riavviarlo",
          .icon = Icon::Critical};
}

TEST(Start, AFirstStartWithAnEmptyPercorsoArchivioShowsTheBoxAndThenTheDialog) {
  ProgramWorld world;
  world.makeMainFor({});
  world.start();
  ASSERT_EQ(world.shell.shown.size(), 2u);
  EXPECT_EQ(world.shell.shown[0], (ShownBox{.kind = ShownBox::Kind::Message,
                                            .title = "Selezionare Archivio",
                                            .text = kFirstTime,
                                            .icon = Icon::Exclamation}));
  EXPECT_EQ(world.shell.reasons.front(), "") << "nothing went wrong yet";
  EXPECT_EQ(world.shell.shown[1], (ShownBox{.kind = ShownBox::Kind::Open,
                                            .title = "File di archivio (*.Mdb)",
                                            .folder = world.folder.path(),
                                            .filter = "*.mdb",
                                            .defaultExtension = "Mdb"}));
}

TEST(Start, CancellingTheFirstDialogLeavesInizioAliveWithoutAnArchive) {
  ProgramWorld world;
  world.makeMainFor({});
  world.shell.answerCancel();
  Inizio& inizio = world.start();
  EXPECT_EQ(inizio.Lbl_Archivio.text(), "");
  EXPECT_EQ(world.program->DbArchivio, nullptr);
  EXPECT_FALSE(std::filesystem::exists(world.folder / "PercorsoDatabase.txt"));
  EXPECT_EQ(world.shell.closedScreens.size(), 0u);

  inizio.Command2.press();
  EXPECT_EQ(world.shell.lastBox(), failedProcedi());
  EXPECT_FALSE(world.shell.isOpen("Container"));
  EXPECT_TRUE(world.shell.isOpen("INIZIO"));
}

TEST(Start, AnArchiveThatDoesNotExistAsksForOneAndMakesNoFile) {
  ProgramWorld world;
  world.makeMainFor(world.folder / "manca.mdb");
  world.start();
  EXPECT_EQ(world.shell.texts().front(), kFirstTime);
  EXPECT_EQ(world.shell.reasons.front(),
            "Il file \"" + (world.folder / "manca.mdb").string() + "\" non può essere aperto: il file non esiste.");
  EXPECT_FALSE(std::filesystem::exists(world.folder / "manca.mdb"));
}

TEST(Start, AFileThatIsNoArchiveAsksForOne) {
  for (const char* what : {"text", "main", "empty", "folder"}) {
    SCOPED_TRACE(what);
    ProgramWorld world;
    const std::filesystem::path file = world.folder / "altro.mdb";
    world.makeMainFor(file);
    if (what == std::string("text")) writeBytes(file, std::string(5000, 'x'));
    if (what == std::string("empty")) writeBytes(file, "");
    if (what == std::string("folder")) std::filesystem::create_directory(file);
    if (what == std::string("main")) std::filesystem::copy_file(world.folder / "DbTRV5.mdb", file);
    world.start();
    ASSERT_EQ(world.shell.shown.size(), 2u);
    EXPECT_EQ(world.shell.texts().front(), kFirstTime);
    EXPECT_EQ(world.program->DbArchivio, nullptr);
  }
}

TEST(Start, TheArchiveChosenAtAFirstStartIsTheOneHeldOpen) {
  ProgramWorld world;
  const auto archive = world.makeArchive(threeDraws());
  world.makeMainFor({});
  world.shell.answerFile(archive);
  Inizio& inizio = world.start();
  ASSERT_NE(world.program->DbArchivio, nullptr);
  EXPECT_EQ(world.program->DbArchivio->path(), archive);
  EXPECT_EQ(inizio.Lbl_Archivio.text(), "Database: " + archive.string());
  inizio.Command2.press();
  EXPECT_NO_THROW(world.program->archiveToWrite());
}

TEST(Start, AnArchiveChosenAfterACancelledFirstDialogCanBeWrittenToo) {
  ProgramWorld world;
  const auto archive = world.makeArchive(threeDraws());
  world.makeMainFor({});
  world.shell.answerCancel();
  Inizio& inizio = world.start();
  world.shell.answerFile(archive);
  inizio.Command4.press();
  inizio.Command2.press();
  ASSERT_TRUE(world.shell.isOpen("Container"));
  EXPECT_EQ(world.program->archiveToWrite().path(), archive);
}

TEST(Start, AChosenArchiveIsStoredAtOnceAndSurvivesTheNextStart) {
  ProgramWorld world;
  const auto first = world.makeArchive(threeDraws(), "primo.mdb");
  const auto second = world.makeArchive({threeDraws()[0]}, "secondo.mdb");
  world.makeMainFor(first);
  Inizio& inizio = world.start();
  EXPECT_TRUE(world.shell.shown.empty());
  world.shell.answerFile(second);
  inizio.Command4.press();
  EXPECT_EQ(storedArchive(world), second.string());  // PROCEDI was never pressed

  Inizio& again = world.start();
  EXPECT_EQ(again.Lbl_Archivio.text(), second.string());
  EXPECT_EQ(world.program->DbArchivio->path(), second);
}

TEST(Start, LblArchivioReadsTheBarePathAfterAStartAndDatabaseInFrontAfterASelection) {
  ProgramWorld world;
  const auto archive = world.makeArchive(threeDraws());
  world.makeMainFor(archive);
  Inizio& inizio = world.start();
  EXPECT_EQ(inizio.Lbl_Archivio.text(), archive.string());
  world.shell.answerFile(archive);
  inizio.Command4.press();
  EXPECT_EQ(inizio.Lbl_Archivio.text(), "Database: " + archive.string());
}

TEST(Start, TheTraceOfTheChoiceIsOneQuotedRecord) {
  ProgramWorld world;
  world.makeBoth(threeDraws());
  writeBytes(world.folder / "PercorsoDatabase.txt", "an old and much longer trace\nof two lines\n");
  Inizio& inizio = world.start();
  const std::string path = (world.folder / "Perché no.mdb").string();
  world.shell.answerFile(path);
  inizio.Command4.press();
  EXPECT_EQ(readBytes(world.folder / "PercorsoDatabase.txt"), "\"" + path + "\"\r\n");
  EXPECT_EQ(inizio.Lbl_Archivio.text(), "Database: " + path);
}

TEST(Start, ACancelledSelectionChangesNothing) {
  ProgramWorld world;
  world.makeBoth(threeDraws());
  Inizio& inizio = world.start();
  world.shell.answerCancel();
  inizio.Command4.press();
  EXPECT_EQ(inizio.Lbl_Archivio.text(), (world.folder / "Archivio.mdb").string());
  EXPECT_EQ(world.program->PercorsoDbArchivio, world.folder / "Archivio.mdb");
  EXPECT_FALSE(std::filesystem::exists(world.folder / "PercorsoDatabase.txt"));
}

TEST(Start, WithoutARowPercorsoArchivioTheChoiceServesThisRunAndNothingIsStored) {
  ProgramWorld world;
  const auto archive = world.makeArchive(threeDraws());
  world.makeMain({{.Parametro = "EstrazioneIniziale", .Valore1 = "1"}});
  world.shell.answerFile(archive);
  Inizio& inizio = world.start();
  EXPECT_EQ(storedArchive(world), "(nessuno)");
  inizio.Command2.press();
  EXPECT_TRUE(world.shell.isOpen("Container"));
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 3);
  EXPECT_EQ(world.shell.texts(),
            (std::vector<std::string>{kFirstTime, "",
                                      "La scelta vale solo per questa esecuzione: non può essere memorizzata (nel "
                                      "database principale manca il parametro PercorsoArchivio)."}));
}

TEST(Start, ParametersAreTakenAndMissingOnesKeepTheirInitialValue) {
  ProgramWorld world;
  const auto archive = world.makeArchive(threeDraws());
  world.makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = archive.string()},
                  {.Parametro = "ESTRAZIONEINIZIALE", .Valore1 = "2x"}});
  world.start();
  EXPECT_EQ(world.program->EstrazioneIniziale, 2);
  EXPECT_EQ(world.program->IndirizzoInternet, "");
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST(Start, TheGridOfParametersHoldsTheTableInTheOrderOfItsNames) {
  ProgramWorld world;
  const auto archive = world.makeArchive(threeDraws());
  world.makeMain({{.Parametro = "RuotaPrincipale", .Valore1 = "7", .Valore2 = "due"},
                  {.Parametro = "PercorsoArchivio", .Valore1 = archive.string()},
                  {.Parametro = "estrazioneiniziale", .Valore1 = "1"}});
  const Inizio& inizio = world.start();
  ASSERT_EQ(inizio.FgP.rows(), 4);
  EXPECT_EQ(inizio.FgP.text(0, 1), "Parametro");
  EXPECT_EQ(inizio.FgP.text(1, 1), "estrazioneiniziale");
  EXPECT_EQ(inizio.FgP.text(2, 2), archive.string());
  EXPECT_EQ(inizio.FgP.text(3, 3), "due");
}

TEST(Start, ASeekFindsARowInAnyMixOfCaseTheScanOfFgPForIndirizzoInternetDoesNot) {
  ProgramWorld world;
  const auto archive = world.makeArchive(threeDraws());
  world.makeMain({{.Parametro = "PERCORSOarchivio", .Valore1 = archive.string()},
                  {.Parametro = "Indirizzointernet", .Valore1 = "https://example.org/"}});
  const Inizio& inizio = world.start();
  EXPECT_EQ(inizio.Lbl_Archivio.text(), archive.string());
  EXPECT_EQ(world.program->parameters().Valore1("percorsoarchivio"), archive.string());
  EXPECT_EQ(world.program->parameters().Valore1("INDIRIZZOINTERNET"), "https://example.org/");
  EXPECT_EQ(world.program->IndirizzoInternet, "");
  EXPECT_EQ(exactParameter(inizio.FgP, "Indirizzointernet"), "https://example.org/");
}

TEST(Start, FineOnInizioEndsTheProgram) {
  ProgramWorld world;
  world.makeBoth(threeDraws());
  world.start().Command3.press();
  EXPECT_EQ(world.shell.quits, 1);
  EXPECT_NE(world.program->DbParametri, nullptr);
}

TEST(Start, HelpOpensThePageOfEachScreen) {
  ProgramWorld world;
  world.makeBoth(threeDraws());
  Container& container = world.startAndProceed();
  world.inizio().CmDHelp.press();
  container.Command33.press();
  EXPECT_EQ(world.shell.helpContexts, (std::vector<int>{210, 220}));
  EXPECT_EQ(world.inizio().helpContext(), 210);
  EXPECT_EQ(container.helpContext(), 220);
}

TEST(Start, EveryControlHasItsNameAndCaption) {
  ProgramWorld world;
  world.makeBoth(threeDraws());
  const Inizio& inizio = world.start();
  EXPECT_EQ(inizio.get<Button>("Command2").caption(), "PROCEDI");
  EXPECT_EQ(inizio.get<Button>("Command3").caption(), "FINE");
  EXPECT_EQ(inizio.get<Button>("Command4").caption(), "SELEZIONE ARCHIVIO");
  EXPECT_EQ(inizio.get<Button>("CmDHelp").caption(), "Help in linea");
  EXPECT_EQ(inizio.get<Label>("Label5").text(), "Percorso archivio:");
  EXPECT_EQ(inizio.get<Label>("Label1").text(),
            "Da utilizzare solamente al primo utilizzo del programma. Consultare l'help in linea ------->");
  EXPECT_NE(inizio.find("pb1"), nullptr);
  EXPECT_NE(inizio.find("FgP"), nullptr);
  EXPECT_NE(inizio.find("FgDB"), nullptr);
}

}  // namespace
}  // namespace trv5
