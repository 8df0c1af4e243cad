// Export files that are damaged, or made to do harm.
#include <gtest/gtest.h>

#include <chrono>

#include "configs/configuration_world.h"
#include "support/damage.h"
#include "support/random_runs.h"
#include "support/random_search.h"

namespace trv5 {
namespace {

namespace fs = std::filesystem;

class HostileExchange : public testing::Test {
 protected:
  HostileExchange() {
    // Without a password a file opens at once: the hash is made to be slow.
    createExportFile(file, Existing::Replace, "");
    for (int i = 0; i < 5; ++i) {
      WorkbenchWorld::addFormula(world.w().Fg11, {.elements = {{0, 1}, {3, 2}}, .fix = 7 + i});
      WorkbenchWorld::addFormula(world.w().Fg00, {.elements = {{5, 4}}, .fix = 50 + i, .alteration = "CAD"});
    }
    world.save("la mia");
    form.Command1.press();
    form.Fg1.clickCell(1, 1);
    world.shell.answerFile(file);
    form.Command2.press();
    form.Command3.press();
    whole = readBytes(file);
    before = readBytes(world.mainFile());
  }

  // Chooses the file and imports it. True when it was imported; otherwise the message was the told one and the main
  // database is as it was, byte for byte.
  bool imports(const std::string& what) {
    SCOPED_TRACE(what);
    const auto begin = std::chrono::steady_clock::now();
    const std::size_t first = world.shell.shown.size();
    world.shell.answerFile(file);
    form.Command4.press();
    form.Txt_Denominazione.set("importata");
    form.Command6.press();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(4500));
    bool refused = false;
    for (std::size_t box = first; box < world.shell.shown.size(); ++box) {
      if (world.shell.shown[box].kind != ShownBox::Kind::Message) continue;
      refused = true;
      const std::string& text = world.shell.shown[box].text;
      EXPECT_TRUE(text == "Errore nella selezione del database da importare." ||
                  text == "Attenzione la procedura non è andata a buon fine.")
          << text;
    }
    // A refused file leaves the preview of the one before it, which can be imported all the same.
    const bool imported = form.List2.lines().size() == 2;
    if (imported)
      takeBack();
    else
      EXPECT_TRUE(refused);
    EXPECT_EQ(readBytes(world.mainFile()) == before, !imported) << "the main database has changed";
    if (imported) writeBack();
    return imported && !refused;
  }

  // What came in is one configuration that the program itself could have saved, beside the one that was there.
  void takeBack() {
    EXPECT_EQ(world.saved(), 2);
    EXPECT_EQ(world.inMain("SELECT count(*) FROM Elenco_Dett WHERE Rif_Memo = 1"), "10");
    EXPECT_EQ(world.inMain("SELECT Denominazione FROM Elenco_Memo WHERE Id_Config = 1"), "la mia");
    const Database database(world.mainFile(), FileKind::Main);
    database.checkIntegrity();
    world.reload("importata");  // whatever it holds: the workbench as far as it got, never a crash
  }
  void writeBack() {
    world.program->DbParametri.reset();
    writeBytes(world.mainFile(), before);
    world.program->DbParametri = std::make_unique<Database>(world.mainFile(), FileKind::Main);
  }
  void forgetPreview() {
    form.fG2.setRows(1);
    form.Fg11.setRows(1);
  }

  ConfigurationWorld world;
  ImportExport& form = world.exchange();
  fs::path file = world.folder / "TRV5_Export.mdb";
  std::string whole, before;
};

TEST_F(HostileExchange, DamagedFilesEndInTheMessageOrInAConfigurationOfTheirOwn) {
  std::mt19937 rng(91);
  int imported = 0;
  const int runs = randomRuns(500);
  for (int run = 0; run < runs; ++run) {
    forgetPreview();
    writeBytes(file, damaged(whole, run % kDamages, rng));
    imported += imports("damaged file " + std::to_string(run)) ? 1 : 0;
    if (HasFailure()) return;
  }
  std::printf("%d of %d damaged files still held a configuration\n", imported, runs);
  EXPECT_LT(imported, runs);
}

// Statements of another program, each a way of doing harm.
const std::vector<std::string> kHarm = {
    "CREATE TRIGGER t AFTER DELETE ON Elenco_Memo BEGIN DELETE FROM Elenco_Dett; END",
    "CREATE TRIGGER u BEFORE INSERT ON Elenco_Memo BEGIN SELECT RAISE(ABORT, 'no'); END",
    "ALTER TABLE Elenco_Memo RENAME TO Vera; CREATE VIEW Elenco_Memo AS SELECT * FROM Vera",
    "DROP TABLE Elenco_Dett; CREATE VIEW Elenco_Dett AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
    "WHERE i < 1000000000) SELECT i AS Id_Dett, 1 AS Rif_Memo, 1 AS Grid, i AS Riga FROM n",
    "DROP TABLE Elenco_Dett",
    "ALTER TABLE Elenco_Memo DROP COLUMN Retro",
    "ALTER TABLE Elenco_Memo DROP COLUMN DDS",
    "ALTER TABLE Elenco_Dett DROP COLUMN Ruota",
    "ALTER TABLE Elenco_Memo ADD COLUMN Altro TEXT DEFAULT 'x'",
    "UPDATE Elenco_Memo SET Parametro = printf('%.*c', 1000000, '9') WHERE Id_Config = 1",
    "UPDATE Elenco_Memo SET Parametro = printf('%.*c', 60000, '9')",
    "UPDATE Elenco_Dett SET Fix = printf('%.*c', 900000, 'x') WHERE Id_Dett = 1",
    "UPDATE Elenco_Memo SET Estrazione = 4611686018427387904",
    "UPDATE Elenco_Memo SET Mensile = NULL",
    "UPDATE Elenco_Memo SET Fg1 = -5, Fg0 = 2147483647",
    "UPDATE Elenco_Memo SET Sorte = 77, Tiporilevazione = -3",
    "UPDATE Elenco_Memo SET RuoteGioco = 'xxxxxxxxxxx'",
    "PRAGMA ignore_check_constraints = ON; UPDATE Elenco_Memo SET Posizioni = '1'",
    "PRAGMA ignore_check_constraints = ON; UPDATE Elenco_Dett SET Riga = -1 WHERE Id_Dett = 3",
    "UPDATE Elenco_Dett SET Riga = 99999",
    "UPDATE Elenco_Dett SET Grid = 7, Riga = 32767",
    "UPDATE Elenco_Dett SET R1 = '999', P1 = '99', Ruota = 'ZZ-!!-' || char(0) || 'x', Alterazione = '''); DROP TABLE'",
    "UPDATE Elenco_Memo SET Denominazione = '''; DELETE FROM Elenco_Memo; --'",
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) INSERT INTO Elenco_Memo "
    "(Denominazione, Posizioni, RuoteGioco, Ruoterilevazione) SELECT 'testa ' || i, '00000', '00000000000', "
    "'00000000000' FROM n",
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) INSERT INTO Elenco_Dett "
    "(Rif_Memo, Grid, Riga) SELECT 1, 1, i FROM n",
    "PRAGMA application_id = 7",
    "PRAGMA user_version = 99",
    "CREATE TABLE Protezione (Impronta TEXT); INSERT INTO Protezione VALUES ('un''altra')",
    "CREATE TABLE Protezione (Impronta TEXT)",
    "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = 'CREATE TABLE Elenco_Memo (Id_Config INTEGER PRIMARY "
    "KEY, Denominazione TEXT, x TEXT AS (printf(''%.*c'', 900000, ''x'')))' WHERE name = 'Elenco_Memo'",
    "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET rootpage = 999 WHERE name = 'Elenco_Dett'",
    "PRAGMA journal_mode = WAL",
    "CREATE INDEX pesante ON Elenco_Dett (hex(zeroblob(500)))"};

TEST_F(HostileExchange, FilesMadeToDoHarmEndInTheMessageOrInAConfigurationOfTheirOwn) {
  std::mt19937 rng(17);
  int imported = 0;
  const int runs = std::max(randomRuns(200), static_cast<int>(kHarm.size()));
  for (int run = 0; run < runs; ++run) {
    forgetPreview();
    writeBytes(file, whole);
    fs::remove(file.string() + "-wal");
    fs::remove(file.string() + "-shm");
    std::string what = kHarm[static_cast<std::size_t>(run) % kHarm.size()];
    // Behind the first round two ways come together.
    if (run >= static_cast<int>(kHarm.size())) what += "; " + kHarm[static_cast<std::size_t>(below(rng, kHarm.size()))];
    try {
      const OtherProgram other(file, what);
    } catch (const std::runtime_error&) {
      // The two don't go together: what the first has done stays.
    }
    imported += imports(what) ? 1 : 0;
    if (HasFailure()) return;
  }
  std::printf("%d of %d hostile files held a configuration all the same\n", imported, runs);
  EXPECT_LT(imported, runs);
  EXPECT_GT(imported, 0);
}

TEST_F(HostileExchange, FilesOfOtherKindsAreRefused) {
  const std::string kinds[] = {"",
                               "non è un database",
                               before,
                               readBytes(world.folder / "Archivio.mdb"),
                               std::string(100000, '\0'),
                               whole.substr(0, 100)};
  for (const std::string& bytes : kinds) {
    forgetPreview();
    writeBytes(file, bytes);
    EXPECT_FALSE(imports("a file of " + std::to_string(bytes.size()) + " bytes"));
  }
}

TEST_F(HostileExchange, AFileWithAnotherPasswordIsRefused) {
  createExportFile(file, Existing::Replace, "segreta");
  forgetPreview();
  EXPECT_FALSE(imports("another password"));
}

}  // namespace
}  // namespace trv5
