#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QShortcut>
#include <QTest>

#include "core/errors.h"
#include "screens/kit/theme.h"
#include "window_world.h"

namespace trv5 {
namespace {

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
