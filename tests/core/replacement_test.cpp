// How a new file takes the place of an old one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <random>

#include "core/archive_load.h"
#include "core/database_files.h"
#include "core/file_writer.h"
#include "support/archive_builder.h"
#include "support/left_journal.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class Replacement : public testing::Test {
 protected:
  std::vector<DrawRow> draws(unsigned seed) {
    std::mt19937 rng(seed);
    return randomRows(rng, 300);
  }
  std::vector<DrawRow> read(const fs::path& file) { return readDraws(Database(file, FileKind::Archive)); }
  void expectDraws(const fs::path& file, unsigned seed) {
    const std::vector<DrawRow> expected = draws(seed), there = read(file);
    ASSERT_EQ(there.size(), expected.size());
    for (std::size_t i = 0; i < there.size(); ++i) EXPECT_EQ(there[i].wheels, expected[i].wheels) << there[i].date;
  }
  // The text with which making an archive in the place of `file` is refused; "" where it was made.
  std::string refusal(const fs::path& file, Existing existing = Existing::Replace) {
    try {
      createArchive(file, draws(2), existing);
      return "";
    } catch (const UserError& error) {
      const fs::path named = fs::exists(file) ? fs::canonical(file) : file;  // behind a link, what it leads to
      EXPECT_THAT(error.what(), HasSubstr(named.string()));
      return error.what();
    }
  }
  std::vector<std::string> files() {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder.path()))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  TempFolder folder;
};

TEST_F(Replacement, TheJournalOfTheOldArchiveNeverReachesTheNewOne) {
  createArchive(folder / "vecchio.mdb", draws(1), Existing::Refuse);
  for (const LeftBehind left : {LeftBehind::Journal, LeftBehind::WriteAhead}) {
    leaveJournal(folder / "vecchio.mdb", folder / "a.mdb", left);
    EXPECT_EQ(refusal(folder / "a.mdb"), "");
    EXPECT_EQ(files(), (std::vector<std::string>{"a.mdb", "vecchio.mdb"}));
    expectDraws(folder / "a.mdb", 2);
  }
}

TEST_F(Replacement, AJournalThatIsOverGoesToo) {
  createArchive(folder / "a.mdb", draws(1), Existing::Refuse);
  { const OtherProgram other(folder / "a.mdb", "PRAGMA journal_mode = PERSIST; DELETE FROM EstrazioniLotto"); }
  ASSERT_TRUE(fs::exists(folder / "a.mdb-journal"));
  EXPECT_EQ(refusal(folder / "a.mdb"), "");
  EXPECT_EQ(files(), std::vector<std::string>{"a.mdb"});
  expectDraws(folder / "a.mdb", 2);
}

TEST_F(Replacement, NothingIsMadeBesideAJournalThatBelongsToNoFile) {
  createArchive(folder / "vecchio.mdb", draws(1), Existing::Refuse);
  for (const LeftBehind left : {LeftBehind::Journal, LeftBehind::WriteAhead}) {
    const std::string end = left == LeftBehind::Journal ? "-journal" : "-wal";
    for (const Existing existing : {Existing::Refuse, Existing::Replace}) {
      leaveJournal(folder / "vecchio.mdb", folder / "a.mdb", left);
      fs::remove(folder / "a.mdb");
      const std::string journal = readBytes(folder / ("a.mdb" + end));
      EXPECT_THAT(refusal(folder / "a.mdb", existing), HasSubstr("a.mdb" + end));
      EXPECT_EQ(files(), (std::vector<std::string>{"a.mdb" + end, "vecchio.mdb"}));
      EXPECT_EQ(readBytes(folder / ("a.mdb" + end)), journal);
      fs::remove(folder / ("a.mdb" + end));
    }
  }
}

TEST_F(Replacement, AJournalBesideAFileThatIsNoDatabaseIsLeftAlone) {
  createArchive(folder / "vecchio.mdb", draws(1), Existing::Refuse);
  leaveJournal(folder / "vecchio.mdb", folder / "a.mdb", LeftBehind::Journal);
  writeBytes(folder / "a.mdb", "una lettera");
  EXPECT_THAT(refusal(folder / "a.mdb"), HasSubstr("a.mdb-journal"));
  EXPECT_EQ(readBytes(folder / "a.mdb"), "una lettera");
}

TEST_F(Replacement, AFileThatAnotherProgramUsesIsNotReplaced) {
  createArchive(folder / "a.mdb", draws(1), Existing::Refuse);
  for (const char* use : {"BEGIN IMMEDIATE", "BEGIN; SELECT * FROM EstrazioniLotto"}) {
    OtherProgram other(folder / "a.mdb", use);
    EXPECT_THAT(refusal(folder / "a.mdb"), HasSubstr("occupato da un altro programma")) << use;
    other.run("ROLLBACK");
  }
  EXPECT_EQ(files(), std::vector<std::string>{"a.mdb"});
  expectDraws(folder / "a.mdb", 1);
}

TEST_F(Replacement, ADamagedDatabaseCanBeReplaced) {
  createArchive(folder / "a.mdb", draws(1), Existing::Refuse);
  std::string bytes = readBytes(folder / "a.mdb");
  std::fill(bytes.begin() + 100, bytes.begin() + 9000, '\xFF');
  writeBytes(folder / "a.mdb", bytes);
  EXPECT_EQ(refusal(folder / "a.mdb"), "");
  expectDraws(folder / "a.mdb", 2);
}

TEST_F(Replacement, ARunningProgramSaysThatItsFileWasReplaced) {
  createArchive(folder / "a.mdb", draws(1), Existing::Refuse);
  Database open(folder / "a.mdb", FileKind::Archive);
  EXPECT_EQ(refusal(folder / "a.mdb"), "");
  for (const bool transaction : {true, false}) {
    try {
      if (transaction)
        const Database::Transaction begun(open);
      else
        open.execute("DELETE FROM EstrazioniLotto");
      FAIL() << "written to a file that has no name any more";
    } catch (const DatabaseError& error) {
      EXPECT_EQ(error.reason(), DatabaseError::Reason::Replaced);
      EXPECT_THAT(error.what(), HasSubstr("sostituito o spostato"));
    }
  }
  EXPECT_EQ(files(), std::vector<std::string>{"a.mdb"});
  expectDraws(folder / "a.mdb", 2);
}

TEST_F(Replacement, OnlyAnOrdinaryFileIsReplaced) {
  ASSERT_EQ(mkfifo((folder / "tubo").c_str(), 0600), 0);
  fs::create_directory(folder / "cartella");
  fs::create_symlink("tubo", folder / "link al tubo");
  fs::create_symlink("altrove", folder / "link a nulla");
  for (const char* name : {"tubo", "cartella", "link al tubo"})
    EXPECT_THAT(refusal(folder / name), HasSubstr("non è un file normale"));
  EXPECT_THAT(refusal(folder / "link a nulla"), HasSubstr("collegamento che non porta a nessun file"));
  EXPECT_TRUE(fs::is_fifo(folder / "tubo"));
  EXPECT_FALSE(fs::exists(folder / "altrove"));
  EXPECT_EQ(files().size(), 4U);
}

TEST_F(Replacement, BehindALinkTheFileItLeadsToIsReplaced) {
  createArchive(folder / "vero.mdb", draws(1), Existing::Refuse);
  fs::create_symlink("vero.mdb", folder / "link.mdb");
  EXPECT_EQ(refusal(folder / "link.mdb"), "");
  EXPECT_TRUE(fs::is_symlink(folder / "link.mdb"));
  expectDraws(folder / "vero.mdb", 2);
}

TEST(ReplacementAtTheStart, TheModelIsNotCopiedBesideAForeignJournal) {
  ProgramWorld world;
  world.model = world.userFolder / "modello.mdb";
  createMainDatabase(world.model, {.parameters = {{.Parametro = "Uno", .Valore1 = "1"}}, .systems = {}},
                     Existing::Refuse);
  fs::create_directory(world.userFolder / "trv5");
  createArchive(world.folder / "vecchio.mdb", {}, Existing::Refuse);
  std::mt19937 rng(1);
  createArchive(world.folder / "vecchio.mdb", randomRows(rng, 300), Existing::Replace);
  const fs::path own = world.userFolder / "trv5" / "DbTRV5.mdb";
  leaveJournal(world.folder / "vecchio.mdb", own, LeftBehind::Journal);
  fs::remove(own);
  try {
    world.start();
    FAIL() << "the model was copied beside the journal";
  } catch (const UserError& error) {
    EXPECT_THAT(error.what(), HasSubstr("DbTRV5.mdb-journal"));
  }
  EXPECT_FALSE(fs::exists(own));
}

}  // namespace
}  // namespace trv5
