#include "core/database_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/archive_load.h"
#include "support/archive_builder.h"
#include "support/broken_world.h"
#include "support/left_journal.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

using testing::HasSubstr;

bool isRefused(Database& database, const std::string& sql) {
  try {
    database.execute(sql);
    return false;
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.reason(), DatabaseError::Reason::Constraint) << error.what();
    return true;
  }
}

std::int64_t count(const Database& database, const std::string& table) {
  Statement all = database.prepare("SELECT count(*) FROM " + table);
  all.step();
  return all.number(0);
}

TEST(DatabaseFiles, TheMainDatabaseHasEveryTableOfTheProgramAndItsShippedRows) {
  TempFolder folder;
  createMainDatabase(
      folder / "main.mdb",
      {.parameters = {{.Parametro = "Uno", .Valore1 = "1"}, {.Parametro = "Due", .Valore1 = "", .Valore2 = "2"}},
       .systems = {{.Denominazione = "Prova", .sviluppo = 2, .Numeri = 3, .rows = {{1, 2}, {1, 90}}}}},
      Existing::Refuse);
  const Database database(folder / "main.mdb", FileKind::Main);
  for (const char* table : {"ParametriProgramma", "Salvataggi", "Configurazioni", "Confignumeri", "Elenco_Memo",
                            "Elenco_Dett", "Sist_Ortogonali", "Sist_OrtoSv"})
    EXPECT_TRUE(database.hasTable(table)) << table;
  EXPECT_EQ(count(database, "ParametriProgramma"), 2);
  Statement lines = database.prepare(
      "SELECT Denominazione, sviluppo, Numeri, NuRiga, Qn, Num FROM Sist_Ortogonali JOIN Sist_OrtoSv ON RifOrto = "
      "IdOrto "
      "ORDER BY NuRiga");
  ASSERT_TRUE(lines.step());
  EXPECT_EQ(lines.text(0), "Prova");
  EXPECT_EQ(lines.number(1), 2);
  EXPECT_EQ(lines.number(2), 3);
  EXPECT_EQ(lines.number(3), 1);
  EXPECT_EQ(lines.number(4), 2);
  EXPECT_EQ(lines.text(5), "XX" + std::string(88, ' '));
  ASSERT_TRUE(lines.step());
  EXPECT_EQ(lines.text(5), "X" + std::string(88, ' ') + "X");
  EXPECT_FALSE(lines.step());
}

TEST(DatabaseFiles, IndicesHaveTheirNames) {
  TempFolder folder;
  createMainDatabase(folder / "main.mdb", {}, Existing::Refuse);
  createArchive(folder / "archive.mdb", {}, Existing::Refuse);
  createExportFile(folder / "export.mdb", Existing::Refuse);
  const auto indices = [](const std::filesystem::path& file, FileKind kind) {
    const Database database(file, kind);
    Statement names = database.prepare(
        "SELECT tbl_name || '.' || name FROM sqlite_schema WHERE type = 'index' AND sql LIKE '%UNIQUE%' ORDER BY 1");
    std::vector<std::string> all;
    while (names.step()) all.push_back(names.text(0));
    return all;
  };
  EXPECT_THAT(indices(folder / "main.mdb", FileKind::Main),
              testing::ElementsAre("Elenco_Memo.Index_denominazione", "ParametriProgramma.Primarykey"));
  EXPECT_THAT(indices(folder / "archive.mdb", FileKind::Archive), testing::ElementsAre("EstrazioniLotto.PrimaryKey"));
  EXPECT_THAT(indices(folder / "export.mdb", FileKind::Export),
              testing::ElementsAre("Elenco_Memo.Index_denominazione"));
}

TEST(DatabaseFiles, TheExportFileHasTheTwoTablesOfTheMainDatabaseAndNoRows) {
  TempFolder folder;
  createMainDatabase(folder / "main.mdb", {}, Existing::Refuse);
  createExportFile(folder / "export.mdb", Existing::Refuse);
  const Database main(folder / "main.mdb", FileKind::Main);
  const Database exported(folder / "export.mdb", FileKind::Export);
  for (const char* table : {"Elenco_Memo", "Elenco_Dett"}) {
    Statement here = main.prepare(std::string("SELECT * FROM ") + table);
    Statement there = exported.prepare(std::string("SELECT * FROM ") + table);
    ASSERT_EQ(here.columns(), there.columns());
    for (int column = 0; column < here.columns(); ++column)
      EXPECT_EQ(here.columnName(column), there.columnName(column));
    EXPECT_EQ(count(exported, table), 0);
  }
  EXPECT_FALSE(exported.hasTable("ParametriProgramma"));
}

TEST(DatabaseFiles, TheDetailsOfAConfigurationGoWithIt) {
  TempFolder folder;
  createExportFile(folder / "e.mdb", Existing::Refuse);
  Database database(folder / "e.mdb", FileKind::Export);
  database.execute("INSERT INTO Elenco_Memo (Id_Config, Denominazione) VALUES (7, 'Uno'), (8, 'Due')");
  database.execute("INSERT INTO Elenco_Dett (Rif_Memo, Grid, Riga) VALUES (7, 1, 1), (7, 4, 2), (8, 6, 1)");
  database.execute("DELETE FROM Elenco_Memo WHERE Id_Config = 7");
  EXPECT_EQ(count(database, "Elenco_Dett"), 1);
  EXPECT_TRUE(isRefused(database, "INSERT INTO Elenco_Dett (Rif_Memo, Grid, Riga) VALUES (7, 1, 1)"));
}

TEST(DatabaseFiles, AKeyOfADeletedConfigurationIsNotGivenAgain) {
  TempFolder folder;
  createExportFile(folder / "e.mdb", Existing::Refuse);
  Database database(folder / "e.mdb", FileKind::Export);
  database.execute("INSERT INTO Elenco_Memo (Denominazione) VALUES ('Uno'), ('Due')");
  database.execute("DELETE FROM Elenco_Memo WHERE Id_Config = 2");
  database.execute("INSERT INTO Elenco_Memo (Denominazione) VALUES ('Tre')");
  EXPECT_EQ(database.lastInsertedKey(), 3);
}

TEST(DatabaseFiles, DenominationsAreUniqueWithoutRegardToCaseAndAtMostAHundredCharacters) {
  TempFolder folder;
  createExportFile(folder / "e.mdb", Existing::Refuse);
  Database database(folder / "e.mdb", FileKind::Export);
  database.execute("INSERT INTO Elenco_Memo (Denominazione) VALUES ('Ambata')");
  EXPECT_TRUE(isRefused(database, "INSERT INTO Elenco_Memo (Denominazione) VALUES ('AMBATA')"));
  std::string hundred;
  for (int i = 0; i < 100; ++i) hundred += "è";
  EXPECT_FALSE(isRefused(database, "INSERT INTO Elenco_Memo (Denominazione) VALUES ('" + hundred + "')"));
  EXPECT_TRUE(isRefused(database, "INSERT INTO Elenco_Memo (Denominazione) VALUES ('" + hundred + "x')"));
}

TEST(DatabaseFiles, AParameterStandsThereOnceInWhateverLetters) {
  TempFolder folder;
  createMainDatabase(folder / "m.mdb", {.parameters = {{.Parametro = "Ruote"}}, .systems = {}}, Existing::Refuse);
  Database database(folder / "m.mdb", FileKind::Main);
  EXPECT_TRUE(isRefused(database, "INSERT INTO ParametriProgramma (Parametro) VALUES ('ruote')"));
  EXPECT_TRUE(isRefused(database, "INSERT INTO ParametriProgramma (Parametro) VALUES (NULL)"));
}

TEST(DatabaseFiles, TheArchiveTakesTrueDatesOnceAndAnyTextForAWheel) {
  TempFolder folder;
  createArchive(folder / "a.mdb", {drawOf("07/01/1939", {})}, Existing::Refuse);
  Database database(folder / "a.mdb", FileKind::Archive);
  const auto insert = [](const std::string& date) {
    return "INSERT INTO EstrazioniLotto (DataEstrazione, Ba, \"To\") VALUES ('" + date + "', 'qualunque', '')";
  };
  for (const char* bad :
       {"1939-01-07", "2023-02-29", "2023-13-01", "2023-1-1", "01/01/2023", "", "now", "2023-01-01 10:00", "20230101"})
    EXPECT_TRUE(isRefused(database, insert(bad))) << bad;
  EXPECT_FALSE(isRefused(database, insert("2024-02-29")));
  const std::vector<DrawRow> rows = readDraws(database);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[1].date, "29/02/2024");
  EXPECT_EQ(rows[1].wheels[0], "qualunque");
}

TEST(DatabaseFiles, TheArchiveTakesTheMomentOfWritingOrNone) {
  TempFolder folder;
  createArchive(folder / "a.mdb", {drawOf("07/01/1939", {})}, Existing::Refuse);
  Database database(folder / "a.mdb", FileKind::Archive);
  EXPECT_FALSE(isRefused(database, "UPDATE EstrazioniLotto SET datareg = '2026-08-22', orareg = '10:30:15'"));
  EXPECT_FALSE(isRefused(database, "UPDATE EstrazioniLotto SET datareg = NULL, orareg = NULL"));
  EXPECT_TRUE(isRefused(database, "UPDATE EstrazioniLotto SET datareg = '22/08/2026'"));
  EXPECT_TRUE(isRefused(database, "UPDATE EstrazioniLotto SET orareg = '10.30'"));
}

TEST(DatabaseFiles, TheViewOfTheCalendarGivesYearMonthDayAndDate) {
  TempFolder folder;
  createArchive(folder / "a.mdb", {drawOf("07/01/1939", {})}, Existing::Refuse);
  // Other programs use the view; this one runs none.
  { const OtherProgram other(folder / "a.mdb", "CREATE TABLE Copia AS SELECT * FROM Query_AAMMGG"); }
  const Database database(folder / "a.mdb", FileKind::Archive);
  EXPECT_THROW(database.prepare("SELECT * FROM Query_AAMMGG"), DatabaseError);
  Statement row = database.prepare("SELECT A, M, G, DataEstrazione FROM Copia");
  ASSERT_TRUE(row.step());
  EXPECT_EQ(row.number(0), 1939);
  EXPECT_EQ(row.number(1), 1);
  EXPECT_EQ(row.number(2), 7);
  EXPECT_EQ(row.text(3), "1939-01-07");
}

TEST(DatabaseFiles, AWheelWithoutNumbersIsNull) {
  TempFolder folder;
  createArchive(folder / "a.mdb", {drawOf("07/01/1939", {{"BA", {1, 2, 3, 4, 5}}})}, Existing::Refuse);
  const Database database(folder / "a.mdb", FileKind::Archive);
  Statement row = database.prepare("SELECT Ba, Nz, datareg FROM EstrazioniLotto");
  ASSERT_TRUE(row.step());
  EXPECT_EQ(row.text(0), "01-02-03-04-05");
  EXPECT_TRUE(row.isNull(1));
  EXPECT_TRUE(row.isNull(2));
}

TEST(DatabaseFiles, ADateThatIsNoneOrStandsThereTwiceMakesNoFile) {
  TempFolder folder;
  EXPECT_THROW(createArchive(folder / "a.mdb", {drawOf("30/02/1939", {})}, Existing::Refuse), UserError);
  EXPECT_THROW(createArchive(folder / "a.mdb", {drawOf("07/01/1939", {}), drawOf("07/01/1939", {})}, Existing::Refuse),
               UserError);
  EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST(DatabaseFiles, AnExistingFileIsRefusedOrReplacedAsAsked) {
  TempFolder folder;
  createArchive(folder / "a.mdb", {drawOf("07/01/1939", {})}, Existing::Refuse);
  const std::string before = readBytes(folder / "a.mdb");
  try {
    createArchive(folder / "a.mdb", {}, Existing::Refuse);
    FAIL();
  } catch (const UserError& error) {
    EXPECT_THAT(error.what(), HasSubstr("esiste già"));
  }
  EXPECT_EQ(readBytes(folder / "a.mdb"), before);
  createArchive(folder / "a.mdb", {drawOf("07/01/1939", {}), drawOf("14/01/1939", {})}, Existing::Replace);
  EXPECT_EQ(readDraws(Database(folder / "a.mdb", FileKind::Archive)).size(), 2u);
}

TEST(DatabaseFiles, AFullDiskLeavesNoFileAndTheOldOneAsItWas) {
  TempFolder folder;
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= 3000; ++draw) rows.push_back(drawOf(dateOfDraw(draw), {{"BA", {1, 2, 3, 4, 5}}}));
  writeBytes(folder / "old.mdb", "il vecchio");
  for (const int bytes : {0, 1, 4096, 40000}) {
    SCOPED_TRACE(bytes);
    const FullDisk full(static_cast<rlim_t>(bytes));
    EXPECT_THROW(createArchive(folder / "new.mdb", rows, Existing::Refuse), UserError);
    EXPECT_THROW(createArchive(folder / "old.mdb", rows, Existing::Replace), UserError);
    EXPECT_THROW(createMainDatabase(folder / "main.mdb", {}, Existing::Refuse), UserError);
  }
  EXPECT_EQ(readBytes(folder / "old.mdb"), "il vecchio");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST(DatabaseFiles, AFolderThatDoesNotExistIsNamed) {
  TempFolder folder;
  try {
    createExportFile(folder / "manca" / "e.mdb", Existing::Refuse);
    FAIL();
  } catch (const UserError& error) {
    EXPECT_THAT(error.what(), HasSubstr("manca/e.mdb"));
  }
}

}  // namespace
}  // namespace trv5
