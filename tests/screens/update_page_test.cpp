// The tab of the archive's screen that brings it up to date, in the real window.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QScrollBar>
#include <QTest>

#include "maintenance/archivio.h"
#include "screens/kit/grid_view.h"
#include "screens/kit/theme.h"
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
  // Its kind, and whether its caption is in bold type: the primary one's alone is.
  std::string kindOf(const char* button) const {
    const QWidget& widget = *shell.widget("archivio", button);
    const std::string kind = widget.property("kind").toString().toStdString();
    EXPECT_EQ(widget.font().weight() >= QFont::DemiBold, kind == "primary") << button;
    return kind;
  }
  // AGGIORNA DA FILE with the text.
  void offer(const std::string& text) {
    writeBytes(files.folder / "agg.txt", text);
    shell.files.push_back(files.folder / "agg.txt");
    form->Command21.press();
    settle();
  }

  ProgramWorld files;
  QuietShell shell{allScreens()};
  Program program{shell, files.folder.path()};
  Archivio* form = nullptr;
};

TEST(UpdatePage, TheButtonOfTheNextStageIsThePrimaryOne) {
  UpdatePage page;
  for (const QSize size : {QSize(1920, 1080), QSize(1366, 768)}) {  // its type becomes smaller
    page.shell.widget("Container")->resize(size);
    settle();
  }
  EXPECT_EQ(page.kindOf("Command18"), "primary");
  EXPECT_EQ(page.kindOf("Command28"), "secondary");
  page.offer("08/01/1939 01-02-03-04-05" + std::string(151, ' ') + "pr\r\n07/01/1939 58-22-47-49-69");
  EXPECT_EQ(page.form->FgImporta.rows(), 3);
  EXPECT_EQ(page.kindOf("Command18"), "secondary");
  EXPECT_EQ(page.kindOf("Command28"), "primary");
  page.form->FgImporta.cutToHeading();
  settle();
  EXPECT_EQ(page.kindOf("Command18"), "primary");
  EXPECT_EQ(page.kindOf("Command28"), "secondary");
}

TEST(UpdatePage, TheColumnsOfAFileFillTheGridAlsoAfterTheWindowHasGrown) {
  UpdatePage page;
  QWidget& main = *page.shell.widget("Container");
  main.resize(1366, 768);
  settle();
  std::string line = "08/01/1939";
  for (int wheel = 0; wheel < kWheels; ++wheel) line += " 88-88-88-88-88";
  std::string file;
  for (int i = 0; i < 100; ++i) file += line + " pr\r\n";
  page.offer(file);
  const auto& view = *qobject_cast<GridView*>(page.shell.widget("archivio", "FgImporta"));
  for (const QSize size : {QSize(1366, 768), QSize(1920, 1080)}) {
    main.resize(size);
    for (int i = 0; i < 3; ++i) settle();
    const QFontMetrics metrics(view.cellFont(false));
    EXPECT_GE(view.columnWidth(2), metrics.horizontalAdvance(QStringLiteral("88-88-88-88-88")) + 8) << size.width();
    const auto [left, width] = view.columnSpan(12);
    EXPECT_GE(left + width, view.viewport()->width()) << size.width();
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum()) << "the newest draws are last";
  }
  Theme::edit().setWindowHeight(1080);
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
