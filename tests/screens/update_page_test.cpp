// The tab of the archive's screen that brings it up to date, in the real window.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>

#include "maintenance/archivio.h"
#include "support/loopback_server.h"
#include "window_world.h"

namespace trv5 {
namespace {

// The program with all its screens, the archive's one open on that tab, updates from `server`.
struct UpdatePage {
  explicit UpdatePage(const std::string& server = {}) {
    const auto archive = files.makeArchive({drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}})});
    files.makeMain({{.Parametro = "PercorsoArchivio", .Valore1 = archive.string()},
                    {.Parametro = "EstrazioneIniziale", .Valore1 = "1"},
                    {.Parametro = "HostWebAggiornamento", .Valore1 = server}});
    shell.attach(program);
    shell.show("INIZIO");
    static_cast<Inizio&>(*shell.form("INIZIO")).Command2.press();
    form = &static_cast<Archivio&>(shell.show("archivio"));
    form->SSTab1.set(Archivio::kAggiornamenti);
    settle();
  }
  ~UpdatePage() {
    shell.closeAll();
    shell.purge();
  }
  std::string kindOf(const char* button) const {
    return shell.widget("archivio", button)->property("kind").toString().toStdString();
  }

  ProgramWorld files;
  QuietShell shell{allScreens()};
  Program program{shell, files.folder.path()};
  Archivio* form = nullptr;
};

TEST(UpdatePage, TheButtonOfTheNextStageIsThePrimaryOne) {
  UpdatePage page;
  EXPECT_EQ(page.kindOf("Command18"), "primary");
  EXPECT_EQ(page.kindOf("Command28"), "secondary");
  writeBytes(page.files.folder / "agg.txt",
             "08/01/1939 01-02-03-04-05" + std::string(151, ' ') + "pr\r\n07/01/1939 58-22-47-49-69");
  page.shell.files.push_back(page.files.folder / "agg.txt");
  page.form->Command21.press();
  settle();
  EXPECT_EQ(page.form->FgImporta.rows(), 3);
  EXPECT_EQ(page.kindOf("Command18"), "secondary");
  EXPECT_EQ(page.kindOf("Command28"), "primary");
  page.form->FgImporta.cutToHeading();
  settle();
  EXPECT_EQ(page.kindOf("Command18"), "primary");
}

TEST(UpdatePage, AServerThatSendsAByteASecondHoldsNoEventOfTheWindowAndIsGivenUp) {
  const LoopbackServer server([](const LoopbackServer::Answer& answer, const std::string&) {
    answer.send("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n");
    while (answer.send("x") && answer.pause(1000)) continue;
  });
  UpdatePage page(server.address());
  QElapsedTimer clock;
  clock.start();
  page.form->Command18.press();
  EXPECT_LT(clock.elapsed(), 500) << "the click comes back at once";
  qint64 longest = 0;
  for (int i = 0; i < 30; ++i) {
    clock.start();
    QTest::qWait(20);
    longest = std::max(longest, clock.elapsed());
  }
  EXPECT_LT(longest, 500);
  EXPECT_FALSE(page.shell.widget("archivio", "Command18")->isEnabled());
  page.form->Command26.press();
  settle();
  EXPECT_TRUE(page.shell.widget("archivio", "Command18")->isEnabled());
  EXPECT_TRUE(page.shell.messages.empty());
}

TEST(UpdatePage, AFetchComesToItsEndWhileTheUserWorks) {
  const LoopbackServer server([](const LoopbackServer::Answer& answer, const std::string&) {
    answer.pause(100);
    answer.http("200 OK", "08/01/1939 01-02-03-04-05\r\n");
  });
  UpdatePage page(server.address());
  page.form->Command18.press();
  EXPECT_EQ(page.form->FgImporta.rows(), 1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return page.form->FgImporta.rows() == 2; }));
  EXPECT_TRUE(page.shell.messages.empty());
}

TEST(UpdatePage, TheProgramMayEndWhileAFetchGoesOn) {
  const LoopbackServer server([](const LoopbackServer::Answer& answer, const std::string&) {
    while (answer.pause(1000)) continue;
  });
  UpdatePage page(server.address());
  page.form->Command18.press();
  QTest::qWait(50);
  page.shell.closeAll();
  page.shell.purge();
  QTest::qWait(50);
  EXPECT_TRUE(page.shell.messages.empty());
}

}  // namespace
}  // namespace trv5
