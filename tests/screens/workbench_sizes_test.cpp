#include <gtest/gtest.h>

#include <QHeaderView>
#include <QSplitter>

#include "screens/kit/grid_view.h"
#include "screens/kit/lazy_page.h"
#include "workbench_shell.h"

namespace trv5 {
namespace {

// The sizes of all splitters, for one picture to be laid beside another.
struct Shares {
  std::string splitter;
  QList<int> sizes;
};
std::vector<Shares> splitterSizes(const Sommativi1Screen& bench) {
  std::vector<Shares> all;
  for (const auto* const splitter : bench.findChildren<QSplitter*>())
    if (splitter->isVisible()) all.push_back({splitter->objectName().toStdString(), splitter->sizes()});
  return all;
}

// As before, but for the pixels that rounding shares out.
void expectSame(const std::vector<Shares>& now, const std::vector<Shares>& before, const std::string& when) {
  ASSERT_EQ(now.size(), before.size()) << when;
  for (std::size_t i = 0; i < now.size(); ++i)
    for (int part = 0; part < now[i].sizes.size(); ++part)
      EXPECT_NEAR(now[i].sizes[part], before[i].sizes[part], 2) << now[i].splitter << ' ' << when;
}

int rowsInSight(const GridView& view) {
  // The last one may lack the line below its text.
  return (view.viewport()->height() + 2) / view.verticalHeader()->defaultSectionSize();
}

TEST(WorkbenchSizesInTheShell, AWindowThatIsNotMaximisedIsLaidOutForItsWidth) {
  WorkbenchShell world({1750, 1000});
  EXPECT_TRUE(world.find("Command44").isVisible());
  EXPECT_TRUE(world.find("FgEv").isVisible());
}

TEST(WorkbenchSizesInTheShell, TheWholePadAndBothBoxesAreInSightInALowWindow) {
  for (const QSize window : {QSize(1366, 728), QSize(1280, 720)}) {
    WorkbenchShell world(window);
    for (const char* const name : {"FgNu", "ChDDS", "Ch_ISO", "Command44"})
      EXPECT_TRUE(world.wholeInSight(name)) << name << " at " << window.width() << " x " << window.height();
  }
}

TEST(WorkbenchSizesInTheShell, TheCasesHaveTheirWidthOnAWideScreen) {
  WorkbenchShell world({1920, 1080});
  const QWidget* page = &world.find("FgEv");
  while (qobject_cast<const QSplitter*>(page->parentWidget()) == nullptr) page = page->parentWidget();
  EXPECT_NEAR(page->width(), 570, 12);
}

// Comfortable rows leave room for fewer than compact ones, and the sentence on luck takes two of them.
TEST(WorkbenchSizesInTheShell, EightCandidatesAreInSightAtSixteenHundredSixOfThemInComfort) {
  for (const auto& [window, rows] : {std::pair(QSize(1600, 900), 6), std::pair(QSize(1600, 860), 8)}) {
    WorkbenchShell world(window);
    makePages(world.bench());  // what stands behind the other tabs takes no room from them
    world.resize({1280, 720});
    world.resize(window);
    EXPECT_GE(rowsInSight(*qobject_cast<GridView*>(&world.find("FgF"))), rows) << window.height();
  }
}

TEST(WorkbenchSizesInTheShell, TheWayToASizeDoesNotMatter) {
  for (const QSize window : {QSize(1280, 720), QSize(1366, 768), QSize(1600, 900), QSize(1920, 1080)}) {
    WorkbenchShell direct(window);
    const auto wanted = splitterSizes(direct.bench());
    for (const QSize other : {QSize(1920, 1080), QSize(1280, 720), QSize(1600, 900)}) {
      direct.resize(other);
      direct.resize(window);
      expectSame(splitterSizes(direct.bench()), wanted,
                 std::to_string(window.width()) + " after " + std::to_string(other.width()));
    }
  }
}

TEST(WorkbenchSizesInTheShell, ALargerFontAndBackRestoresTheLayout) {
  for (const QSize window : {QSize(1366, 768), QSize(1600, 900), QSize(1920, 1080)}) {
    WorkbenchShell world(window);
    const auto before = splitterSizes(world.bench());
    for (const double step : {0.5, -0.5, 3.0, -3.0}) {
      Theme::edit().stepBase(step);
      for (int i = 0; i < 3; ++i) settle();
    }
    expectSame(splitterSizes(world.bench()), before, std::to_string(window.width()));
  }
}

}  // namespace
}  // namespace trv5
