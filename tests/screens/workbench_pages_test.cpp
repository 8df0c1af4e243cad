// The workbench inside the program: pages made when they are needed, the names that are heard, the keys that are told.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QToolTip>

#include "screens/kit/grid_view.h"
#include "screens/kit/lazy_page.h"
#include "workbench_screen.h"
#include "workbench_shell.h"

namespace trv5 {
namespace {

TEST(LazyPage, MakesItsContentsOnceWhenItIsShownOrAsked) {
  int made = 0;
  LazyPage page([&made] {
    ++made;
    return new QWidget;
  });
  EXPECT_FALSE(page.isMade());
  page.make();
  shown(page, 100, 100);
  EXPECT_EQ(made, 1);
  EXPECT_TRUE(page.isMade());
}

TEST(WorkbenchPages, OnlyTheTabInFrontIsMadeBeforeTheFirstPicture) {
  std::mt19937 rng(11);
  WorkbenchWorld world(randomArchive(rng, 60));
  const Sommativi1Screen screen(world.w);
  EXPECT_NE(screen.findChild<QWidget*>(QStringLiteral("Fg11")), nullptr);
  EXPECT_EQ(screen.findChild<QWidget*>(QStringLiteral("FgRit")), nullptr);
}

TEST(WorkbenchPages, AreMadeWhenTheProgramIsIdle) {
  WorkbenchShell world;
  for (int i = 0; i < 12; ++i) settle();
  EXPECT_NE(world.bench().findChild<QWidget*>(QStringLiteral("FgPir1")), nullptr);
}

TEST(WorkbenchPages, AreMadeForWhoeverAsksForAControlByName) {
  std::mt19937 rng(3);
  ProgramWorld files;
  files.makeBoth(randomRows(rng, 60));
  QuietShell shell{allScreens()};
  Program program{shell, files.folder.path()};
  shell.attach(program);
  shell.show("INIZIO");
  settle();
  qobject_cast<QAbstractButton*>(shell.widget("INIZIO", "Command2"))->click();
  shell.show("Sommativi1");  // and no event of the loop after it
  EXPECT_NE(shell.widget("Sommativi1", "FgPir1"), nullptr);
  shell.closeAll();
  shell.purge();
}

TEST(WorkbenchPages, ShowWhatTheirControlsHoldAlready) {
  WorkbenchShell world;
  world.form().ChA.set(true);
  EXPECT_TRUE(qobject_cast<QAbstractButton*>(&world.find("ChA"))->isChecked());
}

TEST(WorkbenchNames, EveryGridAndInputHasOneThatIsNotItsControls) {
  WorkbenchScreen world;
  for (const Control* const control : world.world.w.controls()) {
    const auto* const widget = world.screen->findChild<QWidget*>(qs(control->name()));
    if (widget == nullptr) continue;
    const bool input =
        qobject_cast<const GridView*>(widget) != nullptr || qobject_cast<const QComboBox*>(widget) != nullptr ||
        qobject_cast<const QLineEdit*>(widget) != nullptr || qobject_cast<const QScrollBar*>(widget) != nullptr ||
        qobject_cast<const QAbstractButton*>(widget) != nullptr;
    if (!input) continue;
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << control->name();
    EXPECT_NE(widget->accessibleName(), widget->objectName());
  }
  EXPECT_EQ(world.find("FgEv").accessibleName(), QStringLiteral("Elenco dei casi"));
}

TEST(WorkbenchNames, TooltipsTellTheKeysOfTheirButtons) {
  WorkbenchScreen world;
  for (const auto& [name, key] : {std::pair("Command44", "(F5)"), std::pair("Command86", "(F9)"),
                                  std::pair("Cmd_LaSorte_1", "(F7)"), std::pair("Command42_1", "(F3)")}) {
    QWidget& widget = world.find(name);
    QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), widget.mapToGlobal(QPoint(2, 2)));
    QCoreApplication::sendEvent(&widget, &event);
    EXPECT_TRUE(QToolTip::text().endsWith(QLatin1String(key))) << name << QToolTip::text().toStdString();
    QToolTip::hideText();
  }
}

TEST(WorkbenchPrint, APrintTellsItsTableAndItsMethod) {
  WorkbenchScreen world;
  world.chooseSituation();
  world.world.press("Command44");
  const std::vector<std::string> header = world.screen->printHeader(world.world.w.FgEv);
  ASSERT_GE(header.size(), 4u);
  EXPECT_EQ(header[0], "Elenco dei casi");
  EXPECT_EQ(header[1].substr(0, 18), "Situazione: Numeri");
}

TEST(WorkbenchPrint, ATableOnTheClipboardIsTextAndTable) {
  WorkbenchShell world;
  world.shell.setClipboard("a\tb\r\n1\t<2>");
  const QMimeData& copied = *QApplication::clipboard()->mimeData();
  EXPECT_EQ(copied.text().toStdString(), "a\tb\r\n1\t<2>");
  EXPECT_TRUE(copied.html().contains(QStringLiteral("<tr><td>1</td><td>&lt;2&gt;</td></tr>")))
      << copied.html().toStdString();
}

}  // namespace
}  // namespace trv5
