#include "core/database.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "core/archive_load.h"
#include "core/database_files.h"
#include "support/archive_builder.h"
#include "support/broken_world.h"
#include "support/left_journal.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

using Reason = DatabaseError::Reason;
using testing::HasSubstr;

std::vector<DrawRow> someDraws(int draws = 5) {
  std::mt19937 rng(7);
  return randomRows(rng, draws);
}

// What opening (and reading) a file as an archive fails with.
std::optional<Reason> failureOf(const std::filesystem::path& file, std::string_view password = programPassword()) {
  try {
    readDraws(Database(file, FileKind::Archive, password));
    return std::nullopt;
  } catch (const DatabaseError& error) {
    EXPECT_THAT(error.what(), HasSubstr(file.string()));
    EXPECT_EQ(error.title(), "Avviso");
    return error.reason();
  }
}

std::string setting(const Database& database, const std::string& name) {
  Statement pragma = database.prepare("PRAGMA " + name);
  pragma.step();
  return pragma.text(0);
}

TEST(Database, GivesBackTheDrawsItWasMadeOf) {
  TempFolder folder;
  const std::vector<DrawRow> rows = someDraws(300);
  createArchive(folder / "a.mdb", rows, Existing::Refuse);
  const std::vector<DrawRow> read = readDraws(Database(folder / "a.mdb", FileKind::Archive));
  ASSERT_EQ(read.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(read[i].date, rows[i].date);
    EXPECT_EQ(read[i].wheels, rows[i].wheels);
  }
}

TEST(Database, NeverMakesAMissingFile) {
  TempFolder folder;
  EXPECT_EQ(failureOf(folder / "manca.mdb"), Reason::Missing);
  EXPECT_FALSE(std::filesystem::exists(folder / "manca.mdb"));
  EXPECT_THROW(Database("", FileKind::Main), DatabaseError);
}

TEST(Database, RefusesWhatIsNoDatabase) {
  TempFolder folder;
  writeBytes(folder / "a.mdb", "Questo è un testo, non un archivio.\n" + std::string(5000, '.'));
  EXPECT_EQ(failureOf(folder / "a.mdb"), Reason::NotADatabase);
  EXPECT_EQ(failureOf(folder.path()), Reason::NotADatabase);
}

TEST(Database, RefusesTheFilesOfOtherProgramsAndOtherKinds) {
  TempFolder folder;
  { const OtherProgram other(folder / "altro.mdb", "CREATE TABLE EstrazioniLotto (DataEstrazione TEXT)"); }
  EXPECT_EQ(failureOf(folder / "altro.mdb"), Reason::OtherProgram);
  createMainDatabase(folder / "main.mdb", {}, Existing::Refuse);
  EXPECT_EQ(failureOf(folder / "main.mdb"), Reason::OtherProgram);
  createExportFile(folder / "export.mdb", Existing::Refuse);
  EXPECT_EQ(failureOf(folder / "export.mdb"), Reason::OtherProgram);
  writeBytes(folder / "empty.mdb", "");
  EXPECT_EQ(failureOf(folder / "empty.mdb"), Reason::Empty);
  EXPECT_EQ(std::filesystem::file_size(folder / "empty.mdb"), 0u);
}

TEST(Database, RefusesAFileOfALaterVersion) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse);
  { const OtherProgram later(folder / "a.mdb", "PRAGMA user_version = 2"); }
  EXPECT_EQ(failureOf(folder / "a.mdb"), Reason::NewerVersion);
}

TEST(Database, AFileWithAPasswordOpensWithThatOneOnly) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse, "segreta");
  EXPECT_EQ(failureOf(folder / "a.mdb", "segreta"), std::nullopt);
  EXPECT_EQ(failureOf(folder / "a.mdb", "Segreta"), Reason::OtherPassword);
  EXPECT_EQ(failureOf(folder / "a.mdb", ""), Reason::OtherPassword);
  EXPECT_EQ(failureOf(folder / "a.mdb"), Reason::OtherPassword);
}

TEST(Database, AFileWithoutAPasswordOpensWithAny) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse, "");
  EXPECT_EQ(failureOf(folder / "a.mdb", ""), std::nullopt);
  EXPECT_EQ(failureOf(folder / "a.mdb", "qualunque"), std::nullopt);
  EXPECT_EQ(failureOf(folder / "a.mdb"), std::nullopt);
}

TEST(Database, ThePasswordItselfStandsNowhereInTheFile) {
  TempFolder folder;
  createArchive(folder / "a.mdb", {}, Existing::Refuse);
  EXPECT_THAT(readBytes(folder / "a.mdb"), testing::Not(HasSubstr(programPassword())));
}

TEST(Database, TwoFilesOfOnePasswordHoldDifferentHashes) {
  TempFolder folder;
  std::vector<std::string> hashes;
  for (const char* name : {"a.mdb", "b.mdb"}) {
    createExportFile(folder / name, Existing::Refuse);
    const Database database(folder / name, FileKind::Export);
    Statement hash = database.prepare("SELECT Impronta FROM Protezione");
    ASSERT_TRUE(hash.step());
    hashes.push_back(hash.text(0));
  }
  EXPECT_NE(hashes[0], hashes[1]);
}

TEST(Database, AHashThatWouldTakeAllMemoryCountsAsAnotherPassword) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse);
  for (const char* hash : {"", "x", "$argon2id$v=19$m=67108864,t=9,p=1$c29tZXNhbHRzb21lc2FsdA$aGFzaA"}) {
    {
      const OtherProgram other(folder / "a.mdb",
                               ("UPDATE Protezione SET Impronta = '" + std::string(hash) + "'").c_str());
    }
    EXPECT_EQ(failureOf(folder / "a.mdb"), Reason::OtherPassword) << hash;
  }
}

TEST(Database, MakesEverySettingThatKeepsTheFileSafe) {
  TempFolder folder;
  createMainDatabase(folder / "main.mdb", {}, Existing::Refuse);
  const Database database(folder / "main.mdb", FileKind::Main);
  EXPECT_FALSE(database.readOnly());
  EXPECT_EQ(setting(database, "journal_mode"), "delete");
  EXPECT_EQ(setting(database, "synchronous"), "3");
  EXPECT_EQ(setting(database, "foreign_keys"), "1");
  EXPECT_EQ(setting(database, "trusted_schema"), "0");
  EXPECT_EQ(setting(database, "cell_size_check"), "1");
  EXPECT_EQ(setting(database, "mmap_size"), "0");
  EXPECT_EQ(setting(database, "busy_timeout"), "2000");
  EXPECT_EQ(setting(database, "user_version"), "1");
}

TEST(Database, TakesAFileOutOfWriteAheadMode) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse);
  { const OtherProgram other(folder / "a.mdb", "PRAGMA journal_mode = WAL"); }
  const Database database(folder / "a.mdb", FileKind::Archive);
  EXPECT_EQ(setting(database, "journal_mode"), "delete");
}

TEST(Database, ALockedFileSaysSoAfterTwoSeconds) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse);
  const OtherProgram other(folder / "a.mdb", "BEGIN EXCLUSIVE");
  EXPECT_EQ(failureOf(folder / "a.mdb"), Reason::Locked);
}

TEST(Database, AFileInWhichAnotherProgramWritesCanBeReadButNotWritten) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse);
  const OtherProgram other(folder / "a.mdb", "BEGIN IMMEDIATE");
  Database database(folder / "a.mdb", FileKind::Archive);
  EXPECT_EQ(readDraws(database).size(), 5u);
  try {
    const Database::Transaction transaction(database);
    FAIL() << "two programs write at once";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.reason(), Reason::Locked);
    EXPECT_THAT(error.what(), HasSubstr("occupato da un altro programma"));
  }
}

TEST(Database, AReadOnlyFileIsOpenedAndTheFirstWriteSaysSo) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse);
  const ReadOnlyFolder readOnly(folder.path());
  Database database(folder / "a.mdb", FileKind::Archive);
  EXPECT_TRUE(database.readOnly());
  EXPECT_EQ(readDraws(database).size(), 5u);
  for (const bool transaction : {true, false}) {
    try {
      if (transaction)
        const Database::Transaction opened(database);
      else
        database.execute("DELETE FROM EstrazioniLotto");
      FAIL() << "a read-only file was written";
    } catch (const DatabaseError& error) {
      EXPECT_EQ(error.reason(), Reason::ReadOnly);
      EXPECT_THAT(error.what(), HasSubstr("sola lettura"));
    }
  }
}

TEST(Database, AFileInAFolderThatTakesNoJournalIsReadOnlyToo) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse);
  const ReadOnlyFolder readOnly(folder.path(), ReadOnlyFolder::Files::Writable);
  EXPECT_TRUE(Database(folder / "a.mdb", FileKind::Archive).readOnly());
}

TEST(Database, AFileTruncatedAnywhereIsToldAndNeverACrash) {
  TempFolder folder;
  createArchive(folder / "whole.mdb", someDraws(200), Existing::Refuse);
  const std::string whole = readBytes(folder / "whole.mdb");
  for (std::size_t length = 1; length < whole.size(); length += 509) {
    SCOPED_TRACE(length);
    writeBytes(folder / "a.mdb", whole.substr(0, length));
    const std::optional<Reason> reason = failureOf(folder / "a.mdb");
    ASSERT_TRUE(reason.has_value());
    // A piece too short for its mark can't even be told from other programs' files.
    EXPECT_TRUE(*reason == Reason::Damaged || *reason == Reason::NotADatabase || *reason == Reason::OtherProgram);
  }
}

TEST(Database, AFileWithAnyBytesChangedIsReadOrRefusedAndNeverACrash) {
  TempFolder folder;
  createArchive(folder / "whole.mdb", someDraws(60), Existing::Refuse, "");
  const std::string whole = readBytes(folder / "whole.mdb");
  int refused = 0;
  for (unsigned seed = 1; seed <= 300; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 rng(seed);
    std::string bytes = whole;
    for (int change = 0; change < 20; ++change) bytes[rng() % bytes.size()] = static_cast<char>(rng() % 256);
    writeBytes(folder / "a.mdb", bytes);
    try {
      Archive archive;
      archive.loadNumbers(readDraws(Database(folder / "a.mdb", FileKind::Archive)));
      archive.countProgressives();
    } catch (const UserError&) {
      ++refused;
    }
  }
  EXPECT_GT(refused, 0);
}

TEST(Database, ATransactionIsRolledBackUnlessCommitted) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse);
  Database database(folder / "a.mdb", FileKind::Archive);
  {
    const Database::Transaction transaction(database);
    database.execute("DELETE FROM EstrazioniLotto");
  }
  EXPECT_EQ(readDraws(database).size(), 5u);
  {
    Database::Transaction transaction(database);
    database.execute("DELETE FROM EstrazioniLotto");
    transaction.commit();
  }
  EXPECT_EQ(readDraws(database).size(), 0u);
  EXPECT_FALSE(std::filesystem::exists(folder / "a.mdb-journal"));
}

TEST(Database, AFullDiskDuringATransactionLeavesTheFileAsItWas) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(40), Existing::Refuse);
  const std::string before = readBytes(folder / "a.mdb");
  {
    Database database(folder / "a.mdb", FileKind::Archive);
    const FullDisk full(before.size());
    EXPECT_THROW(
        {
          Database::Transaction transaction(database);
          Statement insert = database.prepare("INSERT INTO EstrazioniLotto (DataEstrazione, Ba) VALUES (?, ?)");
          for (int day = 1; day <= 2000; ++day)
            insert
                .bind(1, "2" + std::to_string(100 + day / 28) + "-01-" + (day % 28 < 9 ? "0" : "") +
                             std::to_string(day % 28 + 1))
                .bind(2, std::string(100, 'x'))
                .run();
          transaction.commit();
        },
        DatabaseError);
  }
  EXPECT_EQ(readDraws(Database(folder / "a.mdb", FileKind::Archive)).size(), 40u);
}

TEST(Database, AFullFileSaysThatTheDiskIsFull) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse);
  Database database(folder / "a.mdb", FileKind::Archive);
  database.prepare("PRAGMA max_page_count = 1").step();
  try {
    Database::Transaction transaction(database);
    database.prepare("INSERT INTO EstrazioniLotto (DataEstrazione, Ba) VALUES ('2030-01-01', ?)")
        .bind(1, std::string(100000, 'x'))
        .run();
    FAIL() << "the row has no room";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.reason(), Reason::DiskFull);
  }
  EXPECT_EQ(readDraws(database).size(), 5u);
}

TEST(Database, NamesOfTablesAndFieldsCompareWithoutRegardToCase) {
  TempFolder folder;
  createMainDatabase(folder / "main.mdb", {}, Existing::Refuse);
  const Database database(folder / "main.mdb", FileKind::Main);
  EXPECT_TRUE(database.hasTable("elenco_MEMO"));
  EXPECT_TRUE(database.hasField("Elenco_Memo", "dds"));
  EXPECT_FALSE(database.hasTable("Elenco"));
  EXPECT_FALSE(database.hasField("Elenco_Memo", "DDS2"));
  EXPECT_FALSE(database.hasField("Elenco", "DDS"));
}

TEST(Database, AStatementTellsNumbersTextsAndNulls) {
  TempFolder folder;
  createExportFile(folder / "e.mdb", Existing::Refuse);
  const Database database(folder / "e.mdb", FileKind::Export);
  Statement row = database.prepare("SELECT ? AS Uno, ? AS Due, ? AS Tre, ? AS Quattro");
  row.bind(1, 42).bind(2, "già").bindNull(3).bindOrNull(4, "");
  ASSERT_TRUE(row.step());
  EXPECT_EQ(row.columns(), 4);
  EXPECT_EQ(row.columnName(1), "Due");
  EXPECT_EQ(row.number(0), 42);
  EXPECT_EQ(row.text(0), "42");
  EXPECT_EQ(row.text(1), "già");
  EXPECT_EQ(row.number(1), 0);
  EXPECT_TRUE(row.isNull(2));
  EXPECT_EQ(row.text(2), "");
  EXPECT_TRUE(row.isNull(3));
  EXPECT_FALSE(row.step());
  row.reset();
  EXPECT_TRUE(row.step());
}

TEST(Database, AnUnknownTableIsAnErrorThatNamesTheFile) {
  TempFolder folder;
  createExportFile(folder / "e.mdb", Existing::Refuse);
  const Database database(folder / "e.mdb", FileKind::Export);
  try {
    database.prepare("SELECT * FROM Manca");
    FAIL();
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.reason(), Reason::Other);
    EXPECT_THAT(error.what(), HasSubstr("e.mdb"));
  }
}

TEST(Database, TakesANameWithAccentsBlanksAndQuestionMarks) {
  TempFolder folder;
  const auto file = folder / "così è? file:già%20.mdb";
  createArchive(file, someDraws(), Existing::Refuse);
  EXPECT_EQ(failureOf(file), std::nullopt);
}

TEST(DatabaseTexts, OneLongerThanARowTakesIsRefusedInItalian) {
  TempFolder folder;
  createArchive(folder / "a.mdb", someDraws(), Existing::Refuse);
  const Database archive(folder / "a.mdb", FileKind::Archive);
  Statement seek = archive.prepare("SELECT 1 FROM EstrazioniLotto WHERE Ba = ?");
  try {
    seek.bind(1, std::string(2'000'000, 'x'));
    FAIL();
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.reason(), Reason::Constraint);
  }
}

}  // namespace
}  // namespace trv5
