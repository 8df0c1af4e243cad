// The update from the web, with servers on the loopback.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "maintenance/archivio_world.h"
#include "maintenance/backups.h"
#include "maintenance/update_samples.h"
#include "maintenance/update_server.h"
#include "maintenance/update_tab.h"
#include "support/broken_world.h"
#include "support/ftp_server.h"
#include "support/loopback_server.h"

namespace trv5 {
namespace {

using Answer = LoopbackServer::Answer;
using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kNoSite = "Attenzione qualcosa è andato strorto nella procedura Collegamento al sito";

class UpdateFetchTest : public testing::Test {
 protected:
  Archivio& openWith(const std::string& webHost, const std::string& ftpHost = {}) {
    const auto file = world.makeArchive(rows);
    world.makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = file.string()},
                    {.Parametro = "EstrazioneIniziale", .Valore1 = "1"},
                    {.Parametro = "HostWebAggiornamento", .Valore1 = webHost},
                    {.Parametro = "HostFtpAggiornamento", .Valore1 = ftpHost}});
    archivio = &world.open();
    return *archivio;
  }
  Archivio& a() { return *archivio; }
  // Until what goes on has come to its end.
  void finish() {
    while (world.shell.runSteps()) std::this_thread::sleep_for(milliseconds(1));
  }

  ArchivioWorld world;
  std::vector<DrawRow> rows = {drawOf("02/01/2001", {{"BA", {1, 2, 3, 4, 5}}})};
  std::string text = updateLine(drawOf("03/01/2001", {{"BA", {1, 2, 3, 4, 5}}})) + "\r\n";
  std::filesystem::path localCopy = world.folder / "Estr_Agg.txt";
  Archivio* archivio = nullptr;
};

TEST_F(UpdateFetchTest, TheFileIsFetchedFromItsPathKeptAndChecked) {
  std::string asked;
  const LoopbackServer server([&](const Answer& answer, const std::string& request) {
    asked = request.substr(0, request.find(" HTTP"));
    answer.http("200 OK", text);
  });
  openWith(server.address() + "/").Command18.press();
  EXPECT_EQ(asked, "GET /archiviobrentara/archiviobrentara2023.txt");
  EXPECT_EQ(readBytes(localCopy), text + "\r\n") << "kept with a line break at its end";
  EXPECT_THAT(world.shell.shown, IsEmpty());
  EXPECT_EQ(a().FgImporta.text(1, 1), "03/01/2001");
  EXPECT_THAT(a().List4.lines(), ElementsAre("Manca estrazione del: 03/01/2001", "Nessuna anomalia rilevata"));
}

TEST_F(UpdateFetchTest, WhatItWritesIsCopiedFirstAsAnUpdate) {
  const LoopbackServer server([&](const Answer& answer, const std::string&) { answer.http("200 OK", text); });
  openWith(server.address()).Command18.press();
  a().Command28.press();
  EXPECT_EQ(world.storedDates().size(), 2U);
  const std::vector<Backup> copies = backupsOf(world.program->loadedArchive, world.shell.clock);
  ASSERT_EQ(copies.size(), 1U);
  EXPECT_EQ(copies[0].reason, "aggiornamento");
  EXPECT_EQ(readDraws(Database(copies[0].file, FileKind::Archive)).size(), 1U);
}

TEST_F(UpdateFetchTest, WhatComesIsNotTestedForItsForm) {
  const LoopbackServer server([&](const Answer& answer, const std::string&) { answer.http("200 OK", "02/01/2001"); });
  openWith(server.address()).Command18.press();
  EXPECT_THAT(world.shell.shown, IsEmpty());
  EXPECT_THAT(a().List4.lines(), ElementsAre("Errori Estrazione del 02/01/2001"));
}

TEST_F(UpdateFetchTest, AnEmptyReplyLeavesTheGridAtItsHeadingAndTheListEmpty) {
  const LoopbackServer server([&](const Answer& answer, const std::string&) { answer.http("200 OK", ""); });
  openWith(server.address());
  a().List4.add("from before");
  a().FgImporta.appendRow();
  a().Command18.press();
  EXPECT_THAT(world.shell.shown, IsEmpty());
  EXPECT_EQ(a().FgImporta.rows(), 1);
  EXPECT_THAT(a().List4.lines(), IsEmpty());
  EXPECT_EQ(readBytes(localCopy), "\r\n");
}

TEST_F(UpdateFetchTest, WithoutAServerThePhaseIsTheSiteAndTheTabSaysWhereItIsSet) {
  openWith("").Command18.press();
  EXPECT_EQ(world.shell.lastBox().text, kNoSite);
  EXPECT_EQ(world.shell.lastBox().title, "Avviso");
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
  EXPECT_THAT(world.shell.reasons.back(), HasSubstr("Salvataggi"));
  EXPECT_THAT(a().Lbl_Server.text(), HasSubstr("Salvataggi"));
  a().Txt_ServerWeb.set(" http://127.0.0.1/ ");
  a().Cmd_Impostazioni.press();
  EXPECT_EQ(a().Lbl_Server.text(),
            "File degli aggiornamenti: http://127.0.0.1/archiviobrentara/archiviobrentara2023.txt");
}

TEST_F(UpdateFetchTest, EveryFailureOfAServerEndsInTheMessageAndLeavesTheGridAndTheCopy) {
  const std::string tooMuch(std::size_t{20} << 20, 'x');
  const LoopbackServer::Handler failures[] = {
      [](const Answer& answer, const std::string&) { answer.http("404 Not Found", "nothing"); },
      [](const Answer& answer, const std::string&) {
        answer.send("HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\nhalf");
      },
      [&](const Answer& answer, const std::string&) { answer.http("200 OK", tooMuch); },
      [](const Answer& answer, const std::string&) { answer.http("302 Found", "", "Location: file:///etc/hosts\r\n"); },
      [](const Answer& answer, const std::string&) {
        answer.send("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n");
        while (answer.send("x") && answer.pause(1000)) continue;
      }};
  for (const auto& failure : failures) {
    const LoopbackServer server(failure);
    openWith(server.address());
    connectUpdateTab(a(), [](const std::string& address) {
      return beginTransfer(address, {.time = milliseconds(1200)});  // of the thirty seconds that a user waits
    });
    writeBytes(localCopy, "from before");
    a().List4.add("from before");
    world.shell.holdSteps = true;
    a().Command18.press();
    auto longest = Clock::duration::zero();
    for (bool more = true; more;) {
      const auto before = Clock::now();
      more = world.shell.runSteps();
      longest = std::max(longest, Clock::now() - before);
      std::this_thread::sleep_for(milliseconds(1));
    }
    EXPECT_LT(longest, milliseconds(500)) << "the window never stands still";
    EXPECT_EQ(world.shell.lastBox().text, kNoSite);
    EXPECT_EQ(world.shell.shown.size(), 1U);
    EXPECT_EQ(a().List4.lines().size(), 1U);
    EXPECT_EQ(readBytes(localCopy), "from before");
    EXPECT_TRUE(a().Command18.enabled());
  }
}

TEST_F(UpdateFetchTest, ARedirectIsFollowed) {
  const LoopbackServer target([&](const Answer& answer, const std::string&) { answer.http("200 OK", text); });
  const LoopbackServer server([&](const Answer& answer, const std::string&) {
    answer.http("301 Moved Permanently", "", "Location: " + target.address() + "/elsewhere\r\n");
  });
  openWith(server.address()).Command18.press();
  EXPECT_EQ(a().FgImporta.rows(), 2);
}

TEST_F(UpdateFetchTest, WhileItGoesOnNothingElseOfTheTabStartsAndItCanBeCancelled) {
  const LoopbackServer server([&](const Answer& answer, const std::string&) {
    answer.send("HTTP/1.1 200 OK\r\nContent-Length: 4000000\r\n\r\n" + std::string(2'000'000, 'x'));
    while (answer.pause(1000)) continue;
  });
  openWith(server.address());
  EXPECT_FALSE(a().Command26.enabled());
  world.shell.holdSteps = true;
  a().Command18.press();
  for (const Button* button : {&a().Command18, &a().Command21, &a().Command27, &a().Command28, &a().Command19})
    EXPECT_FALSE(button->enabled()) << button->name();
  EXPECT_FALSE(a().Cmd_Storico.enabled());
  while (world.shell.progressValues.empty() || world.shell.progressValues.back().first < 1900) {
    ASSERT_TRUE(world.shell.runSteps());
    std::this_thread::sleep_for(milliseconds(1));
  }
  EXPECT_THAT(world.shell.statusTexts.back(), HasSubstr("Scarico in corso: 19"));
  EXPECT_EQ(world.shell.progressValues.back().second, 3907);
  a().Command26.press();
  EXPECT_EQ(world.shell.statusTexts.back(), "Scarico annullato");
  EXPECT_EQ(world.shell.progressValues.back(), (std::pair{0, 0}));
  finish();
  EXPECT_THAT(world.shell.shown, IsEmpty());
  EXPECT_TRUE(a().Command18.enabled());
  EXPECT_FALSE(a().Command26.enabled());
  EXPECT_FALSE(std::filesystem::exists(localCopy));
}

TEST_F(UpdateFetchTest, TheScreenMayGoWhileItGoesOn) {
  const LoopbackServer server([&](const Answer& answer, const std::string&) {
    answer.send("HTTP/1.1 200 OK\r\nContent-Length: 4000\r\n\r\nx");
    while (answer.pause(1000)) continue;
  });
  openWith(server.address());
  world.shell.holdSteps = true;
  a().Command18.press();
  EXPECT_TRUE(world.shell.runSteps());
  world.shell.forgetScreens();
  EXPECT_FALSE(world.shell.runSteps());
}

TEST_F(UpdateFetchTest, ACopyThatCannotBeWrittenIsAFailureOfTheFirstPhase) {
  const LoopbackServer server([&](const Answer& answer, const std::string&) { answer.http("200 OK", text); });
  openWith(server.address());
  const ReadOnlyFolder readOnly(world.folder.path(), ReadOnlyFolder::Files::Writable);
  a().Command18.press();
  EXPECT_EQ(world.shell.lastBox().text, kNoSite);
  EXPECT_EQ(a().FgImporta.rows(), 1);
}

TEST_F(UpdateFetchTest, ScaricoFileKeepsTheCopyAndSaysFatto) {
  const LoopbackServer server([&](const Answer& answer, const std::string&) { answer.http("200 OK", text); });
  openWith(server.address()).Command27.press();
  EXPECT_EQ(world.shell.lastBox().text, "Fatto");
  EXPECT_EQ(readBytes(localCopy), text + "\r\n");
  EXPECT_EQ(a().FgImporta.rows(), 1) << "nothing is read";
}

TEST_F(UpdateFetchTest, ScaricoFileThatFailsTellsWhy) {
  const LoopbackServer server([&](const Answer& answer, const std::string&) { answer.http("404 Not Found", ""); });
  openWith(server.address()).Command27.press();
  EXPECT_EQ(world.shell.lastBox().text, "Il file non può essere scaricato: il server risponde con l'errore 404.");
  EXPECT_EQ(world.shell.lastBox().icon, Icon::Critical);
}

TEST_F(UpdateFetchTest, TheAddressIsHandedToTheSystem) {
  openWith("http://127.0.0.1").Command20.press();
  EXPECT_THAT(world.shell.addresses, ElementsAre("http://127.0.0.1/archiviobrentara/archiviobrentara2023.txt"));
}

#ifdef TRV5_FTP_SERVER
TEST_F(UpdateFetchTest, TheFtpServerGivesTheFileToKeep) {
  TempFolder remote;
  std::filesystem::create_directory(remote / "archiviobrentara");
  writeBytes(remote.path() / "archiviobrentara" / "archiviobrentara2023.txt", text);
  writeBytes(remote / "Estr_agg.txt", "kept");
  const FtpServer server(TRV5_FTP_SERVER, remote.path());
  openWith(server.address(), server.address().substr(6));
  for (int i = 0; i < 200 && a().FgImporta.rows() == 1; ++i) {  // it takes a moment until it listens
    a().Command18.press();
    std::this_thread::sleep_for(milliseconds(20));
  }
  EXPECT_EQ(a().FgImporta.text(1, 1), "03/01/2001") << "the update by ftp";
  a().Command19.press();
  EXPECT_EQ(readBytes(world.folder / "pippo.txt"), "kept");
}
#endif

}  // namespace
}  // namespace trv5
