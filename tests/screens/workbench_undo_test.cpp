#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "cases/workbench_history.h"
#include "support/workbench_snapshot.h"
#include "workbench_shell.h"

namespace trv5 {
namespace {

void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
  widget.setFocus();
  settle();
  QTest::keyClick(&widget, key, modifiers);
  settle();
}

constexpr Qt::KeyboardModifiers kControlShift = Qt::ControlModifier | Qt::ShiftModifier;

void playSome(WorkbenchShell& world) {
  Workbench& w = world.form();
  for (int column = 0; column < 9; ++column) w.FgNu.clickCell(0, column);
  w.button("Command6").press();
  for (const auto& [position, label] : w.LblPN) label->click();
  w.button("Command44").press();
  w.button("Command20").press();
  settle();
}

TEST(WorkbenchUndo, TheKeysGoBackAndForthFromAnyControl) {
  WorkbenchShell world;
  Workbench& w = world.form();
  playSome(world);
  const WorkbenchSnapshot full(w);
  w.button("Command41").press();
  settle();
  const WorkbenchSnapshot empty(w);
  for (const char* const name : {"FgNu", "ComboR1", "hs1", "TxtNumeri", "Command44"}) {
    press(world.find(name), Qt::Key_Z);
    EXPECT_EQ(difference(full, w), "") << name;
    press(world.find(name), Qt::Key_Z, kControlShift);
    EXPECT_EQ(difference(empty, w), "") << name;
    EXPECT_TRUE(world.find(name).hasFocus()) << name;
  }
}

TEST(WorkbenchUndo, ABoxTakesBackItsTypingOnlyWhileTheUserTypes) {
  WorkbenchShell world;
  Workbench& w = world.form();
  QWidget& box = world.find("TxtNumeri");
  w.FgNu.clickCell(0, 0);
  press(box, Qt::Key_1, Qt::NoModifier);
  press(box, Qt::Key_2, Qt::NoModifier);
  ASSERT_EQ(w.TxtNumeri.text(), "12");
  press(box, Qt::Key_Z);
  EXPECT_EQ(w.TxtNumeri.text(), "");
  EXPECT_EQ(w.FgNu.back(0, 0), Ciano);
  press(box, Qt::Key_Z, kControlShift);
  EXPECT_EQ(w.TxtNumeri.text(), "12");
  // Another operation has come since: it is the one taken back, the text stays.
  w.FgNu.clickCell(0, 1);
  press(box, Qt::Key_Z);
  EXPECT_EQ(w.TxtNumeri.text(), "12");
  EXPECT_EQ(w.FgNu.back(0, 1), kWhite);
  press(box, Qt::Key_Z);
  EXPECT_EQ(w.TxtNumeri.text(), "");
  press(box, Qt::Key_Z);
  EXPECT_EQ(w.FgNu.back(0, 0), kWhite);
}

TEST(WorkbenchUndo, TheListsThatAreWrittenInDoTheSame) {
  WorkbenchShell world;
  Workbench& w = world.form();
  const std::string before = w.ComboColpi.text();
  w.button("Command44").press();
  QWidget& list = world.find("ComboColpi");
  press(list, Qt::Key_7, Qt::NoModifier);
  ASSERT_EQ(w.ComboColpi.text(), "7");
  w.FgNu.clickCell(0, 1);
  press(list, Qt::Key_Z);
  EXPECT_EQ(w.FgNu.back(0, 1), kWhite);
  EXPECT_EQ(w.ComboColpi.text(), "7");
  press(list, Qt::Key_Z);
  EXPECT_EQ(w.ComboColpi.text(), before);
}

TEST(WorkbenchUndo, TheStatusBarOffersItAfterAReset) {
  WorkbenchShell world;
  Workbench& w = world.form();
  playSome(world);
  const WorkbenchSnapshot full(w);
  QAbstractButton& offer = world.button("Container", "Cmd_Annulla");
  w.button("Command41").press();
  settle();
  EXPECT_TRUE(offer.isVisible());
  EXPECT_EQ(offer.text(), QStringLiteral("Annulla"));
  offer.click();
  settle();
  EXPECT_EQ(difference(full, w), "");
  EXPECT_FALSE(offer.isVisible());
  w.button("Command41").press();
  EXPECT_TRUE(offer.isVisible());
  w.hs1.set(w.hs1.value() - 1);
  EXPECT_FALSE(offer.isVisible());
}

TEST(WorkbenchUndo, TheOfferMakesTheStatusBarNoTaller) {
  WorkbenchShell world;
  playSome(world);
  const int before = world.bench().height();
  world.form().button("Command41").press();
  settle();
  EXPECT_TRUE(world.button("Container", "Cmd_Annulla").isVisible());
  EXPECT_EQ(world.bench().height(), before);
}

TEST(WorkbenchUndo, AnOfferOfAClosedWorkbenchDoesNothing) {
  WorkbenchShell world;
  playSome(world);
  world.form().button("Command41").press();
  QAbstractButton& offer = world.button("Container", "Cmd_Annulla");
  world.shell.close("Sommativi1");
  world.shell.purge();
  offer.click();
  EXPECT_FALSE(offer.isVisible());
}

TEST(WorkbenchUndo, OtherWindowsStayAsTheyAre) {
  WorkbenchShell world;
  Workbench& w = world.form();
  playSome(world);
  ASSERT_TRUE(w.FgEv.hasData());
  w.FgEv.clickCell(1, 1);
  w.button("Command12").press();
  w.button("Command103").press();
  settle();
  const std::vector<std::string> open = world.shell.openScreens();
  ASSERT_GE(open.size(), 4U);
  std::vector<FormState> shown;
  for (const std::string& name : open)
    if (name != "Sommativi1" && name != "Container") shown.push_back(world.shell.form(name)->state());
  w.button("Command41").press();
  while (w.history.canUndo()) w.button("Cmd_Annulla").press();
  settle();
  // The workbench comes to the front, as the keys that undo are pressed there.
  EXPECT_THAT(world.shell.openScreens(), testing::UnorderedElementsAreArray(open));
  std::size_t at = 0;
  for (const std::string& name : open)
    if (name != "Sommativi1" && name != "Container") {
      EXPECT_EQ(world.shell.form(name)->state(), shown[at++]) << name;
    }
}

TEST(WorkbenchUndo, TheTwoCommandsTellTheirKeysWhereTheBarIsWide) {
  WorkbenchShell world({1920, 1080});
  EXPECT_EQ(world.find("Cmd_Annulla").accessibleDescription(), QStringLiteral("Ctrl+Z"));
  EXPECT_FALSE(world.find("Cmd_Annulla").isEnabled());
  world.form().FgNu.clickCell(0, 0);
  EXPECT_TRUE(world.find("Cmd_Annulla").isEnabled());
  EXPECT_TRUE(world.wholeInSight("Cmd_Annulla"));
  EXPECT_TRUE(world.wholeInSight("Cmd_Ripeti"));
}

}  // namespace
}  // namespace trv5
