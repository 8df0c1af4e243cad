#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QPointer>
#include <QTest>
#include <QTextBoundaryFinder>
#include <set>

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

TEST(InizioScreen, EnterAfterTheChoiceOfAnArchiveIsProcedi) {
  WindowWorld world;
  world.start();
  QAbstractButton& choose = world.button("INIZIO", "Command4");
  choose.setFocus();
  world.shell.files.push_back(world.files.folder / "Archivio.mdb");
  QTest::keyClick(&choose, Qt::Key_Return);
  settle();
  ASSERT_EQ(world.shell.openScreens(), std::vector<std::string>{"INIZIO"});
  QWidget* const focused = world.shell.widget("INIZIO")->focusWidget();
  ASSERT_EQ(focused, &world.button("INIZIO", "Command2"));
  QTest::keyClick(focused, Qt::Key_Return);
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

}  // namespace
}  // namespace trv5
