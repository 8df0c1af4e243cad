#include "screens/workbench/luck_line.h"

#include <gtest/gtest.h>

#include <QComboBox>

#include "workbench_screen.h"

namespace trv5 {
namespace {

QRect placeOf(const WorkbenchScreen& world, const char* name) {
  const QWidget& widget = world.find(name);
  return {widget.mapTo(world.screen.get(), QPoint(0, 0)), widget.size()};
}

void verify(WorkbenchScreen& world) {
  world.chooseSituation();
  world.world.press("Command44");
  WorkbenchWorld::addFormula(world.world.w.Fg11, {.elements = {{1, 2}}, .fix = 9});
  world.world.press("Command29");
  settle();
}

TEST(LuckLine, InACompactWindowTellsTheFigureWholeAndTheBalanceInWhatIsLeft) {
  WorkbenchScreen world({1366, 768});
  verify(world);
  const auto& expected = world.find<FigureNote>("LblAttesi");
  EXPECT_FALSE(expected.text().isEmpty());
  EXPECT_GE(expected.width(), expected.wholeWidth());
  const QRect figure = placeOf(world, "LblAttesi"), balance = placeOf(world, "LblBilancio");
  EXPECT_EQ(figure.top(), balance.top());
  EXPECT_GT(balance.left(), figure.right());
  EXPECT_FALSE(world.find("LblBilancio").toolTip().isEmpty());
}

TEST(LuckLine, WithRoomTellsBothOnALineOfTheirOwn) {
  WorkbenchScreen world({1920, 1080});
  verify(world);
  const QRect figure = placeOf(world, "LblAttesi"), balance = placeOf(world, "LblBilancio");
  EXPECT_EQ(figure.left(), balance.left());
  EXPECT_GE(balance.top(), figure.bottom());
}

// The mark of statistics that no longer fit stands where luck speaks otherwise: its tooltip has to be reached.
TEST(LuckLine, LetsThePointerThroughWhileItIsEmpty) {
  WorkbenchScreen world({1366, 768});
  verify(world);
  const QWidget& line = *world.find("LblAttesi").parentWidget();
  EXPECT_FALSE(line.testAttribute(Qt::WA_TransparentForMouseEvents));
  world.world.w.ComboColpi.pick(17);
  settle();
  EXPECT_EQ(world.world.w.LblAttesi.text(), "");
  EXPECT_TRUE(line.testAttribute(Qt::WA_TransparentForMouseEvents));
  EXPECT_FALSE(world.find("LblStato_Fg_Stat").toolTip().isEmpty());
}

TEST(WholeSearchButton, StandsInTheLineOfTheSearchesWhereThatHasRoomAndKeepsItsList) {
  for (const int width : {1280, 1366, 1920}) {
    const WorkbenchScreen world({width, width == 1920 ? 1080 : 768});
    const QRect button = placeOf(world, "Cmd_Totale"), list = placeOf(world, "ComboOrdine");
    EXPECT_EQ(button.right() + 1, list.left()) << width;
    if (width == 1366) {
      EXPECT_EQ(button.top(), placeOf(world, "Command20").top());
    }
  }
}

}  // namespace
}  // namespace trv5
