#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "core/archive_load.h"
#include "core/errors.h"
#include "core/four_draws.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

constexpr const char* kOtherArchiveText =
    "Attenzione, probabilmente è stato selezionato un altro archivio. Chiudere il programma e riavviarlo";

void expectFailedProcedi(ProgramWorld& world) {
  ASSERT_EQ(world.shell.shown.size(), 1u);
  EXPECT_EQ(
      world.shell.lastBox(),
      (ShownBox{
          .kind = ShownBox::Kind::Message, .title = "Avviso", .text = kOtherArchiveText, .icon = Icon::Critical}));
  EXPECT_TRUE(world.shell.isOpen("INIZIO"));
  EXPECT_FALSE(world.shell.isOpen("Container"));
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 0);
}

TEST(Procedi, LoadsTheArchiveClosesInizioAndShowsTheShell) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  world.startAndProceed();
  EXPECT_TRUE(world.shell.shown.empty());
  EXPECT_FALSE(world.shell.isOpen("INIZIO"));
  EXPECT_TRUE(world.shell.isOpen("Container"));
  EXPECT_EQ(world.shell.statusTexts, std::vector<std::string>{"Archivio caricato: 4 estrazioni"});
  const Archive& archive = world.program->archive;
  EXPECT_EQ(archive.NumEstrazioni(), 4);
  EXPECT_EQ(archive.UltimaEstrazione(), 4);
  EXPECT_EQ(archive.DateEstrazioni(1), "07/01/1939");
  EXPECT_EQ(archive.NumeriEstratti(1, 0, 1), 58);
  EXPECT_EQ(archive.NumeriEstratti(1, 0, 5), 69);
  EXPECT_EQ(archive.NumeriEstratti(2, 7, 3), 3);
  EXPECT_EQ(archive.ProgMese(2), 2);
  EXPECT_EQ(archive.ProgAnno(3), 3);
  EXPECT_EQ(archive.ProgAnno(4), 1);
}

TEST(Procedi, ReadsTheDrawsInTheOrderOfTheirDatesWhateverTheirOrderInTheFile) {
  std::vector<DrawRow> rows = fourDraws();
  std::swap(rows[0], rows[3]);
  ProgramWorld world;
  world.makeBoth(rows);
  world.startAndProceed();
  EXPECT_EQ(world.program->archive.DateEstrazioni(1), "07/01/1939");
  EXPECT_EQ(world.program->archive.DateEstrazioni(4), "06/01/1940");
}

TEST(Procedi, GivesAnArchiveOfOneDrawTheProgressivesOneAndOne) {
  ProgramWorld world;
  world.makeBoth({fourDraws()[0]});
  Container& container = world.startAndProceed();
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 1);
  EXPECT_EQ(world.program->archive.ProgMese(1), 1);
  EXPECT_EQ(world.program->archive.ProgAnno(1), 1);
  EXPECT_EQ(container.Lbl_Ev.text(), "1");
  EXPECT_EQ(container.LblInizio.text(), "07/01/1939");
  EXPECT_EQ(container.LblFine.text(), "07/01/1939");
}

TEST(Procedi, ReadsAnEmptyNzAsFiveZerosWithoutError) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  world.startAndProceed();
  for (int position = 1; position <= 5; ++position)
    EXPECT_EQ(world.program->archive.NumeriEstratti(1, kNational, position), 0) << position;
  EXPECT_EQ(world.program->archive.NumeriEstratti(3, kNational, 1), 90);
}

TEST(Procedi, EstrazioneInizialeZeroPutsTheIndexZeroFirstWithItsEmptyDate) {
  ProgramWorld world;
  world.makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = world.makeArchive(fourDraws()).string()}});
  Container& container = world.startAndProceed();
  const Archive& archive = world.program->archive;
  ASSERT_EQ(archive.NumModello(), 5);
  EXPECT_EQ(archive.IndiciModello(1), 0);
  EXPECT_EQ(archive.IndiciModello(5), 4);
  EXPECT_EQ(container.LblInizio.text(), "");
  EXPECT_EQ(container.Lbl_inizioNE.text(), "0");
  EXPECT_EQ(container.Lbl_fineNE.text(), "4");
  EXPECT_EQ(container.Lbl_Ev.text(), "5");
}

TEST(Procedi, EstrazioneInizialeInsideTheArchiveShortensTheModel) {
  ProgramWorld world;
  world.makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = world.makeArchive(fourDraws()).string()},
                  {.Parametro = "EstrazioneIniziale", .Valore1 = " 3 dal 1939"}});
  Container& container = world.startAndProceed();
  EXPECT_EQ(world.program->archive.NumModello(), 2);
  EXPECT_EQ(container.LblInizio.text(), "04/02/1939");
  EXPECT_EQ(container.Lbl_inizioNE.text(), "3");
  EXPECT_EQ(container.Lbl_Ev.text(), "2");
  EXPECT_EQ(container.FG5.rows(), 5);  // the list holds the whole archive
}

TEST(Procedi, EstrazioneInizialeBeyondTheLastDrawShowsTheBox) {
  ProgramWorld world;
  world.makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = world.makeArchive(fourDraws()).string()},
                  {.Parametro = "EstrazioneIniziale", .Valore1 = "5"}});
  world.start().Command2.press();
  expectFailedProcedi(world);
}

TEST(Procedi, AnArchiveWithoutDrawsShowsTheBox) {
  ProgramWorld world;
  world.makeBoth({});
  world.start().Command2.press();
  expectFailedProcedi(world);
}

TEST(Procedi, AnArchiveWithoutTheTableShowsTheBoxAndKeepsInizio) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  Database(world.folder / "Archivio.mdb", FileKind::Archive).execute("DROP TABLE EstrazioniLotto");
  world.start().Command2.press();
  expectFailedProcedi(world);
}

TEST(Procedi, TellsBesideTheFixedTextWhatWentWrong) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  const std::filesystem::path archive = world.folder / "Archivio.mdb";
  world.start();
  std::ofstream(archive) << "un testo";
  world.inizio().Command2.press();
  expectFailedProcedi(world);
  EXPECT_EQ(world.shell.reasons.back(),
            "Il file \"" + archive.string() + "\" non può essere aperto: non è un file di dati di TRV5.");
}

TEST(Procedi, TakesNineThousandNineHundredNinetyNineDrawsAndRefusesOneMore) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= 9999; ++draw) rows.push_back(drawOf(dateOfDraw(draw), {}));
  {
    ProgramWorld world;
    world.makeBoth(rows);
    Container& container = world.startAndProceed();
    EXPECT_EQ(world.program->archive.NumEstrazioni(), 9999);
    EXPECT_EQ(container.Lbl_fineNE.text(), "9999");
  }
  rows.push_back(drawOf(dateOfDraw(10000), {}));
  ProgramWorld world;
  world.makeBoth(rows);
  world.start().Command2.press();
  expectFailedProcedi(world);
}

TEST(Procedi, WorksAfterAFailureAndAnotherChoice) {
  ProgramWorld world;
  const auto good = world.makeArchive(fourDraws(), "buono.mdb");
  const auto empty = world.makeArchive({}, "vuoto.mdb");
  world.makeMainFor(empty);
  Inizio& inizio = world.start();
  inizio.Command2.press();
  expectFailedProcedi(world);
  world.shell.answerFile(good);
  inizio.Command4.press();
  inizio.Command2.press();
  EXPECT_TRUE(world.shell.isOpen("Container"));
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 4);
}

TEST(Procedi, LoadsTheArchiveChosenAtOnceButWritesNeitherToItNorToTheOneOfTheStart) {
  ProgramWorld world;
  const auto first = world.makeArchive(fourDraws(), "primo.mdb");
  const auto second = world.makeArchive({fourDraws()[3]}, "secondo.mdb");
  world.makeMainFor(first);
  Inizio& inizio = world.start();
  world.shell.answerFile(second);
  inizio.Command4.press();
  inizio.Command2.press();
  EXPECT_EQ(world.program->archive.NumEstrazioni(), 1);
  EXPECT_EQ(world.program->DbArchivio->path(), first);
  try {
    world.program->archiveToWrite();
    FAIL() << "the archive of the start isn't the one loaded";
  } catch (const UserError& error) {
    EXPECT_STREQ(error.what(), kOtherArchiveText);
    EXPECT_EQ(error.title(), "Avviso");
  }
  world.startAndProceed();  // the next start holds the new choice
  EXPECT_EQ(world.program->archiveToWrite().path(), second);
}

TEST(Procedi, RefusesToWriteToAnArchiveThatAnotherFileReplacedMeanwhile) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  world.startAndProceed();
  EXPECT_NO_THROW(world.program->archiveToWrite());
  world.makeArchive({fourDraws()[0]});
  EXPECT_THROW(world.program->archiveToWrite(), UserError);
}

TEST(Procedi, MovesTheBarOfInizioAtEveryRow) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  Inizio& inizio = world.start();
  std::vector<std::pair<int, int>> steps;
  inizio.pb1.setListener([&] { steps.emplace_back(inizio.pb1.value(), inizio.pb1.maximum()); });
  inizio.Command2.press();
  EXPECT_EQ(steps, (std::vector<std::pair<int, int>>{{1, 5}, {2, 5}, {3, 5}, {4, 5}}));
}

TEST(Procedi, FillsFgDBWithTheRowsOfTheQuery) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  Inizio& inizio = world.start();
  inizio.Command2.press();
  ASSERT_EQ(inizio.FgDB.rows(), 5);
  ASSERT_EQ(inizio.FgDB.columns(), 13);
  EXPECT_EQ(inizio.FgDB.text(1, 1), "07/01/1939");
  EXPECT_EQ(inizio.FgDB.text(1, 2), "58-22-47-49-69");
  EXPECT_EQ(inizio.FgDB.text(1, 3), "");
  EXPECT_EQ(inizio.FgDB.text(3, 12), "90-89-88-87-86");
}

TEST(Shell, ListsTheArchiveInFG5) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  const Container& container = world.startAndProceed();
  EXPECT_EQ(container.title(), "TRV 5");
  ASSERT_EQ(container.FG5.rows(), 5);
  ASSERT_EQ(container.FG5.columns(), 5);
  const auto row = [&](int r) {
    std::vector<std::string> texts;
    for (int c = 0; c < 5; ++c) texts.push_back(container.FG5.text(r, c));
    return texts;
  };
  EXPECT_EQ(row(0), (std::vector<std::string>{"", "N° estr", "Data", "PA", "PM"}));
  EXPECT_EQ(row(2), (std::vector<std::string>{"", "2", "14/01/1939", "2", "2"}));
  EXPECT_EQ(row(3), (std::vector<std::string>{"", "3", "04/02/1939", "3", "1"}));
  EXPECT_EQ(row(4), (std::vector<std::string>{"", "4", "06/01/1940", "1", "1"}));
}

TEST(Shell, ShowsTheEndsOfTheModelArchive) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  const Container& container = world.startAndProceed();
  EXPECT_EQ(container.LblInizio.text(), "07/01/1939");
  EXPECT_EQ(container.LblFine.text(), "06/01/1940");
  EXPECT_EQ(container.Lbl_inizioNE.text(), "1");
  EXPECT_EQ(container.Lbl_fineNE.text(), "4");
  EXPECT_EQ(container.Lbl_Ev.text(), "4");
  EXPECT_EQ(container.Lbl_Ev.fore(), 0x008000u);
}

TEST(Shell, EachButtonOpensItsScreenAndThoseOfMissingScreensAreDisabledWithAWord) {
  const std::vector<std::pair<std::string, std::string>> kButtons = {{"Command4", "Sommativi1"},
                                                                     {"Command1", "archivio"},
                                                                     {"Command5", "Estrazioni_minielenco"},
                                                                     {"Command6", "SistemiOrtogonali"},
                                                                     {"Command2", "ImportExport"},
                                                                     {"Command3", "FunzioniAggiuntive"},
                                                                     {"Command7", "DiDiSO"}};
  for (const auto& [button, screen] : kButtons) {
    SCOPED_TRACE(button);
    {
      ProgramWorld world;
      world.makeBoth(fourDraws());
      const Container& container = world.startAndProceed();
      EXPECT_FALSE(container.get<Button>(button).enabled());
      EXPECT_THAT(container.get<Button>(button).toolTip(), testing::HasSubstr("non esiste ancora"));
    }
    ProgramWorld world;
    world.shell.addScreen(screen, [&] { return std::make_unique<Form>(world.shell, screen, screen); });
    world.makeBoth(fourDraws());
    const Container& container = world.startAndProceed();
    ASSERT_TRUE(container.get<Button>(button).enabled());
    EXPECT_EQ(container.get<Button>(button).toolTip(), "");
    container.get<Button>(button).press();
    EXPECT_EQ(world.shell.shownScreens.back(), screen);
  }
}

TEST(Shell, EveryButtonHasItsCaption) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  const Container& container = world.startAndProceed();
  std::vector<std::string> captions;
  for (const char* name :
       {"Command4", "Command1", "Command5", "Command6", "Command2", "Command3", "Command7", "Command33", "Command45"})
    captions.push_back(container.get<Button>(name).caption());
  EXPECT_EQ(captions,
            (std::vector<std::string>{"TRV5", "Gestione archivio", "Mini elenco estrazioni", "Sistemi ortogonali",
                                      "Esporta e importa configurazioni", "Funzioni aggiuntive",
                                      "Rileva caratteristiche estrazione", "Help in linea", "FINE"}));
}

TEST(Shell, FineClosesTheOpenFilesAndEndsTheProgram) {
  ProgramWorld world;
  world.makeBoth(fourDraws());
  world.startAndProceed().Command45.press();
  EXPECT_EQ(world.program->DbParametri, nullptr);
  EXPECT_EQ(world.program->DbArchivio, nullptr);
  EXPECT_EQ(world.shell.quits, 1);
}

}  // namespace
}  // namespace trv5
