#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QMdiSubWindow>
#include <QProgressBar>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <QTest>
#include <QTextBoundaryFinder>
#include <set>

#include "core/errors.h"
#include "screens/kit/theme.h"
#include "screens/shell/help_viewer.h"
#include "window_world.h"

namespace trv5 {
namespace {

// The letters that Alt presses, each counted.
std::multiset<QChar> mnemonicsOf(const QWidget& window) {
  std::multiset<QChar> letters;
  const auto note = [&](const QString& text) {
    const QKeySequence key = QKeySequence::mnemonic(text);
    if (!key.isEmpty()) letters.insert(key.toString().back());
  };
  for (const auto* const button : window.findChildren<QAbstractButton*>()) note(button->text());
  for (const auto* const label : window.findChildren<QLabel*>())
    if (label->buddy() != nullptr) note(label->text());
  return letters;
}

TEST(InizioScreen, ShowsTheArchiveAndItsControlsUnderTheirNames) {
  WindowWorld world;
  world.start();
  QWidget& window = *world.shell.widget("INIZIO");
  EXPECT_TRUE(window.windowTitle().startsWith(QStringLiteral("TRV5 Nerovia Forge V2: Versione ")));
  EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("Lbl_Archivio"))->text().toStdString(),
            (world.files.folder / "Archivio.mdb").string());
  EXPECT_EQ(world.button("INIZIO", "Command2").text().remove(u'&'), QStringLiteral("PROCEDI"));
  EXPECT_EQ(world.button("INIZIO", "Command4").text().remove(u'&'), QStringLiteral("SELEZIONE ARCHIVIO"));
  EXPECT_NE(window.findChild<QProgressBar*>(QStringLiteral("pb1")), nullptr);
  EXPECT_EQ(window.minimumHeight(), window.maximumHeight());
}

TEST(InizioScreen, NoLineOfTheNoteEndsInsideItsArrow) {
  WindowWorld world;
  world.start();
  const QString note = world.shell.widget("INIZIO")->findChild<QLabel*>(QStringLiteral("Label1"))->text();
  const auto arrow = note.lastIndexOf(u' ') + 1;
  EXPECT_EQ(note.mid(arrow).remove(QChar(0x2060)), QStringLiteral("------->"));
  QTextBoundaryFinder breaks(QTextBoundaryFinder::Line, note);
  breaks.setPosition(arrow);
  EXPECT_EQ(breaks.toNextBoundary(), note.size());
}

TEST(InizioScreen, MnemonicsAreUnique) {
  WindowWorld world;
  world.start();
  for (const QChar letter : mnemonicsOf(*world.shell.widget("INIZIO")))
    EXPECT_EQ(mnemonicsOf(*world.shell.widget("INIZIO")).count(letter), 1u) << letter.toLatin1();
  EXPECT_EQ(mnemonicsOf(*world.shell.widget("INIZIO")).size(), 4u);
}

TEST(InizioScreen, EnterIsProcediAndEscIsNothing) {
  WindowWorld world;
  world.start();
  QTest::keyClick(world.shell.widget("INIZIO"), Qt::Key_Escape);
  settle();
  EXPECT_EQ(world.shell.openScreens(), std::vector<std::string>{"INIZIO"});
  QTest::keyClick(world.shell.widget("INIZIO"), Qt::Key_Return);
  settle();
  EXPECT_EQ(world.shell.openScreens(), std::vector<std::string>{"Container"});
}

TEST(InizioScreen, EnterOnAnotherButtonPressesThatOne) {
  WindowWorld world;
  world.start();
  QAbstractButton& fine = world.button("INIZIO", "Command3");
  fine.setFocus();
  QTest::keyClick(&fine, Qt::Key_Return);
  EXPECT_EQ(world.shell.quits, 1);
  EXPECT_EQ(world.shell.openScreens(), std::vector<std::string>{"INIZIO"});
}

TEST(InizioScreen, TheCrossOfTheWindowIsFine) {
  WindowWorld world;
  world.start();
  world.shell.widget("INIZIO")->close();
  EXPECT_EQ(world.shell.quits, 1);
}

TEST(InizioScreen, F1ShowsItsPage) {
  WindowWorld world;
  world.start();
  QTest::keyClick(world.shell.widget("INIZIO"), Qt::Key_F1);
  ASSERT_NE(world.shell.helpViewer(), nullptr);
  EXPECT_EQ(world.shell.helpViewer()->page().toString(), QStringLiteral("qrc:/help/avvio.html#inizio"));
}

TEST(InizioScreen, ProcediDestroysItAndFillsItsBar) {
  WindowWorld world;
  world.start();
  const QPointer<QWidget> window = world.shell.widget("INIZIO");
  world.button("INIZIO", "Command2").click();
  EXPECT_FALSE(window.isNull()) << "its operation may still stand in it";
  world.shell.purge();
  EXPECT_TRUE(window.isNull());
}

TEST(ContainerScreen, ShowsTheStatusBlockAndTheListOfDraws) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  EXPECT_EQ(window.windowTitle(), QStringLiteral("TRV 5"));
  const auto text = [&](const char* name) { return window.findChild<QLabel*>(QLatin1String(name))->text(); };
  EXPECT_EQ(text("LblInizio"), QStringLiteral("07/01/1939"));
  EXPECT_EQ(text("LblFine"), QStringLiteral("04/02/1939"));
  EXPECT_EQ(text("Lbl_inizioNE"), QStringLiteral("1"));
  EXPECT_EQ(text("Lbl_fineNE"), QStringLiteral("3"));
  EXPECT_EQ(text("Lbl_Ev"), QStringLiteral("3"));
  EXPECT_EQ(text("LblTitoloNE"), QStringLiteral("N° estr"));
  const auto* const draws = window.findChild<GridView*>(QStringLiteral("FG5"));
  ASSERT_NE(draws, nullptr);
  EXPECT_EQ(draws->model()->rowCount(), 3);
  EXPECT_TRUE(draws->isColumnHidden(0)) << "empty in all rows";
}

TEST(ContainerScreen, TheListOfDrawsOpensAtItsEnd) {
  WindowWorld world;
  std::vector<DrawRow> rows;
  for (int day = 1; day <= 28; ++day)
    for (int month = 1; month <= 12; ++month)
      rows.push_back(drawOf(QStringLiteral("%1/%2/1950")
                                .arg(day, 2, 10, QLatin1Char('0'))
                                .arg(month, 2, 10, QLatin1Char('0'))
                                .toStdString(),
                            {{"BA", {1, 2, 3, 4, 5}}}));
  std::sort(rows.begin(), rows.end(), [](const DrawRow& a, const DrawRow& b) {
    return a.date.substr(3, 2) + a.date < b.date.substr(3, 2) + b.date;
  });
  const auto archive = world.files.makeArchive(rows, "Lungo.mdb");
  world.start();
  world.shell.files.push_back(archive);
  world.button("INIZIO", "Command4").click();
  world.button("INIZIO", "Command2").click();
  settle();
  auto* const draws = world.shell.widget("Container")->findChild<GridView*>(QStringLiteral("FG5"));
  ASSERT_EQ(draws->model()->rowCount(), 336);
  for (const int height : {700, 1000, 620}) {
    world.shell.widget("Container")->resize(1366, height);
    settle();
    EXPECT_GT(draws->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(draws->verticalScrollBar()->value(), draws->verticalScrollBar()->maximum());
  }
  for (const double points : {14.0, 0.0}) {
    Theme::edit().setBasePoints(points);
    settle();
    EXPECT_EQ(draws->verticalScrollBar()->value(), draws->verticalScrollBar()->maximum()) << points;
  }
  draws->verticalScrollBar()->setValue(100);
  Theme::edit().setBasePoints(14);
  settle();
  EXPECT_EQ(draws->verticalScrollBar()->value(), 100) << "the user's place is kept";
  Theme::edit().setBasePoints(0);
}

TEST(ContainerScreen, NothingOfThePanelIsCutWithALargeFont) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  window.resize(1280, 720);
  auto* const rail = window.findChild<QWidget*>(QStringLiteral("rail"));
  for (const bool dark : {false, true}) {
    Theme::edit().setDark(dark);
    for (const double points : {10.0, 14.0, 16.0}) {
      Theme::edit().setBasePoints(points);
      settle();
      for (const auto* const button : rail->findChildren<QAbstractButton*>())
        EXPECT_GE(button->width(), button->sizeHint().width()) << points << " " << button->text().toStdString();
      for (const auto* const label : rail->findChildren<QLabel*>()) {
        EXPECT_GE(label->width(), label->sizeHint().width()) << points << " " << label->text().toStdString();
        EXPECT_GE(label->height(), label->sizeHint().height()) << points << " " << label->text().toStdString();
      }
    }
  }
  Theme::edit().setDark(false);
  Theme::edit().setBasePoints(0);
}

TEST(ContainerScreen, AButtonOfAScreenThatDoesNotExistIsDisabledAndSaysSo) {
  WindowWorld world;
  world.proceed();
  QAbstractButton& missing = world.button("Container", "Command6");
  EXPECT_FALSE(missing.isEnabled());
  EXPECT_TRUE(missing.toolTip().contains(QStringLiteral("non esiste ancora")));
  EXPECT_TRUE(world.button("Container", "Command4").isEnabled());
}

TEST(ContainerScreen, APanelThatIsFoldedHasTheCaptionsAsTooltips) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  EXPECT_TRUE(window.railWide());
  QTest::keyClick(&window, Qt::Key_F4);
  settle();
  EXPECT_FALSE(window.railWide());
  EXPECT_EQ(window.findChild<QWidget*>(QStringLiteral("rail"))->width(), 52);
  EXPECT_EQ(world.button("Container", "Command4").toolTip(), QStringLiteral("TRV5"));
  QTest::keyClick(&window, Qt::Key_F4);
  settle();
  EXPECT_EQ(window.findChild<QWidget*>(QStringLiteral("rail"))->width(), 304);
}

TEST(ContainerScreen, TheFirstScreenFoldsThePanelAndTheLastUnfoldsIt) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  world.button("Container", "Command5").click();
  settle();
  EXPECT_FALSE(window.railWide());
  world.shell.close("Estrazioni_minielenco");
  settle();
  EXPECT_TRUE(window.railWide());
}

TEST(ContainerScreen, ScreensFillTheAreaOrStandAboveIt) {
  WindowWorld world;
  world.proceed();
  world.button("Container", "Command4").click();
  world.button("Container", "Command5").click();
  settle();
  EXPECT_EQ(world.shell.openScreens(), (std::vector<std::string>{"Container", "Sommativi1", "Estrazioni_minielenco"}));
  const QWidget& bench = *world.shell.widget("Sommativi1");
  const QWidget& list = *world.shell.widget("Estrazioni_minielenco");
  EXPECT_EQ(bench.width(), 1366 - 52);
  EXPECT_LE(list.parentWidget()->width(), 300);
  // The workbench stays whole and the small window in front, whichever is active.
  world.button("Container", "Command4").click();
  settle();
  EXPECT_EQ(world.shell.openScreens().back(), "Sommativi1");
  EXPECT_EQ(bench.width(), 1366 - 52);
  EXPECT_TRUE(list.isVisible());
  const QObjectList& siblings = list.parentWidget()->parentWidget()->children();
  EXPECT_GT(siblings.indexOf(list.parentWidget()), siblings.indexOf(bench.parentWidget()));
}

TEST(ContainerScreen, TheButtonsOfThePanelMarkTheScreenInFrontAndTheOpenOnes) {
  WindowWorld world;
  world.proceed();
  world.button("Container", "Command4").click();
  world.button("Container", "Command1").click();
  settle();
  EXPECT_FALSE(world.button("Container", "Command4").isChecked());
  EXPECT_TRUE(world.button("Container", "Command1").isChecked());
  world.button("Container", "Command1").click();
  EXPECT_TRUE(world.button("Container", "Command1").isChecked());
}

TEST(ContainerScreen, EscClosesASmallWindowAndNeverTheWorkbench) {
  WindowWorld world;
  world.proceed();
  world.button("Container", "Command4").click();
  world.button("Container", "Command5").click();
  settle();
  QWidget* const box = world.shell.widget("Estrazioni_minielenco")->findChild<QWidget*>(QStringLiteral("Text1"));
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Escape);
  settle();
  EXPECT_EQ(world.shell.openScreens(), (std::vector<std::string>{"Container", "Sommativi1"}));
  QTest::keyClick(world.shell.widget("Sommativi1")->findChild<QWidget*>(QStringLiteral("Text1")), Qt::Key_Escape);
  settle();
  EXPECT_EQ(world.shell.openScreens(), (std::vector<std::string>{"Container", "Sommativi1"}));
}

TEST(ContainerScreen, AScreenClosedByItsOwnButtonLivesUntilTheButtonIsDone) {
  WindowWorld world;
  world.proceed();
  world.shell.show("Estrazioni_minielenco");
  world.button("Estrazioni_minielenco", "Command1").click();
  EXPECT_EQ(world.shell.form("Estrazioni_minielenco"), nullptr);
  settle();
  // It can be opened afresh.
  world.shell.show("Estrazioni_minielenco");
  settle();
  EXPECT_EQ(world.shell.openScreens().back(), "Estrazioni_minielenco");
  EXPECT_TRUE(world.shell.widget("Estrazioni_minielenco")->isVisible());
}

TEST(ContainerScreen, CtrlTabGoesRoundTheOpenScreens) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  world.button("Container", "Command4").click();
  world.button("Container", "Command1").click();
  settle();
  QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(world.shell.openScreens().back(), "Sommativi1");
  QTest::keyClick(&window, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(world.shell.openScreens().back(), "archivio");
}

TEST(ContainerScreen, F1ShowsThePageOfTheScreenInFront) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  QTest::keyClick(&window, Qt::Key_F1);
  EXPECT_EQ(world.shell.helpViewer()->page().toString(), QStringLiteral("qrc:/help/finestra.html#finestra"));
  world.button("Container", "Command5").click();
  window.activateWindow();
  settle();
  QTest::keyClick(&window, Qt::Key_F1);
  EXPECT_EQ(world.shell.helpViewer()->page().toString(), QStringLiteral("qrc:/help/mini-elenco.html#mini-elenco"));
  world.button("Container", "Command33").click();
  EXPECT_EQ(world.shell.helpViewer()->page().toString(), QStringLiteral("qrc:/help/finestra.html#finestra"));
}

TEST(ContainerScreen, FineAndTheCrossEndTheProgram) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  world.button("Container", "Command45").click();
  EXPECT_EQ(world.shell.quits, 1);
  window.close();
  EXPECT_EQ(world.shell.quits, 2);
}

TEST(ContainerScreen, ProgressAndStatusStandInTheStatusBar) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  auto* const bar = window.findChild<QProgressBar*>(QStringLiteral("Pb1"));
  const int place = bar->x();
  world.shell.progress(50, 100);
  world.shell.status("Verifica tutte le righe: 20 casi, 40 esiti");
  settle();
  EXPECT_EQ(bar->value(), 50);
  EXPECT_EQ(bar->x(), place);
  const QList<QLabel*> labels = window.findChildren<QLabel*>();
  EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
    return label->text() == QStringLiteral("Verifica tutte le righe: 20 casi, 40 esiti");
  }));
}

TEST(ContainerScreen, ALowWindowIsCompactAndCtrlPlusEnlargesTheFont) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  EXPECT_EQ(Theme::current().density(), Theme::Density::Compact);
  window.resize(1600, 950);
  settle();
  EXPECT_EQ(Theme::current().density(), Theme::Density::Comfortable);
  QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(Theme::current().basePoints(), 11);
  QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
  QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(Theme::current().basePoints(), 10);
  QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Theme::current().basePoints(), 10.5);
}

TEST(ContainerScreen, AScreenThatUsesCtrl0HasItWhileItIsInFront) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  Theme::edit().setBasePoints(12);
  world.shell.show("archivio");
  QWidget& bench = *world.shell.widget(world.shell.show("Sommativi1").name());
  int used = 0;
  auto* const tenth = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_0), &bench);
  QObject::connect(tenth, &QShortcut::activated, &bench, [&] { ++used; });
  world.shell.show("Sommativi1");
  settle();
  QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(used, 1);
  EXPECT_EQ(Theme::current().basePoints(), 12);
  delete tenth;
  world.shell.show("archivio");
  QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Theme::current().chosenPoints(), 0);
}

TEST(ContainerScreen, RemembersItsPlaceAndItsPanel) {
  const TempFolder folder;
  const std::filesystem::path file = folder / "TRV5.ini";
  {
    WindowWorld world;
    world.shell.useSettings(file);
    ContainerScreen& window = world.proceed();
    window.showNormal();
    window.setGeometry(30, 40, 1111, 700);
    QTest::keyClick(&window, Qt::Key_F4);
    Theme::edit().setBasePoints(12);
    settle();
  }
  Theme::edit().setBasePoints(0);
  WindowWorld world;
  world.shell.useSettings(file);
  EXPECT_EQ(Theme::current().basePoints(), 12);
  world.start();
  world.button("INIZIO", "Command2").click();
  settle();
  auto& window = *qobject_cast<ContainerScreen*>(world.shell.widget("Container"));
  EXPECT_FALSE(window.railWide());
  EXPECT_EQ(window.height(), 700);
  Theme::edit().setBasePoints(0);
}

TEST(QtShell, RefusesAScreenThatItDoesNotHave) {
  WindowWorld world;
  world.start();
  EXPECT_THROW(world.shell.show("DiDiSO"), UserError);
  EXPECT_EQ(world.shell.openScreens(), std::vector<std::string>{"INIZIO"});
}

TEST(QtShell, AStartThatFailsLeavesNoWindow) {
  WindowWorld world;
  std::filesystem::remove(world.files.folder / "DbTRV5.mdb");
  world.program.userFolder = world.files.userFolder.path();
  EXPECT_THROW(world.shell.show("INIZIO"), UserError);
  EXPECT_TRUE(world.shell.openScreens().empty());
}

TEST(QtShell, TheClipboardIsThatOfTheDesktop) {
  WindowWorld world;
  world.shell.setClipboard("uno\tdue\r\n");
  EXPECT_EQ(world.shell.clipboard(), "uno\tdue\r\n");
}

}  // namespace
}  // namespace trv5
