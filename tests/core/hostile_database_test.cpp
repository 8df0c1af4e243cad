// Files that another program made to do harm, or that merely look like ours.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>

#include "core/archive_load.h"
#include "core/draw_writer.h"
#include "support/broken_world.h"
#include "support/left_journal.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using Reason = DatabaseError::Reason;

// A sum over a billion rows.
const std::string kEndless =
    "(WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000000000) SELECT sum(i) FROM n)";

class HostileDatabase : public testing::Test {
 protected:
  HostileDatabase() { createArchive(file, {drawOf("07/01/1939", {{"BA", {1, 2, 3, 4, 5}}})}, Existing::Refuse, ""); }
  void change(const std::string& sql) { const OtherProgram other(file, sql); }
  // Puts another statement in the place of one of the schema's, as no well-meaning program does.
  void changeSchema(const std::string& name, const std::string& sql) {
    const OtherProgram other(
        file, "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = '" + sql + "' WHERE name = '" + name + "'");
  }
  // Why the archive isn't read; nothing when it is. None takes more than two seconds.
  std::optional<Reason> refusal() {
    const auto begin = std::chrono::steady_clock::now();
    std::optional<Reason> reason;
    try {
      const Database archive(file, FileKind::Archive, "");
      archive.checkIntegrity();
      const std::vector<DrawRow> rows = readDraws(archive);
      EXPECT_THAT(differencesFromSums(archive, rows), IsEmpty());
    } catch (const DatabaseError& error) {
      reason = error.reason();
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(2500));
    return reason;
  }

  TempFolder folder;
  fs::path file = folder / "a.mdb";
};

TEST_F(HostileDatabase, AViewInPlaceOfTheTableIsRefused) {
  change("ALTER TABLE EstrazioniLotto RENAME TO Vera; CREATE VIEW EstrazioniLotto AS SELECT * FROM Vera");
  EXPECT_EQ(refusal(), Reason::WrongShape);
}

TEST_F(HostileDatabase, AVirtualTableInPlaceOfTheTableIsRefused) {
  change(
      "DROP VIEW Query_AAMMGG; DROP TABLE EstrazioniLotto; CREATE VIRTUAL TABLE EstrazioniLotto USING "
      "fts4(DataEstrazione, Ba, Ca, Fi, Ge, Mi, Na, Pa, Ro, \"To\", Ve, Nz)");
  EXPECT_EQ(refusal(), Reason::WrongShape);
}

TEST_F(HostileDatabase, GeneratedColumnsAreRefused) {
  change(
      "DROP VIEW Query_AAMMGG; DROP TABLE EstrazioniLotto; CREATE TABLE EstrazioniLotto (DataEstrazione TEXT, Ba TEXT "
      "AS (printf('%.*c', 500000, 'x')), Ca TEXT, Fi TEXT, Ge TEXT, Mi TEXT, Na TEXT, Pa TEXT, Ro TEXT, \"To\" TEXT, "
      "Ve TEXT, Nz TEXT)");
  EXPECT_EQ(refusal(), Reason::WrongShape);
}

TEST_F(HostileDatabase, AMissingColumnIsToldByItsName) {
  change("DROP VIEW Query_AAMMGG; ALTER TABLE EstrazioniLotto DROP COLUMN Nz");
  try {
    readDraws(Database(file, FileKind::Archive, ""));
    FAIL();
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.reason(), Reason::WrongShape);
    EXPECT_THAT(error.what(), HasSubstr("Nz"));
  }
}

TEST_F(HostileDatabase, AViewHiddenInTheSchemaOfATableIsRefused) {
  changeSchema("EstrazioniLotto", "CREATE VIEW EstrazioniLotto AS SELECT " + kEndless + " AS DataEstrazione");
  EXPECT_TRUE(refusal().has_value());
}

TEST_F(HostileDatabase, AnEndlessViewUnderAnyOfOurNamesIsNeverRun) {
  for (const char* name : {"VerificaEstrazioni", "Protezione"}) {
    change("DROP TABLE IF EXISTS " + std::string(name) + "; CREATE VIEW " + name + " AS SELECT " + kEndless +
           " AS DataEstrazione, 1 AS Somma, 'x' AS Impronta");
    refusal();  // its time is what counts
  }
}

TEST_F(HostileDatabase, AnEndlessIndexEndsInTwoSeconds) {
  // Each row costs a long comparison; an index on an expression is worked out again by the integrity check.
  change(
      "CREATE TABLE Peso (t TEXT); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) "
      "INSERT INTO Peso SELECT printf('%.*c', 900, 'x') FROM n");
  std::string heavy = "t";
  for (int i = 0; i < 12; ++i) heavy = "replace(" + heavy + ", ''x'', ''xx'')";
  change("CREATE INDEX Pesante ON Peso (length(t))");
  changeSchema("Pesante", "CREATE INDEX Pesante ON Peso (length(" + heavy + "))");
  refusal();
}

TEST_F(HostileDatabase, ATextOfManyMegabytesIsRefused) {
  change("UPDATE EstrazioniLotto SET Ba = printf('%.*c', 20000000, '1')");
  EXPECT_TRUE(refusal().has_value());
}

TEST_F(HostileDatabase, AnArchiveBeyondAnySizeIsRefusedAtOnce) {
  fs::resize_file(file, std::uintmax_t{3} << 30);
  EXPECT_EQ(refusal(), Reason::TooLarge);
}

TEST_F(HostileDatabase, NoTriggerRuns) {
  change("CREATE TRIGGER Ruba AFTER INSERT ON EstrazioniLotto BEGIN DELETE FROM EstrazioniLotto; END");
  Database archive(file, FileKind::Archive, "");
  writeDraw(archive, drawOf("14/01/1939", {}));
  EXPECT_EQ(readDraws(archive).size(), 2U);
}

TEST_F(HostileDatabase, AJournalThatIsAPipeIsRefusedInsteadOfWaitedFor) {
  for (const char* end : {"-journal", "-wal"}) {
    ASSERT_EQ(mkfifo((file.string() + end).c_str(), 0600), 0);
    EXPECT_EQ(refusal(), Reason::Other);
    fs::remove(file.string() + end);
  }
}

TEST(HostileMainDatabase, ATriggerCannotEmptyTheParameters) {
  ProgramWorld world;
  world.makeMainFor("");
  {
    const OtherProgram other(world.folder / "DbTRV5.mdb",
                             "CREATE TRIGGER Ruba AFTER UPDATE ON ParametriProgramma BEGIN DELETE FROM "
                             "ParametriProgramma; END");
  }
  const auto archive = world.makeArchive({drawOf("07/01/1939", {})});
  world.shell.answerFile(archive);
  world.start();
  EXPECT_EQ(world.program->parameters().Valore1("PercorsoArchivio"), archive.string());
  EXPECT_EQ(world.program->parameters().Valore1("EstrazioneIniziale"), "1");
}

TEST(HostileMainDatabase, AViewInPlaceOfTheParametersIsRefused) {
  ProgramWorld world;
  world.makeMainFor("");
  {
    const OtherProgram other(world.folder / "DbTRV5.mdb",
                             "ALTER TABLE ParametriProgramma RENAME TO Vera; CREATE VIEW ParametriProgramma AS SELECT "
                             "'PercorsoArchivio' AS Parametro, " +
                                 kEndless + " AS Valore1, '' AS Valore2");
  }
  EXPECT_THROW(world.start(), UserError);
}

// Whatever path was stored last, the program starts and asks for an archive.
TEST(HostileStart, ThePathOfAnythingStartsTheProgram) {
  ProgramWorld world;
  const fs::path pipe = world.folder / "tubo", large = world.folder / "grande.mdb", link = world.folder / "link.mdb";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  createArchive(large, {}, Existing::Refuse);
  fs::resize_file(large, std::uintmax_t{3} << 30);
  fs::create_symlink("link.mdb", link);
  writeBytes(world.folder / "vuoto.mdb", "");
  for (const std::string& path :
       {std::string("/dev/zero"), std::string("/dev/null"), pipe.string(), world.folder.path().string(), large.string(),
        link.string(), std::string(5000, 'x'), "/" + std::string(300, 'y'), std::string("\xFF\xFE\n"),
        (world.folder / "vuoto.mdb").string(), std::string("relativo/manca.mdb")}) {
    SCOPED_TRACE(path.substr(0, 60));
    world.makeMainFor(path);
    world.shell.shown.clear();
    world.shell.answers.clear();
    world.shell.answerCancel();
    EXPECT_NO_THROW(world.start());
    ASSERT_EQ(world.shell.shown.size(), 2U);
    EXPECT_EQ(world.shell.shown[0].title, "Selezionare Archivio");
    EXPECT_EQ(world.program->DbArchivio, nullptr);
  }
}

}  // namespace
}  // namespace trv5
