// The tabs of the follow-up: what stands where.
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolTip>

#include "screens/kit/grid_view.h"
#include "screens/kit/scroll_column.h"
#include "workbench_screen.h"

namespace trv5 {
namespace {

QRect inScreen(const WorkbenchScreen& world, const char* name) {
  const QWidget& widget = world.find(name);
  return {widget.mapTo(world.screen.get(), QPoint(0, 0)), widget.size()};
}

TEST(GroupingSheets, BeginAndEndOnOneLineWhereTheyStandSideBySide) {
  WorkbenchScreen world({1920, 1080});
  world.world.w.SSTab3.set(7);
  settle();
  const QRect list = inScreen(world, "FgRagg"), counts = inScreen(world, "FgConv");
  EXPECT_EQ(list.top(), counts.top());
  EXPECT_EQ(list.bottom(), counts.bottom());
  for (const char* const name : {"Command109", "Command110", "Command114", "Command116"}) {
    const QRect button = inScreen(world, name);
    EXPECT_TRUE(world.find(name).isVisible()) << name;
    EXPECT_LT(button.bottom(), list.top()) << name;
    EXPECT_LE(std::abs(button.center().y() - inScreen(world, "Command109").center().y()), 1) << name;
  }
  EXPECT_LE(inScreen(world, "Command116").right(), counts.right());
  EXPECT_LE(inScreen(world, "Command110").right(), list.right());
}

TEST(GroupingSheets, HaveTheirButtonsInTheLineOfTheirTabWhereThereIsLittleRoom) {
  for (const QSize size : {QSize(1366, 768), QSize(1280, 720)}) {
    WorkbenchScreen world(size);
    world.world.w.SSTab3.set(7);
    for (int sheet = 0; sheet < 2; ++sheet) {
      world.world.w.SSTab4.set(sheet);
      settle();
      const char* const own = sheet == 0 ? "Command109" : "Command114";
      const char* const other = sheet == 0 ? "Command114" : "Command109";
      const QRect button = inScreen(world, own), grid = inScreen(world, sheet == 0 ? "FgRagg" : "FgConv");
      EXPECT_TRUE(world.find(own).isVisible());
      EXPECT_FALSE(world.find(other).isVisible());
      EXPECT_LT(button.bottom(), grid.top());
      const auto& tabs = *world.find<QTabWidget>("SSTab4").tabBar();
      const QRect line(tabs.mapTo(world.screen.get(), QPoint(0, 0)), tabs.size());
      EXPECT_LE(std::abs(button.center().y() - line.center().y()), 4);
      EXPECT_LE(grid.right() - inScreen(world, sheet == 0 ? "Command110" : "Command116").right(), 4);
    }
  }
}

// Two methods with the same ambata on BA.
void gatherTwo(Workbench& w) {
  for (const char* const name : {"Alfa", "Beta"}) {
    const int row = w.FgRagg.appendRow();
    w.FgRagg.setText(row, 2, name);
    w.FgRagg.setText(row, 5, "1");
    w.FgRagg.setText(row, 7, "03");
    w.FgRagg.setText(row, 17, "X");
  }
}

TEST(Convergences, NameTheMethodsBehindACountInTheirTooltip) {
  WorkbenchScreen world;
  world.world.w.SSTab3.set(7);
  world.world.w.SSTab4.set(1);
  gatherTwo(world.world.w);
  world.world.press("Command114");
  settle();
  auto& counts = world.find<GridView>("FgConv");
  const auto tipOver = [&counts](int row, int column) {
    const QPoint at = counts.visualRect(counts.model()->index(row - 1, column)).center();
    QHelpEvent event(QEvent::ToolTip, at, counts.viewport()->mapToGlobal(at));
    QCoreApplication::sendEvent(counts.viewport(), &event);
    return QToolTip::text().toStdString();
  };
  EXPECT_EQ(tipOver(3, 2), "");
  EXPECT_EQ(tipOver(3, 1), "Alfa\nBeta");
}

TEST(Convergences, HaveWheelColumnsOfOneWidth) {
  for (const QSize size : {QSize(1280, 720), QSize(1366, 768), QSize(1920, 1080)}) {
    WorkbenchScreen world(size);
    for (const auto& [tab, name] : {std::pair(7, "FgConv"), std::pair(8, "FgRit")}) {
      world.world.w.SSTab3.set(tab);
      world.world.w.SSTab4.set(1);
      settle();
      const auto& grid = world.find<GridView>(name);
      for (int column = 1; column <= kWheels; ++column)
        EXPECT_LE(std::abs(grid.columnWidth(column) - grid.columnWidth(1)), 1) << name << ", " << column;
    }
  }
}

TEST(InformationTab, ShowsAllItsButtonsWithoutScrollingOnASmallScreen) {
  WorkbenchScreen world({1366, 768});
  world.world.w.SSTab3.set(8);
  settle();
  const QWidget* area = &world.find("Command9");
  while (qobject_cast<const ScrollColumn*>(area) == nullptr) area = area->parentWidget();
  EXPECT_FALSE(qobject_cast<const ScrollColumn*>(area)->verticalScrollBar()->isVisible());
  for (const char* const name : {"Command9", "Command88", "Command76", "Command113", "Command104", "Command89"}) {
    const QWidget& button = world.find(name);
    EXPECT_EQ(button.visibleRegion().boundingRect().size(), button.size()) << name;
  }
}

}  // namespace
}  // namespace trv5
