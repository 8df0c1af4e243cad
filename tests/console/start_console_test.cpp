// The start of the program, from the first choice of an archive to the shell, as a user walks it.
#include <gtest/gtest.h>

#include "support/console_process.h"
#include "support/program_world.h"
#include "support/run_program.h"

namespace trv5 {
namespace {

using nlohmann::json;

constexpr const char* kFirstTime = "Attenzione, la prima volta è necessario configurare l'origine dell'archivio";
constexpr const char* kOther =
    "Attenzione, probabilmente è stato selezionato un altro archivio. Chiudere il programma e riavviarlo";

class StartConsole : public testing::Test {
 protected:
  ProgramWorld world;
  ConsoleProcess console{TRV5_CONSOLE_PROGRAM, world.userFolder.path()};

  std::vector<DrawRow> threeDraws() {
    return {drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}}), drawOf("14/01/1939", {{"RO", {1, 2, 3, 4, 5}}}),
            drawOf("04/02/1939", {{"NZ", {90, 89, 88, 87, 86}}})};
  }
  void start() { console.does("start", world.folder.path().string()); }
  std::string text(const char* screen, const char* control) { return console.does("get", screen, control)["text"]; }
  json screens() { return console.does("screens")["screens"]; }
  json messages() { return console.does("messages")["messages"]; }
};

TEST_F(StartConsole, AFirstStartShowsTheBoxThenTheDialogAndCancelLeavesInizioAlive) {
  world.makeMainFor({});
  start();
  const json shown = messages();
  ASSERT_EQ(shown.size(), 2u);
  EXPECT_EQ(
      shown[0],
      (json{{"kind", "message"}, {"title", "Selezionare Archivio"}, {"text", kFirstTime}, {"icon", "exclamation"}}));
  EXPECT_EQ(shown[1]["kind"], "open");
  EXPECT_EQ(shown[1]["title"], "File di archivio (*.Mdb)");
  EXPECT_EQ(shown[1]["folder"], world.folder.path().string());
  EXPECT_EQ(shown[1]["filter"], "*.mdb");
  EXPECT_EQ(screens(), json({"INIZIO"}));
  console.does("click", "INIZIO", "Command2");
  EXPECT_EQ(messages()[0]["text"], kOther);
  EXPECT_EQ(screens(), json({"INIZIO"}));
}

TEST_F(StartConsole, AChosenArchiveIsStoredAtOnceAndSurvivesTheNextStart) {
  const std::string archive = world.makeArchive(threeDraws()).string();
  world.makeMainFor({});
  console.does("answer", "file", archive);
  start();
  EXPECT_EQ(text("INIZIO", "Lbl_Archivio"), "Database: " + archive);
  EXPECT_EQ(readBytes(world.folder / "PercorsoDatabase.txt"), "\"" + archive + "\"\r\n");
  start();
  messages();
  EXPECT_EQ(text("INIZIO", "Lbl_Archivio"), archive);
}

TEST_F(StartConsole, AnArchiveChosenByTheButtonIsStoredBeforeProcedi) {
  world.makeBoth(threeDraws());
  const std::string other = world.makeArchive(threeDraws(), "Altro archivio.mdb").string();
  start();
  EXPECT_EQ(messages(), json::array());
  console.does("answer", "file", other);
  console.does("click", "INIZIO", "Command4");
  EXPECT_EQ(text("INIZIO", "Lbl_Archivio"), "Database: " + other);
  console.does("click", "INIZIO", "Command4");  // cancelled
  EXPECT_EQ(text("INIZIO", "Lbl_Archivio"), "Database: " + other);
  start();
  EXPECT_EQ(text("INIZIO", "Lbl_Archivio"), other);
}

TEST_F(StartConsole, ProcediOnAFileWithoutTheTableKeepsInizioAndAnotherArchiveThenLoads) {
  world.makeBoth(threeDraws());
  const std::string good = (world.folder / "Archivio.mdb").string();
  start();
  console.does("answer", "file", (world.folder / "DbTRV5.mdb").string());
  console.does("click", "INIZIO", "Command4");
  console.does("click", "INIZIO", "Command2");
  json shown = messages().back();
  EXPECT_NE(shown["reason"].get<std::string>().find("non può essere aperto"), std::string::npos) << shown;
  shown.erase("reason");
  EXPECT_EQ(shown, (json{{"kind", "message"}, {"title", "Avviso"}, {"text", kOther}, {"icon", "critical"}}));
  EXPECT_EQ(screens(), json({"INIZIO"}));
  console.does("answer", "file", good);
  console.does("click", "INIZIO", "Command4");
  console.does("click", "INIZIO", "Command2");
  EXPECT_EQ(screens(), json({"Container"}));
}

TEST_F(StartConsole, AMissingRowOfTheArchiveServesThisRunAndStoresNothing) {
  const std::string archive = world.makeArchive(threeDraws()).string();
  world.makeMain({{"EstrazioneIniziale", "1"}});
  console.does("answer", "file", archive);
  start();
  console.does("click", "INIZIO", "Command2");
  EXPECT_EQ(screens(), json({"Container"}));
  start();
  EXPECT_EQ(text("INIZIO", "Lbl_Archivio"), "");
  EXPECT_EQ(messages()[0]["text"], kFirstTime);
}

TEST_F(StartConsole, TitlesAndHelpContextsAreThoseOfTheScreens) {
  world.makeBoth(threeDraws());
  start();
  const json inizio = console.does("get", "INIZIO", "");
  EXPECT_TRUE(inizio["title"].get<std::string>().starts_with("TRV5 Nerovia Forge V2: Versione ")) << inizio;
  EXPECT_EQ(inizio["help"], 210);
  console.does("click", "INIZIO", "Command2");
  const json shell = console.does("get", "Container", "");
  EXPECT_EQ(shell["title"], "TRV 5");
  EXPECT_EQ(shell["help"], 220);
}

TEST_F(StartConsole, EachHelpButtonShowsItsPage) {
  world.makeBoth(threeDraws());
  start();
  console.does("click", "INIZIO", "CmDHelp");
  EXPECT_EQ(console.does("get", "Help", "pagina")["value"], "qrc:/help/avvio.html#inizio");
  EXPECT_FALSE(text("Help", "pagina").empty());
  console.does("click", "INIZIO", "Command2");
  console.does("click", "Container", "Command33");
  EXPECT_EQ(console.does("get", "Help", "pagina")["value"], "qrc:/help/finestra.html#finestra");
}

TEST_F(StartConsole, FineEndsTheProgramFromBothScreens) {
  world.makeBoth(threeDraws());
  start();
  console.does("click", "INIZIO", "Command3");
  EXPECT_EQ(screens(), json::array());
  EXPECT_FALSE(console.say("click", "INIZIO", "Command2")["ok"].get<bool>());
  start();
  console.does("click", "INIZIO", "Command2");
  console.does("click", "Container", "Command45");
  EXPECT_EQ(screens(), json::array());
}

TEST_F(StartConsole, TheBarOfTheLoadEndsFull) {
  world.makeBoth(threeDraws());
  start();
  const json bar = console.does("get", "INIZIO", "pb1");
  EXPECT_EQ(bar["value"], 0);
  console.does("click", "INIZIO", "Command2");
  EXPECT_EQ(text("Container", "Lbl_Ev"), "3");
}

TEST_F(StartConsole, AMainDatabaseThatIsMissingStopsTheStartWithAClearMessage) {
  const json answer = console.say("start", world.folder.path().string());
  EXPECT_FALSE(answer["ok"].get<bool>());
  EXPECT_NE(answer["error"].get<std::string>().find("DbTRV5.mdb"), std::string::npos) << answer;
  const json shown = messages();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0]["icon"], "critical");
  EXPECT_EQ(screens(), json::array());
  EXPECT_EQ(console.finish(), 1);
}

#ifdef TRV5_HISTORY
TEST_F(StartConsole, TheShellShowsTheRealHistory) {
  world.makeMainFor(world.folder / "Storico.mdb");
  ASSERT_EQ(runProgram(TRV5_DATA_PROGRAM, {"storico", TRV5_HISTORY, (world.folder / "Storico.mdb").string()}).status,
            0);
  start();
  console.does("click", "INIZIO", "Command2");
  EXPECT_EQ(messages(), json::array());
  EXPECT_EQ(text("Container", "LblInizio"), "07/01/1939");
  EXPECT_EQ(text("Container", "LblFine"), "21/08/2026");
  EXPECT_EQ(text("Container", "Lbl_inizioNE"), "1");
  EXPECT_EQ(text("Container", "Lbl_fineNE"), "7370");
  EXPECT_EQ(text("Container", "Lbl_Ev"), "7370");
  EXPECT_EQ(console.does("get", "Container", "Lbl_Ev")["fore"], "008000");
  const json draws = console.does("dump", "Container", "FG5")["rows"];
  ASSERT_EQ(draws.size(), 7371u);
  EXPECT_EQ(draws[1], json({"", "1", "07/01/1939", "1", "1"}));
  EXPECT_EQ(draws[7370], json({"", "7370", "21/08/2026", "134", "12"}));
  EXPECT_EQ(console.finish(), 0);
}
#endif

}  // namespace
}  // namespace trv5
