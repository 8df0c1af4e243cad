#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <filesystem>

#include "core/archive_load.h"
#include "core/database.h"
#include "core/dates.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

constexpr const char* kHistory =
    "1939/01/07\tBA\t58\t22\t47\t49\t69\n"
    "1939/01/07\tRM\t1\t2\t3\t4\t90\n"
    "2005/05/04\tRN\t51\t89\t82\t70\t37\n";

class Trv5Data : public testing::Test {
 protected:
  ProgramRun run(const std::vector<std::string>& arguments, RunSetup setup = {}) {
    setup.folder = folder.path();
    return runProgram(TRV5_DATA_PROGRAM, arguments, setup);
  }
  // The names in the folder, in order: a file left behind under any name shows.
  std::vector<std::string> files() {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder.path()))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }
  std::vector<DrawRow> draws(const std::string& archive) {
    return readDraws(Database(folder / archive, FileKind::Archive));
  }
  std::string parameter(const std::string& name) {
    const Database database(folder / "m.mdb", FileKind::Main);
    Statement select = database.prepare("SELECT Valore1 FROM ParametriProgramma WHERE Parametro = ?");
    select.bind(1, name);
    return select.step() ? select.text(0) : "no such parameter";
  }
  std::int64_t count(const Database& database, const std::string& what) {
    Statement select = database.prepare("SELECT count(*) FROM " + what);
    select.step();
    return select.number(0);
  }

  TempFolder folder;
};

using Names = std::vector<std::string>;

bool holds(const std::string& text, const std::string& piece) {
  return text.find(piece) != std::string::npos;
}

TEST_F(Trv5Data, TellsItsCommandsInItalian) {
  for (const char* asked : {"--help", "-h", "aiuto"}) {
    const ProgramRun help = run({asked});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.errors, "");
    for (const char* word : {"Uso:", "modello", "--archivio", "demo", "esporta-vuoto", "storico", "--sostituisci"})
      EXPECT_TRUE(holds(help.output, word)) << asked << " " << word;
  }
}

TEST_F(Trv5Data, RefusesWhatItDoesNotUnderstand) {
  const std::vector<std::pair<Names, std::string>> wrong = {
      {{}, "Manca il comando"},
      {{"crea"}, "Il comando \"crea\" non esiste"},
      {{"demo"}, "Al comando demo manca un file"},
      {{"storico", "s.txt"}, "Al comando storico manca un file"},
      {{"demo", "a", "b"}, "\"b\" è di troppo"},
      {{"demo", ""}, "Il nome del file è vuoto"},
      {{"demo", "a", "--forza"}, "L'opzione \"--forza\" non esiste"},
      {{"modello", "a", "--archivio"}, "manca il percorso"},
      {{"demo", "a", "--archivio", "b"}, "--archivio vale solo per il comando modello"}};
  for (const auto& [arguments, message] : wrong) {
    const ProgramRun refused = run(arguments);
    EXPECT_EQ(refused.status, 1) << message;
    EXPECT_EQ(refused.output, "");
    EXPECT_TRUE(holds(refused.errors, message)) << refused.errors;
  }
  EXPECT_EQ(files(), Names{});
}

TEST_F(Trv5Data, MakesTheMainDatabaseWithItsShippedRows) {
  const ProgramRun made = run({"modello", "m.mdb", "--archivio", "/dati/Archivio.mdb"});
  EXPECT_EQ(made.status, 0) << made.errors;
  EXPECT_TRUE(holds(made.output, "\"m.mdb\""));
  EXPECT_EQ(files(), Names{"m.mdb"});
  EXPECT_EQ(parameter("PercorsoArchivio"), "/dati/Archivio.mdb");
  EXPECT_EQ(parameter("Ruote"), "01234567890");
  EXPECT_EQ(parameter("RuotaPrincipale"), "0");
  EXPECT_EQ(parameter("EstrazioneIniziale"), "1");
  EXPECT_TRUE(holds(parameter("IndirizzoInternet"), "https://"));
  EXPECT_EQ(parameter("PercorsoDati.iii"), "");

  const Database database(folder / "m.mdb", FileKind::Main);
  for (const char* table : {"ParametriProgramma", "Salvataggi", "Configurazioni", "Confignumeri", "Elenco_Memo",
                            "Elenco_Dett", "Sist_Ortogonali", "Sist_OrtoSv"})
    EXPECT_TRUE(database.hasTable(table)) << table;
  EXPECT_GE(count(database, "Sist_Ortogonali"), 15);
  EXPECT_EQ(count(database, "Elenco_Memo"), 0);
  EXPECT_EQ(count(database, "Sist_OrtoSv WHERE length(replace(Num, ' ', '')) <> Qn OR length(Num) <> 90"), 0);
  Statement widths = database.prepare(
      "SELECT count(*) FROM Sist_Ortogonali JOIN Sist_OrtoSv ON IdOrto = RifOrto WHERE Qn <> sviluppo");
  ASSERT_TRUE(widths.step());
  EXPECT_EQ(widths.number(0), 0);
}

TEST_F(Trv5Data, LeavesTheArchiveOfTheMainDatabaseEmptyOrMakesItsPathWhole) {
  ASSERT_EQ(run({"modello", "m.mdb"}).status, 0);
  EXPECT_EQ(parameter("PercorsoArchivio"), "");
  ASSERT_EQ(run({"modello", "--sostituisci", "--archivio", "a.mdb", "m.mdb"}).status, 0);
  EXPECT_EQ(parameter("PercorsoArchivio"), (folder / "a.mdb").string());
}

TEST_F(Trv5Data, MakesTheDemonstrationArchive) {
  const std::string name = "Archivio dimostrativo (simulato).mdb";
  const ProgramRun made = run({"demo", name});
  EXPECT_EQ(made.status, 0) << made.errors;
  EXPECT_TRUE(holds(made.output, "7370 estrazioni simulate, dal 07/01/1939 al 21/08/2026"));
  const std::vector<DrawRow> rows = draws(name);
  ASSERT_EQ(rows.size(), 7370U);
  EXPECT_EQ(rows.front().date, "07/01/1939");
  EXPECT_EQ(rows.front().wheels[1], "") << "Cagliari wasn't drawn yet";
  EXPECT_EQ(rows.front().wheels[0].size(), 14U);
  EXPECT_EQ(rows.back().date, "21/08/2026");
  EXPECT_EQ(rows.back().wheels[10], "72-32-78-42-17");
}

TEST_F(Trv5Data, MakesTheSameDemonstrationArchiveAtEveryRun) {
  ASSERT_EQ(run({"demo", "a"}).status, 0);
  ASSERT_EQ(run({"demo", "b"}).status, 0);
  EXPECT_TRUE(readBytes(folder / "a") == readBytes(folder / "b"));
}

TEST_F(Trv5Data, MakesAnEmptyExportFile) {
  EXPECT_EQ(run({"esporta-vuoto", "TRV5_Export.mdb"}).status, 0);
  const Database database(folder / "TRV5_Export.mdb", FileKind::Export);
  EXPECT_EQ(count(database, "Elenco_Memo"), 0);
  EXPECT_EQ(count(database, "Elenco_Dett"), 0);
}

TEST_F(Trv5Data, MakesAnArchiveOfThePublishedHistory) {
  writeBytes(folder / "s.txt", kHistory);
  const ProgramRun made = run({"storico", "s.txt", "a.mdb"});
  EXPECT_EQ(made.status, 0) << made.errors;
  EXPECT_TRUE(holds(made.output, "2 estrazioni, dal 07/01/1939 al 04/05/2005"));
  EXPECT_EQ(files(), (Names{"a.mdb", "s.txt"}));
  const std::vector<DrawRow> rows = draws("a.mdb");
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].wheels[0], "58-22-47-49-69");
  EXPECT_EQ(rows[0].wheels[7], "01-02-03-04-90");
  EXPECT_EQ(rows[1].wheels[10], "51-89-82-70-37");
  const Database database(folder / "a.mdb", FileKind::Archive);
  EXPECT_EQ(count(database, "EstrazioniLotto WHERE Ca IS NULL"), 2) << "a wheel without a line is NULL";
}

TEST_F(Trv5Data, ReportsEveryBadLineWithFileAndNumberAndWritesNothing) {
  writeBytes(folder / "s.txt",
             std::string(kHistory) + "1939/02/30\tBA\t1\t2\t3\t4\t5\n" + kHistory + "1939/01/14\tXX\t1\t2\t3\t4\t5\n");
  const ProgramRun refused = run({"storico", "s.txt", "a.mdb"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.output, "");
  EXPECT_EQ(refused.errors,
            "s.txt, riga 4: \"1939/02/30\" non è una data nella forma AAAA/MM/GG\n"
            "s.txt, riga 8: la ruota \"XX\" non esiste\n"
            "Le righe errate sono 2: non è stato scritto nulla.\n");
  EXPECT_EQ(files(), Names{"s.txt"});
}

TEST_F(Trv5Data, OfAMillionBadLinesItPrintsAHundredAndTheirNumber) {
  std::string text;
  for (int i = 0; i < 1'000'000; ++i) text += "sbagliata\n";
  writeBytes(folder / "s.txt", text);
  const ProgramRun refused = run({"storico", "s.txt", "a.mdb"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(std::count(refused.errors.begin(), refused.errors.end(), '\n'), 102);
  EXPECT_TRUE(holds(refused.errors, "s.txt, riga 100: "));
  EXPECT_FALSE(holds(refused.errors, "s.txt, riga 101: "));
  EXPECT_TRUE(holds(refused.errors, "Le righe errate sono 1000000: non è stato scritto nulla."));
}

TEST_F(Trv5Data, ADeviceWithoutAnEndIsNoSource) {
  const ProgramRun refused = run({"storico", "/dev/zero", "a.mdb"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_TRUE(holds(refused.errors, "supera i 67108864 byte")) << refused.errors;
  EXPECT_EQ(files(), Names{});
}

TEST_F(Trv5Data, RefusesASourceThatIsMissingEmptyOrDamaged) {
  writeBytes(folder / "vuoto.txt", "\n");
  writeBytes(folder / "rotto.gz", "\x1F\x8B\x08");
  writeBytes(folder / "rotto.zip", "PK\x03\x04");
  for (const std::string source : {"manca.txt", "vuoto.txt", "rotto.gz", "rotto.zip", "."}) {
    const ProgramRun refused = run({"storico", source, "a.mdb"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(holds(refused.errors, "\"" + source + "\"")) << refused.errors;
  }
  EXPECT_FALSE(fs::exists(folder / "a.mdb"));
}

TEST_F(Trv5Data, RefusesMoreDrawsThanAnArchiveHolds) {
  std::string text;
  const Day first = dayOf(1900, 1, 1).value();
  for (int i = 0; i < 10000; ++i) {
    std::string date = isoText(first + std::chrono::days(i));
    std::replace(date.begin(), date.end(), '-', '/');
    text += date + "\tBA\t1\t2\t3\t4\t5\n";
    if (i == 9998) writeBytes(folder / "giusto.txt", text);
  }
  writeBytes(folder / "troppo.txt", text);
  EXPECT_EQ(run({"storico", "giusto.txt", "a.mdb"}).status, 0);
  EXPECT_EQ(draws("a.mdb").size(), 9999U);
  const ProgramRun refused = run({"storico", "troppo.txt", "b.mdb"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_TRUE(holds(refused.errors, "10000")) << refused.errors;
  EXPECT_FALSE(fs::exists(folder / "b.mdb"));
}

TEST_F(Trv5Data, OverwritesNothingWithoutBeingTold) {
  writeBytes(folder / "s.txt", kHistory);
  writeBytes(folder / "f", "mio");
  fs::create_symlink("altrove", folder / "link");
  for (const std::string target : {"f", "link"}) {
    for (const Names& command : {Names{"modello"}, Names{"demo"}, Names{"esporta-vuoto"}, Names{"storico", "s.txt"}}) {
      Names arguments = command;
      arguments.push_back(target);
      const ProgramRun refused = run(arguments);
      EXPECT_EQ(refused.status, 1);
      EXPECT_TRUE(holds(refused.errors, "esiste già") && holds(refused.errors, "--sostituisci")) << refused.errors;
    }
  }
  EXPECT_EQ(readBytes(folder / "f"), "mio");
  EXPECT_EQ(files(), (Names{"f", "link", "s.txt"}));
}

TEST_F(Trv5Data, ReplacesAFileWhenTold) {
  writeBytes(folder / "s.txt", kHistory);
  writeBytes(folder / "f", "mio");
  EXPECT_EQ(run({"storico", "s.txt", "f", "--sostituisci"}).status, 0);
  EXPECT_EQ(draws("f").size(), 2U);
}

TEST_F(Trv5Data, NeverReplacesItsOwnSource) {
  writeBytes(folder / "s.txt", kHistory);
  const ProgramRun refused = run({"storico", "s.txt", "./s.txt", "--sostituisci"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(readBytes(folder / "s.txt"), kHistory);
}

TEST_F(Trv5Data, KeepsTheOldFileWhenTheNewOneFails) {
  writeBytes(folder / "s.txt", "1939/01/07\n");
  writeBytes(folder / "f", "mio");
  EXPECT_EQ(run({"storico", "s.txt", "f", "--sostituisci"}).status, 1);
  EXPECT_EQ(readBytes(folder / "f"), "mio");
}

TEST_F(Trv5Data, NamesTheFileThatCannotBeMade) {
  for (const std::string target : {"manca/f", "/dev/null/f"}) {
    const ProgramRun refused = run({"demo", target});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(holds(refused.errors, target)) << refused.errors;
  }
  fs::create_directory(folder / "cartella");
  EXPECT_EQ(run({"demo", "cartella", "--sostituisci"}).status, 1);
  EXPECT_EQ(files(), Names{"cartella"});
}

TEST_F(Trv5Data, LeavesNoHalfFileOnAFullDiskAndTheOldOneAsItWas) {
  writeBytes(folder / "s.txt", kHistory);
  for (const Names& command : {Names{"modello"}, Names{"demo"}, Names{"esporta-vuoto"}, Names{"storico", "s.txt"}}) {
    Names arguments = command;
    arguments.insert(arguments.end(), {"f", "--sostituisci"});
    ASSERT_EQ(run(arguments).status, 0);
    const std::size_t whole = fs::file_size(folder / "f");
    fs::remove(folder / "f");

    // The disk is full at the first byte, in the middle, just before the end.
    for (const std::size_t room : {std::size_t{0}, std::size_t{4096}, whole / 2, whole - 4096, whole - 1}) {
      SCOPED_TRACE(command.front() + " with room for " + std::to_string(room));
      RunSetup setup;
      setup.largestFile = room;
      const ProgramRun fresh = run(arguments, setup);
      EXPECT_EQ(fresh.status, 1);
      EXPECT_TRUE(holds(fresh.errors, "non può essere scritto")) << fresh.errors;
      EXPECT_EQ(files(), Names{"s.txt"});

      writeBytes(folder / "f", "mio");
      EXPECT_EQ(run(arguments, setup).status, 1);
      EXPECT_EQ(readBytes(folder / "f"), "mio");
      EXPECT_EQ(files(), (Names{"f", "s.txt"}));
      fs::remove(folder / "f");
    }
  }
}

TEST_F(Trv5Data, StoppedAtAnyMomentLeavesTheWholeFileOrNone) {
  using Clock = std::chrono::steady_clock;
  const auto begin = Clock::now();
  ASSERT_EQ(run({"demo", "f"}).status, 0);
  const auto whole = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begin);
  fs::remove(folder / "f");

  constexpr int kMoments = 8;
  int stopped = 0;
  for (const int signal : {SIGKILL, SIGTERM, SIGINT}) {
    for (int moment = 0; moment < kMoments; ++moment) {
      RunSetup setup;
      setup.stopAfter = whole * moment / kMoments;
      setup.stopSignal = signal;
      SCOPED_TRACE("signal " + std::to_string(signal) + " after " + std::to_string(setup.stopAfter->count()) + " ms");
      stopped += run({"demo", "f"}, setup).signal == signal;
      if (fs::exists(folder / "f")) {
        EXPECT_EQ(draws("f").size(), 7370U);
        fs::remove(folder / "f");
      }
      // Only a kill that nothing can hold leaves its beginning behind, under a name of its own.
      for (const std::string& name : files()) {
        EXPECT_EQ(signal, SIGKILL);
        EXPECT_EQ(name.substr(0, 3), ".f.");
        fs::remove(folder / name);
      }
    }
  }
  EXPECT_GT(stopped, 0) << "no run was stopped at all";
}

}  // namespace
}  // namespace trv5
