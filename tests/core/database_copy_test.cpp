#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "core/archive_load.h"
#include "core/database.h"
#include "core/database_files.h"
#include "core/draw_sums.h"
#include "core/draw_writer.h"
#include "support/archive_builder.h"
#include "support/broken_world.h"
#include "support/left_journal.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;
using Reason = DatabaseError::Reason;
using testing::HasSubstr;

class DatabaseCopy : public testing::Test {
 protected:
  static std::vector<DrawRow> someDraws(unsigned seed, int draws) {
    std::mt19937 rng(seed);
    return randomRows(rng, draws);
  }
  DatabaseCopy() {
    createArchive(file, someDraws(1, 200), Existing::Refuse);
    createArchive(other, someDraws(2, 900), Existing::Refuse);
    writeBytes(copy, "");
  }
  // All that is stored of the draws, and their sums.
  static std::string contents(const fs::path& archive) {
    const Database database(archive, FileKind::Archive);
    database.checkIntegrity();
    const std::vector<DrawRow> rows = readDraws(database);
    EXPECT_TRUE(differencesFromSums(database, rows).empty());
    std::string all;
    for (const DrawRow& row : rows) {
      all += row.date;
      for (const std::string& wheel : row.wheels) all += "|" + wheel;
      all += "\n";
    }
    return all;
  }
  template <class Act>
  static Reason failureOf(Act act) {
    try {
      act();
    } catch (const DatabaseError& error) {
      EXPECT_THAT(error.what(), HasSubstr(".mdb\" non può essere "));
      return error.reason();
    }
    ADD_FAILURE() << "nothing failed";
    return Reason::Other;
  }

  TempFolder folder;
  const fs::path file = folder / "a.mdb", other = folder / "b.mdb", copy = folder / "copia.mdb";
};

TEST_F(DatabaseCopy, HoldsAllThatTheFileHeld) {
  const std::string before = contents(file);
  Database(file, FileKind::Archive).copyInto(copy);
  EXPECT_EQ(contents(copy), before);
  EXPECT_EQ(contents(file), before);
  EXPECT_THROW(Database(copy, FileKind::Archive, "an other"), DatabaseError) << "the password goes with it";
}

TEST_F(DatabaseCopy, OfTheSameFileIsTheSameByByte) {
  const Database database(file, FileKind::Archive);
  database.copyInto(copy);
  writeBytes(folder / "due.mdb", "");
  database.copyInto(folder / "due.mdb");
  EXPECT_TRUE(readBytes(copy) == readBytes(folder / "due.mdb"));
}

TEST_F(DatabaseCopy, LeavesOutWhatAnotherProgramHasNotCommitted) {
  const std::string before = contents(file);
  const Database database(file, FileKind::Archive);
  const OtherProgram writing(file, "BEGIN IMMEDIATE; DELETE FROM EstrazioniLotto");
  database.copyInto(copy);
  EXPECT_EQ(contents(copy), before);
}

TEST_F(DatabaseCopy, SaysWhyItFails) {
  const Database database(file, FileKind::Archive);
  EXPECT_EQ(failureOf([&] {
              const FullDisk full(8192);
              database.copyInto(copy);
            }),
            Reason::Other);
  EXPECT_EQ(failureOf([&] {
              const OtherProgram holding(file, "PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");
              database.copyInto(copy);
            }),
            Reason::Locked);
}

TEST_F(DatabaseCopy, TakenBackIsTheFile) {
  const std::string wanted = contents(other);
  {
    Database database(file, FileKind::Archive);
    database.takeFrom(Database(other, FileKind::Archive));
    EXPECT_EQ(readDraws(database).size(), 900U) << "also for who holds it open";
    EXPECT_TRUE(deleteDraw(database, readDraws(database).front().date));
  }
  EXPECT_NE(contents(file), wanted);
  Database(file, FileKind::Archive).takeFrom(Database(other, FileKind::Archive));
  EXPECT_EQ(contents(file), wanted);
}

TEST_F(DatabaseCopy, IsNotTakenIntoAFileThatCannotBeWritten) {
  const std::string before = contents(file);
  Database database(file, FileKind::Archive);
  const Database source(other, FileKind::Archive);
  {
    const OtherProgram writing(file, "BEGIN IMMEDIATE");
    EXPECT_EQ(failureOf([&] { database.takeFrom(source); }), Reason::Locked);
  }
  {
    const FullDisk full(60'000);
    failureOf([&] { database.takeFrom(source); });
  }
  EXPECT_EQ(contents(file), before);
  fs::rename(file, folder / "via.mdb");
  EXPECT_EQ(failureOf([&] { database.takeFrom(source); }), Reason::Replaced);
  EXPECT_EQ(contents(folder / "via.mdb"), before);
}

TEST_F(DatabaseCopy, IsNotTakenIntoAReadOnlyFile) {
  const ReadOnlyFolder readOnly(folder.path());
  Database database(file, FileKind::Archive);
  EXPECT_EQ(failureOf([&] { database.takeFrom(Database(other, FileKind::Archive)); }), Reason::ReadOnly);
}

}  // namespace
}  // namespace trv5
