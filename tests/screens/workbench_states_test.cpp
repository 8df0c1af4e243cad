#include <gtest/gtest.h>

#include <QScrollBar>
#include <QWindow>

#include "screens/kit/state_mark.h"
#include "screens/workbench/last_draw_label.h"
#include "workbench_shell.h"

namespace trv5 {
namespace {

const char* const kMarksInSight[] = {"LblStato_FgEv", "LblStato_FgSSS", "LblStato_FgZ1", "LblStato_Fg_Stat"};

void verifyAMethod(WorkbenchShell& world) {
  Workbench& w = world.form();
  for (const char* const step : {"Command44", "Command20"}) w.button(step).press();
  w.Cmd_LaSorte[1].press();
  w.button("Command29").press();
  for (int i = 0; i < 3; ++i) settle();
}

TEST(WorkbenchStates, StandInSightAtEverySizeAndMoveNothing) {
  for (const QSize window : {QSize(1280, 680), QSize(1366, 768), QSize(1920, 1080)}) {
    SCOPED_TRACE(window.width());
    WorkbenchShell world(window);
    verifyAMethod(world);
    std::vector<QRect> before;
    for (const char* const grid : {"FgEv", "FgSSS", "FgZ1", "Fg_Stat", "Fg_Graf"})
      before.push_back(world.find(grid).geometry());
    world.form().ComboColpi.pick(19);
    world.form().ComboNC.pick(2);
    for (int i = 0; i < 3; ++i) settle();
    for (const char* const name : kMarksInSight) {
      const auto* const mark = qobject_cast<StateMark*>(&world.find(name));
      ASSERT_NE(mark, nullptr);
      EXPECT_EQ(mark->text(), QStringLiteral("non aggiornato")) << name;
      EXPECT_FALSE(mark->toolTip().isEmpty());
      EXPECT_TRUE(world.wholeInSight(name)) << name;
    }
    std::size_t i = 0;
    for (const char* const grid : {"FgEv", "FgSSS", "FgZ1", "Fg_Stat", "Fg_Graf"})
      EXPECT_EQ(world.find(grid).geometry(), before[i++]) << grid;
  }
}

TEST(WorkbenchStates, TheChipGoesBackToTheLastDrawAndFitsTheBar) {
  for (const QSize window : {QSize(1280, 680), QSize(1366, 768), QSize(1920, 1080)}) {
    SCOPED_TRACE(window.width());
    WorkbenchShell world(window);
    auto& label = dynamic_cast<LastDrawLabel&>(world.find("LblUltima"));
    EXPECT_FALSE(label.isChip());
    world.form().hs1.set(world.form().hs1.maximum() - 17);
    for (int i = 0; i < 3; ++i) settle();
    EXPECT_TRUE(label.isChip());
    for (const char* const name : {"LblUltima", "hs1", "FgRG", "Command87", "Command70"})
      EXPECT_TRUE(world.wholeInSight(name)) << name;
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(world.form().hs1.value(), world.form().hs1.maximum());
  }
}

TEST(WorkbenchStates, TheDesktopsTitleNamesTheMethod) {
  WorkbenchShell world;
  const auto title = [&world] { return world.main().windowHandle()->title(); };
  const QString before = title();
  auto& name = world.form().Txt_Denominazione;
  name.set(" Firenze d'estate ");
  EXPECT_EQ(title(), before + QStringLiteral(" · Firenze d'estate"));
  name.set("");
  EXPECT_EQ(title(), before);
  verifyAMethod(world);
  EXPECT_TRUE(title().startsWith(before + QStringLiteral(" · Mensile "))) << title().toStdString();
}

}  // namespace
}  // namespace trv5
