#include <gtest/gtest.h>

#include "form_world.h"
#include "screens/ProvaAvanti.h"
#include "screens/kit/paper_chart.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

// The screen beside a workbench that has searched.
struct ForwardScreen {
  ForwardScreen()
      : world([] {
          std::mt19937 rng(9);
          return randomArchive(rng, 400);
        }()) {
    world.shell.addScreen("ProvaAvanti", [this] { return std::make_unique<ProvaAvanti>(world.archive, world.shell); });
    form = &dynamic_cast<ProvaAvanti&>(world.shell.show("ProvaAvanti"));
    screen = std::make_unique<ProvaAvantiScreen>(*form);
    form->load();
    Workbench& w = world.w;
    w.ComboFiltro.pick(1);
    w.TxtNumeri.set("03-14-25-36-47-58-69-80");
    world.positions({1, 2, 3, 4, 5});
    world.playOn({0, 1});
    world.press("Command44");
    world.press("Command20");
    world.press("Cmd_Avanti");
    shown(*screen, 900, 600);
  }
  PaperChart& chart() const { return *screen->findChild<PaperChart*>(); }

  WorkbenchWorld world;
  ProvaAvanti* form = nullptr;
  std::unique_ptr<ProvaAvantiScreen> screen;
};

TEST(ProvaAvantiScreen, ShowsACurvePointForEachTest) {
  ForwardScreen world;
  EXPECT_TRUE(world.chart().curve().points.empty());
  world.form->ComboImpara.pick(0);
  world.form->Cmd_Prova.press();
  const std::vector<ForwardTest>& tests = world.form->figures().tests;
  ASSERT_GT(tests.size(), 10U);
  ASSERT_EQ(world.chart().curve().points.size(), tests.size());
  for (std::size_t i = 0; i < tests.size(); ++i) {
    EXPECT_EQ(world.chart().curve().points[i].value, tests[i].ahead);
    EXPECT_EQ(world.chart().curve().points[i].low, tests[i].low);
    EXPECT_EQ(world.chart().curve().points[i].high, tests[i].high);
  }
  ASSERT_FALSE(world.chart().curve().ticks.empty());
  world.world.press("Command23");
  world.world.press("Cmd_Avanti");
  EXPECT_TRUE(world.chart().curve().points.empty());
}

TEST(ProvaAvantiScreen, ShowsEveryControlOfItsForm) {
  ForwardScreen world;
  for (const Control* control : world.form->controls())
    EXPECT_EQ(world.screen->findChildren<QWidget*>(QString::fromStdString(control->name())).size(), 1)
        << control->name();
}

TEST(ProvaAvantiScreen, KeepsItsPartsWhereTheyAreWhenTheFiguresCome) {
  ForwardScreen world;
  const QRect before = world.chart().geometry();
  world.form->ComboImpara.pick(0);
  world.form->Cmd_Prova.press();
  settle();
  EXPECT_EQ(world.chart().geometry(), before);
}

}  // namespace
}  // namespace trv5
