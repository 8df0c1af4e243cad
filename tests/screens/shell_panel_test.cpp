// The panel that F4 opens, the state of the window, the looks that the user chose.
#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QScreen>
#include <QSettings>
#include <QTest>
#include <QToolButton>
#include <QWindow>

#include "screens/kit/theme.h"
#include "support/temp_folder.h"
#include "window_world.h"

namespace trv5 {
namespace {

struct OpenPanel : WindowWorld {
  OpenPanel() : window(proceed()) {
    button("Container", "Command4").click();
    settle();
    box = shell.widget("Sommativi1")->findChild<QWidget*>(QStringLiteral("Text1"));
    box->setFocus();
    QTest::keyClick(box, Qt::Key_F4);
    settle();
  }
  ContainerScreen& window;
  QWidget* box = nullptr;
};

TEST(ShellPanel, EnterPressesItsButtons) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  QToolButton* menu = nullptr;
  for (auto* const button : window.findChildren<QToolButton*>())
    if (button->toolTip().contains(QStringLiteral("F4"))) menu = button;
  ASSERT_NE(menu, nullptr);
  const bool wide = window.railWide();
  menu->setFocus();
  QTest::keyClick(menu, Qt::Key_Return);
  EXPECT_NE(window.railWide(), wide);
}

TEST(ShellPanel, AClickOnItsButtonsLeavesTheFocusToTheScreenAndItsKeys) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  world.button("Container", "Command4").click();
  settle();
  auto* const box = world.shell.widget("Sommativi1")->findChild<QWidget*>(QStringLiteral("Text1"));
  box->setFocus();
  int pressed = 0;
  for (auto* const button : window.findChild<QWidget*>(QStringLiteral("rail"))->findChildren<QToolButton*>()) {
    if (!button->isVisible() || !button->isEnabled() || button->menu() != nullptr) continue;
    ++pressed;
    QTest::mousePress(button, Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), box) << button->toolTip().toStdString();
    QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-50, -50));
  }
  EXPECT_GT(pressed, 1);
}

TEST(ShellPanel, TakesTheFocusAndEscGivesItBack) {
  OpenPanel world;
  ASSERT_TRUE(world.window.railWide());
  QWidget* const rail = world.window.findChild<QWidget*>(QStringLiteral("rail"));
  ASSERT_TRUE(rail->isAncestorOf(QApplication::focusWidget()));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  settle();
  EXPECT_FALSE(world.window.railWide());
  EXPECT_TRUE(world.box->hasFocus());
}

TEST(ShellPanel, AClickOutsideClosesItAndOneInsideDoesNot) {
  OpenPanel world;
  QWidget* const rail = world.window.findChild<QWidget*>(QStringLiteral("rail"));
  QTest::mouseClick(rail, Qt::LeftButton, {}, QPoint(rail->width() - 4, rail->height() / 2));
  EXPECT_TRUE(world.window.railWide());
  QTest::mouseClick(world.shell.widget("Sommativi1"), Qt::LeftButton, {}, QPoint(600, 400));
  EXPECT_FALSE(world.window.railWide());
}

TEST(ShellPanel, StaysOpenWhileNoScreenIs) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  ASSERT_TRUE(window.railWide());
  QTest::mouseClick(window.centralWidget(), Qt::LeftButton, {}, QPoint(900, 300));
  QTest::keyClick(&world.button("Container", "Command4"), Qt::Key_Escape);
  EXPECT_TRUE(window.railWide());
}

TEST(ShellWindow, TheDesktopsTitleNamesTheArchive) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  EXPECT_EQ(window.windowTitle(), QStringLiteral("TRV 5"));
  const QString archive = qs(world.program.loadedArchive.stem().string());
  ASSERT_FALSE(archive.isEmpty());
  EXPECT_EQ(window.windowHandle()->title(), QStringLiteral("TRV 5 · ") + archive);
}

TEST(ShellWindow, StaysOnTheDesktopWhenItIsNoLongerMaximised) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  window.resize(window.width(), 3000);
  window.showMaximized();
  settle();
  window.showNormal();
  settle();
  EXPECT_LE(window.frameGeometry().bottom(), std::max(window.screen()->availableGeometry().bottom(),
                                                      window.frameGeometry().top() + window.minimumHeight()));
}

TEST(ShellWindow, TheBarIsEmptyWhenTheWorkIsDone) {
  WindowWorld world;
  ContainerScreen& window = world.proceed();
  auto* const bar = window.findChild<QProgressBar*>(QStringLiteral("Pb1"));
  world.shell.progress(50, 100);
  settle();
  EXPECT_EQ(bar->value(), 50) << "somebody is at it";
  world.shell.progress(100, 100);
  for (int i = 0; i < 3; ++i) settle();
  EXPECT_EQ(bar->value(), 0);
  // A work that ends in an error leaves nothing either.
  world.shell.form("Container")->perform([&] { world.shell.progress(30, 100); });
  EXPECT_TRUE(QTest::qWaitFor([&] { return bar->value() == 0; }, 1000));
}

TEST(ShellLooks, TheChosenSchemeIsKeptFromOneRunToTheNext) {
  const TempFolder folder;
  const std::filesystem::path file = folder / "TRV5.ini";
  const bool desktop = Theme::current().dark();
  {
    WindowWorld world;
    world.shell.useSettings(file);
    ContainerScreen& window = world.proceed();
    const auto* const choose = window.findChild<QToolButton*>(QStringLiteral("aspetto"));
    ASSERT_NE(choose, nullptr);
    ASSERT_EQ(choose->menu()->actions().size(), 3);
    choose->menu()->actions()[2]->trigger();
    EXPECT_TRUE(Theme::current().dark());
    EXPECT_EQ(choose->text(), QStringLiteral("Aspetto: scuro"));
  }
  Theme::edit().setScheme(Theme::Scheme::System);
  EXPECT_EQ(Theme::current().dark(), desktop);
  EXPECT_EQ(QSettings(qs(file.string()), QSettings::IniFormat).value(QStringLiteral("aspetto")).toString(),
            QStringLiteral("scuro"));
  WindowWorld world;
  world.shell.useSettings(file);
  EXPECT_TRUE(Theme::current().dark());
  Theme::edit().setScheme(Theme::Scheme::System);
}

}  // namespace
}  // namespace trv5
