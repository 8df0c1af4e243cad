#include "core/program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdlib>

#include "core/errors.h"
#include "support/broken_world.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

using testing::HasSubstr;

std::vector<DrawRow> oneDraw() {
  return {drawOf("07/01/1939", {{"BA", {1, 2, 3, 4, 5}}})};
}

// The message that a start ends with.
std::string failureOfStart(ProgramWorld& world) {
  try {
    world.start();
  } catch (const UserError& error) {
    return error.what();
  }
  ADD_FAILURE() << "the program started";
  return {};
}

void run(const std::filesystem::path& file, const std::string& sql) {
  sqlite3* handle = nullptr;
  sqlite3_open(file.c_str(), &handle);
  EXPECT_EQ(sqlite3_exec(handle, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
  sqlite3_close(handle);
}

TEST(MainDatabase, InTheProgramsFolderIsTheOneInUse) {
  ProgramWorld world;
  world.makeBoth(oneDraw());
  world.start();
  EXPECT_EQ(world.program->PercorsoDbParametri, world.folder / "DbTRV5.mdb");
  EXPECT_EQ(world.program->folder, world.folder.path());
  EXPECT_FALSE(std::filesystem::exists(world.userFolder / "trv5"));
}

TEST(MainDatabase, MissingThereIsMadeInTheUsersFolderFromTheModelAtItsFirstUse) {
  ProgramWorld world;
  const auto archive = world.makeArchive(oneDraw());
  world.makeMainFor(archive);
  world.model = world.folder / "modello.mdb";
  std::filesystem::rename(world.folder / "DbTRV5.mdb", world.model);
  Inizio& inizio = world.start();
  const std::filesystem::path own = world.userFolder / "trv5";
  EXPECT_EQ(world.program->PercorsoDbParametri, own / "DbTRV5.mdb");
  EXPECT_EQ(world.program->folder, own);
  EXPECT_EQ(inizio.Lbl_Archivio.text(), archive.string());

  const auto other = world.makeArchive(oneDraw(), "altro.mdb");
  world.shell.answerFile(other);
  inizio.Command4.press();
  EXPECT_EQ(world.shell.lastBox().folder, own);
  EXPECT_TRUE(std::filesystem::exists(own / "PercorsoDatabase.txt"));
  EXPECT_EQ(world.start().Lbl_Archivio.text(), other.string());  // its own copy serves from now on
  EXPECT_FALSE(std::filesystem::exists(world.folder / "DbTRV5.mdb"));
}

TEST(MainDatabase, WithoutAModelEitherTheStartEndsAndNothingIsMade) {
  ProgramWorld world;
  EXPECT_THAT(failureOfStart(world), HasSubstr("DbTRV5.mdb\" non può essere aperto: il file non esiste"));
  world.model = world.folder / "manca.mdb";
  EXPECT_THAT(failureOfStart(world), HasSubstr("il file non esiste"));
  EXPECT_TRUE(std::filesystem::is_empty(world.folder.path()));
  EXPECT_TRUE(std::filesystem::is_empty(world.userFolder.path()));
  EXPECT_TRUE(world.shell.shown.empty());
}

TEST(MainDatabase, AFullDiskAtTheFirstUseLeavesNoHalfCopy) {
  ProgramWorld world;
  world.makeBoth(oneDraw());
  world.model = world.folder / "modello.mdb";
  std::filesystem::rename(world.folder / "DbTRV5.mdb", world.model);
  {
    const FullDisk full(5000);
    EXPECT_THAT(failureOfStart(world), HasSubstr("non può essere scritto"));
  }
  EXPECT_TRUE(std::filesystem::is_empty(world.userFolder / "trv5"));
  world.start();
  EXPECT_TRUE(std::filesystem::exists(world.userFolder / "trv5" / "DbTRV5.mdb"));
}

TEST(MainDatabase, OfAnotherProgramEndsTheStartWithAClearMessage) {
  ProgramWorld world;
  run(world.folder / "DbTRV5.mdb", "CREATE TABLE ParametriProgramma (Parametro TEXT)");
  EXPECT_THAT(failureOfStart(world), HasSubstr("è un file di un altro programma"));
}

TEST(MainDatabase, ThatIsNoneEndsTheStartWithAClearMessage) {
  ProgramWorld world;
  writeBytes(world.folder / "DbTRV5.mdb", std::string(10000, 'x'));
  EXPECT_THAT(failureOfStart(world), HasSubstr("non è un file di dati di TRV5"));
}

TEST(MainDatabase, OfAnotherPasswordEndsTheStartWithAClearMessage) {
  ProgramWorld world;
  createMainDatabase(world.folder / "DbTRV5.mdb", {}, Existing::Refuse, "un'altra");
  EXPECT_THAT(failureOfStart(world), HasSubstr("la password è un'altra"));
}

TEST(MainDatabase, WithoutAPasswordOpens) {
  ProgramWorld world;
  createMainDatabase(world.folder / "DbTRV5.mdb", {}, Existing::Refuse, "");
  EXPECT_NO_THROW(world.start());
}

TEST(MainDatabase, TruncatedEndsTheStartWithAClearMessage) {
  ProgramWorld world;
  world.makeBoth(oneDraw());
  const std::string whole = readBytes(world.folder / "DbTRV5.mdb");
  writeBytes(world.folder / "DbTRV5.mdb", whole.substr(0, whole.size() / 2));
  EXPECT_THAT(failureOfStart(world), HasSubstr("il file è danneggiato o troncato"));
}

TEST(MainDatabase, LockedByAnotherProgramEndsTheStartWithAClearMessage) {
  ProgramWorld world;
  world.makeBoth(oneDraw());
  sqlite3* other = nullptr;
  sqlite3_open((world.folder / "DbTRV5.mdb").c_str(), &other);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_THAT(failureOfStart(world), HasSubstr("il file è occupato da un altro programma"));
  sqlite3_close(other);
  EXPECT_NO_THROW(world.start());
}

TEST(MainDatabase, WithoutOneOfItsTablesEndsTheStartWithTheTablesName) {
  for (const char* table :
       {"ParametriProgramma", "Salvataggi", "Configurazioni", "Confignumeri", "Elenco_Memo", "Elenco_Dett"}) {
    ProgramWorld world;
    world.makeBoth(oneDraw());
    run(world.folder / "DbTRV5.mdb", std::string("DROP TABLE ") + table);
    EXPECT_THAT(failureOfStart(world), testing::ContainsRegex(std::string("manca la tabella [EPSC]"))) << table;
  }
}

TEST(MainDatabase, ThatIsReadOnlyStaysInUseAndTheFirstWriteSaysSo) {
  ProgramWorld world;
  world.makeBoth(oneDraw());
  const auto other = world.makeArchive(oneDraw(), "altro.mdb");
  world.model = world.folder / "DbTRV5.mdb";
  const ReadOnlyFolder readOnly(world.folder.path());
  Inizio& inizio = world.start();
  EXPECT_EQ(world.program->PercorsoDbParametri, world.folder / "DbTRV5.mdb");
  EXPECT_TRUE(world.program->mainDatabase().readOnly());
  EXPECT_TRUE(world.shell.shown.empty());

  world.shell.answerFile(other);
  inizio.Command4.press();
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("DbTRV5.mdb\" non può essere scritto: il file è in sola lettura"));
  EXPECT_FALSE(std::filesystem::exists(world.folder / "PercorsoDatabase.txt"));
  // The choice serves this run all the same.
  EXPECT_EQ(inizio.Lbl_Archivio.text(), "Database: " + other.string());
  inizio.Command2.press();
  EXPECT_EQ(world.program->loadedArchive, other);
}

TEST(Selection, OnAFullDiskLeavesNoHalfFileAndTheStoredChoiceAsItWas) {
  ProgramWorld world;
  world.makeBoth(oneDraw());
  writeBytes(world.folder / "PercorsoDatabase.txt", "\"prima\"\r\n");
  const auto other = world.makeArchive(oneDraw(), "altro.mdb");
  const std::string before = readBytes(world.folder / "DbTRV5.mdb");
  {
    Inizio& inizio = world.start();
    const FullDisk full(0);
    world.shell.answerFile(other);
    inizio.Command4.press();
  }
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("non può essere scritto"));
  EXPECT_EQ(readBytes(world.folder / "PercorsoDatabase.txt"), "\"prima\"\r\n");
  world.start();
  EXPECT_EQ(readBytes(world.folder / "DbTRV5.mdb"), before);
  EXPECT_EQ(world.program->PercorsoDbArchivio, world.folder / "Archivio.mdb");
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(world.folder.path()))
    names.push_back(entry.path().filename());
  EXPECT_THAT(names, testing::UnorderedElementsAre("Archivio.mdb", "DbTRV5.mdb", "PercorsoDatabase.txt", "altro.mdb"));
}

TEST(Selection, OnALockedMainDatabaseSaysSoAndServesThisRun) {
  ProgramWorld world;
  world.makeBoth(oneDraw());
  const auto other = world.makeArchive(oneDraw(), "altro.mdb");
  Inizio& inizio = world.start();
  sqlite3* locker = nullptr;
  sqlite3_open((world.folder / "DbTRV5.mdb").c_str(), &locker);
  ASSERT_EQ(sqlite3_exec(locker, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
  world.shell.answerFile(other);
  inizio.Command4.press();
  sqlite3_close(locker);
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("occupato da un altro programma"));
  EXPECT_EQ(world.program->PercorsoDbArchivio, other);
  EXPECT_EQ(world.program->parameters().Valore1("PercorsoArchivio"), (world.folder / "Archivio.mdb").string());
}

TEST(Selection, ThatFailsInsideTheFirstStartIsToldAndTheStartGoesOn) {
  ProgramWorld world;
  const auto archive = world.makeArchive(oneDraw());
  world.makeMainFor({});
  world.shell.answerFile(archive);
  {
    const FullDisk full(0);
    world.start();
  }
  ASSERT_EQ(world.shell.shown.size(), 3u);
  EXPECT_THAT(world.shell.lastBox().text, HasSubstr("non può essere scritto"));
  ASSERT_NE(world.program->DbArchivio, nullptr);
  EXPECT_EQ(world.inizio().title(), "TRV5 Nerovia Forge V2: Versione " + std::string(programVersion()));
}

TEST(Parameters, AreSoughtAndSetWithoutRegardToCaseAndKeepTheirSpelling) {
  ProgramWorld world;
  world.makeMain({{.Parametro = "PercorsoDati.iii", .Valore1 = "prima", .Valore2 = "resta"}});
  Database database(world.folder / "DbTRV5.mdb", FileKind::Main);
  Parameters parameters(database);
  EXPECT_EQ(parameters.Valore1("percorsodati.III"), "prima");
  EXPECT_TRUE(parameters.setValore1("PERCORSODATI.iii", "dopo l'apostrofo"));
  EXPECT_EQ(parameters.Valore1("PercorsoDati.iii"), "dopo l'apostrofo");
  Statement row = database.prepare("SELECT Parametro, Valore2 FROM ParametriProgramma");
  ASSERT_TRUE(row.step());
  EXPECT_EQ(row.text(0), "PercorsoDati.iii");
  EXPECT_EQ(row.text(1), "resta");
}

TEST(Parameters, AMissingRowIsNoneAndIsNotMade) {
  ProgramWorld world;
  world.makeMain({{.Parametro = "Vuoto"}});
  Database database(world.folder / "DbTRV5.mdb", FileKind::Main);
  Parameters parameters(database);
  EXPECT_EQ(parameters.Valore1("Manca"), std::nullopt);
  EXPECT_EQ(parameters.Valore1("Vuoto"), "");
  EXPECT_FALSE(parameters.setValore1("Manca", "x"));
  EXPECT_EQ(parameters.Valore1("Manca"), std::nullopt);
}

TEST(Parameters, APercentSignOrUnderscoreInANameFindsItselfOnly) {
  ProgramWorld world;
  world.makeMain({{.Parametro = "Ruote", .Valore1 = "1"}});
  Database database(world.folder / "DbTRV5.mdb", FileKind::Main);
  EXPECT_EQ(Parameters(database).Valore1("Ruot_"), std::nullopt);
  EXPECT_EQ(Parameters(database).Valore1("%"), std::nullopt);
}

TEST(Run, WithoutAMainDatabaseAnOperationSaysSo) {
  FakeShell shell;
  const Program program(shell, "/manca");
  EXPECT_THROW(program.mainDatabase(), UserError);
  EXPECT_THROW(program.archiveToWrite(), UserError);
}

// Sets an environment variable for the life of the object.
class Variable {
 public:
  Variable(const char* name, const char* value) : m_name(name) {
    if (const char* const before = std::getenv(name)) m_before = before;
    set(value);
  }
  ~Variable() { set(m_before ? m_before->c_str() : nullptr); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  void set(const char* value) {
    if (value == nullptr)
      unsetenv(m_name);
    else
      setenv(m_name, value, 1);
  }
  const char* m_name;
  std::optional<std::string> m_before;
};

TEST(UserDataFolder, FollowsTheStandardOfTheDesktops) {
  const Variable home("HOME", "/home/anna");
  {
    const Variable data("XDG_DATA_HOME", "/dati");
    EXPECT_EQ(userDataFolder(), "/dati/trv5");
  }
  {
    const Variable data("XDG_DATA_HOME", "relativa");
    EXPECT_EQ(userDataFolder(), "/home/anna/.local/share/trv5");
  }
  const Variable data("XDG_DATA_HOME", nullptr);
  EXPECT_EQ(userDataFolder(), "/home/anna/.local/share/trv5");
}

}  // namespace
}  // namespace trv5
