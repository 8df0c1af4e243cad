// The workbench inside the program: pages made when they are needed, the names that are heard, the keys that are told.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QToolTip>

#include "engine/colouring.h"
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

// A recount colours the rows that a table held before, and adding a row colours nothing: the view draws both alike.
TEST(WorkbenchFormulas, AreDrawnInOneColouringWhateverColouredThem) {
  WorkbenchScreen world;
  Workbench& w = world.world.w;
  for (const TableTraits& table : kTables) {
    w.SSTab3.set(table.code == 6 ? 4 : table.code - 1);
    GridControl& formulas = w.formulas(table.table);
    for (int row = 0; row < 2; ++row) WorkbenchWorld::addFormula(formulas, {.elements = {{1, 2}, {1, 2}}, .fix = 44});
    for (int row = 1; row <= 2; ++row)
      for (const int column : {0, 12, 13}) formulas.setText(row, column, "8");
    // The first row as the recount leaves it.
    Grid coloured = formulas;
    if (table.table == Table::Lunghetta) {
      Colora_fg00(w);
      coloured = formulas;
      for (int column = 0; column < formulas.columns(); ++column)
        formulas.setCell(2, column, {.text = formulas.text(1, column)});
    } else {
      coloraFormule(coloured);
      for (int column = 0; column < formulas.columns(); ++column) formulas.setCell(1, column, coloured.at(1, column));
    }
    ASSERT_EQ(formulas.back(1, 1), GialloChiaro);
    const Grid before = formulas;
    auto& view = world.find<GridView>(formulas.name());
    for (int column = 0; column < formulas.columns(); ++column) {
      EXPECT_EQ(view.drawnCell(2, column), view.drawnCell(1, column)) << formulas.name() << ", " << column;
      if (view.isColumnHidden(column)) continue;
      EXPECT_EQ(pictureOfCell(view, 2, column), pictureOfCell(view, 1, column)) << formulas.name() << ", " << column;
    }
    EXPECT_EQ(formulas.grid(), before) << "drawing leaves the data alone";
    formulas.setBack(2, 13, VerdeMedio);
    EXPECT_EQ(view.drawnCell(2, 13).back, VerdeMedio) << "a colour of its own stays";
  }
}

TEST(WorkbenchPrint, AFormulaTableIsPrintedAsItIsDrawn) {
  WorkbenchScreen world;
  GridControl& formulas = world.world.w.Fg11;
  WorkbenchWorld::addFormula(formulas, {.elements = {{1, 2}}, .fix = 44});
  world.find<GridView>("Fg11").printTable();
  ASSERT_EQ(world.world.shell.prints.size(), 1U);
  EXPECT_EQ(world.world.shell.prints[0].grid.back(1, 1), GialloChiaro);
  EXPECT_EQ(world.world.shell.prints[0].grid.at(1, 11), (Cell{.text = "44", .fore = Rosso, .bold = true}));
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
