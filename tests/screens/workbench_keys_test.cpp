#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <map>

#include "screens/kit/grid_view.h"
#include "window_world.h"
#include "workbench_screen.h"

namespace trv5 {
namespace {

void press(const WorkbenchScreen& world, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QWidget* const focus = QApplication::focusWidget();
  QTest::keyClick(focus != nullptr ? focus : world.screen.get(), key, modifiers);
  settle();
}

TEST(WorkbenchKeys, AMethodNeedsNoMouse) {
  WorkbenchScreen world;
  Workbench& w = world.world.w;
  world.chooseSituation();
  press(world, Qt::Key_F5);
  ASSERT_GT(w.FgEv.dataRows(), 0);
  EXPECT_TRUE(world.find("FgEv").isVisible());
  press(world, Qt::Key_F6);
  EXPECT_TRUE(world.find("Command20").hasFocus());
  press(world, Qt::Key_Return);
  ASSERT_GT(w.FgF.dataRows(), 0);
  EXPECT_EQ(w.FgF.current(), 1);
  EXPECT_TRUE(world.find("FgF").hasFocus());
  press(world, Qt::Key_F7);
  ASSERT_EQ(w.Fg11.dataRows(), 1);
  EXPECT_EQ(w.Fg11.text(1, 11), w.FgF.text(1, 11));
  press(world, Qt::Key_F8);
  EXPECT_GT(w.FgZ1.dataRows(), 0);
  w.ChA.set(true);
  press(world, Qt::Key_F9);
  EXPECT_GT(w.FgZZ.dataRows(), 0);
}

TEST(WorkbenchKeys, ArrowsWalkTheSearchesOfTheTabInFront) {
  WorkbenchScreen world;
  Workbench& w = world.world.w;
  press(world, Qt::Key_F6);
  press(world, Qt::Key_Right);
  EXPECT_TRUE(world.find("Command11").hasFocus());
  press(world, Qt::Key_Left);
  press(world, Qt::Key_Left);
  EXPECT_TRUE(world.find("Command20").hasFocus());
  for (int i = 0; i < 4; ++i) press(world, Qt::Key_Right);
  EXPECT_TRUE(world.find("Command23").hasFocus());
  const std::map<int, const char*> first = {{1, "Command28"}, {2, "Command46"}, {4, "Command56"}, {0, "Command20"}};
  for (const auto& [tab, name] : first) {
    w.SSTab3.set(tab);
    settle();
    press(world, Qt::Key_F6);
    EXPECT_TRUE(world.find(name).hasFocus()) << name;
  }
  // The summary has no searches of its own: those of the tab before stay.
  w.SSTab3.set(4);
  w.SSTab3.set(3);
  press(world, Qt::Key_F6);
  EXPECT_TRUE(world.find("Command56").hasFocus());
}

TEST(WorkbenchSearches, BringTheFirstCandidateInSightByMouseToo) {
  WorkbenchScreen world;
  world.chooseSituation();
  world.world.w.ChFix1R.set(true);
  world.world.press("Command44");
  auto& candidates = world.find<GridView>("FgF");
  world.find<QAbstractButton>("Command23").click();
  settle();
  candidates.clickCell(50, 1);
  candidates.scrollToBottom();
  world.find<QAbstractButton>("Command10").click();
  settle();
  EXPECT_EQ(world.world.w.FgF.current(), 1);
  EXPECT_EQ(candidates.currentIndex().row(), 0);
  EXPECT_EQ(candidates.verticalScrollBar()->value(), 0);
}

TEST(WorkbenchKeys, F2ChangesThePage) {
  WorkbenchScreen world;
  press(world, Qt::Key_F2);
  EXPECT_TRUE(world.find("FgEv").isVisible());
  press(world, Qt::Key_F2);
  EXPECT_TRUE(world.find("Command44").isVisible());
}

TEST(WorkbenchKeys, ControlAndADigitBringATabToTheFront) {
  WorkbenchScreen world;
  Workbench& w = world.world.w;
  for (int tab = 0; tab < 10; ++tab) w.SSTab3.setTabEnabled(tab, tab != 7);
  for (int tab = 9; tab >= 0; --tab) {
    w.SSTab3.set(tab == 0 ? 1 : 0);
    press(world, static_cast<Qt::Key>(Qt::Key_0 + (tab + 1) % 10), Qt::ControlModifier);
    EXPECT_EQ(w.SSTab3.index(), tab == 7 ? 0 : tab);
  }
}

TEST(WorkbenchKeys, AltAndTheArrowsMoveTheReferenceDraw) {
  WorkbenchScreen world;
  Workbench& w = world.world.w;
  const int last = w.archive.UltimaEstrazione();
  press(world, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(w.EstrazioneRiferimento, last - 1);
  press(world, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(w.EstrazioneRiferimento, last);
  press(world, Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(w.EstrazioneRiferimento, 1);
  EXPECT_EQ(world.find<QScrollBar>("hs1").value(), 1);
}

TEST(WorkbenchKeys, EveryKeyOfAButtonPressesIt) {
  WorkbenchScreen world;
  Workbench& w = world.world.w;
  const std::map<QString, std::pair<Qt::Key, Qt::KeyboardModifiers>> keys = {
      {QStringLiteral("Command42_1"), {Qt::Key_F3, Qt::NoModifier}},
      {QStringLiteral("Command44"), {Qt::Key_F5, Qt::NoModifier}},
      {QStringLiteral("Command87"), {Qt::Key_F5, Qt::ControlModifier}},
      {QStringLiteral("Cmd_LaSorte_1"), {Qt::Key_F7, Qt::NoModifier}},
      {QStringLiteral("Command22"), {Qt::Key_F7, Qt::ShiftModifier}},
      {QStringLiteral("Command29"), {Qt::Key_F8, Qt::NoModifier}},
      {QStringLiteral("Command86"), {Qt::Key_F9, Qt::NoModifier}},
      {QStringLiteral("Command4"), {Qt::Key_S, Qt::ControlModifier}},
      {QStringLiteral("Command42_3"), {Qt::Key_End, Qt::AltModifier}}};
  std::map<QString, int> pressed;
  for (const auto& [name, key] : keys) {
    Button& button = w.button(name.toStdString());
    button.setEnabled(true);
    button.onEvent([&pressed, name = name] { ++pressed[name]; });
  }
  for (const auto& [name, key] : keys) {
    press(world, key.first, key.second);
    EXPECT_EQ(pressed[name], 1) << name.toStdString();
  }
  w.button("Command44").setEnabled(false);
  press(world, Qt::Key_F5);
  EXPECT_EQ(pressed[QStringLiteral("Command44")], 1);
}

TEST(WorkbenchKeys, F8VerifiesTheTableOfTheTab) {
  WorkbenchScreen world;
  Workbench& w = world.world.w;
  std::vector<std::string> pressed;
  for (const char* const name : {"Command29", "Command34", "Command48", "Command51"})
    w.button(name).onEvent([&pressed, name] { pressed.emplace_back(name); });
  for (const int tab : {1, 2, 4, 3, 0}) {
    w.SSTab3.set(tab);
    press(world, Qt::Key_F8);
  }
  EXPECT_EQ(pressed, (std::vector<std::string>{"Command34", "Command48", "Command51", "Command51", "Command29"}));
}

TEST(WorkbenchKeys, MnemonicsAreUnique) {
  const WorkbenchScreen world;
  std::map<QString, int> letters;
  const auto note = [&](const QString& text) {
    if (const QKeySequence key = QKeySequence::mnemonic(text); !key.isEmpty()) ++letters[key.toString()];
  };
  for (const auto* const button : world.screen->findChildren<QAbstractButton*>()) note(button->text());
  for (const auto* const label : world.screen->findChildren<QLabel*>()) {
    if (label->buddy() != nullptr) note(label->text());
  }
  for (const auto& [letter, count] : letters) EXPECT_EQ(count, 1) << letter.toStdString();
  EXPECT_GE(letters.size(), 14u);
}

TEST(WorkbenchKeys, TabFollowsTheRoad) {
  const WorkbenchScreen world;
  std::vector<std::string> chain;
  const QWidget* const start = &world.find("Command42_0");
  const QWidget* widget = start;
  do {
    const QWidget* const named = widget->inherits("QTabBar") ? widget->parentWidget() : widget;
    if ((widget->focusPolicy() & Qt::TabFocus) != 0) chain.push_back(named->objectName().toStdString());
    widget = widget->nextInFocusChain();
  } while (widget != start);
  const std::vector<std::string> road = {
      "Command42_0", "hs1",           "FgRG",      "ComboColpi", "Command87", "ComboFiltro", "ComboR1",    "LblPN_1",
      "FgNu",        "Command24",     "TxtNumeri", "FgRR",       "Command44", "FgEv",        "Combo1R_1N", "Command20",
      "FgF",         "Cmd_LaSorte_1", "SSTab3",    "Fg11",       "Command29", "Command32",   "FgZ1",       "Fg_Stat"};
  std::size_t at = 0;
  for (const std::string& name : chain)
    if (at < road.size() && name == road[at]) ++at;
  std::string all;
  for (const std::string& name : chain) all += name + " ";
  EXPECT_EQ(at, road.size()) << all << "not reached in this order: " << (at < road.size() ? road[at] : std::string());
}

TEST(WorkbenchKeys, TabLeavesAGridAndEscLeavesTheScreenOpen) {
  const WorkbenchScreen world;
  world.find("FgF").setFocus();
  press(world, Qt::Key_Tab);
  EXPECT_TRUE(world.find("Cmd_LaSorte_1").hasFocus());
  press(world, Qt::Key_Escape);
  EXPECT_TRUE(world.screen->isVisible());
}

TEST(WorkbenchKeys, SpaceTogglesTheCellOfAPad) {
  WorkbenchScreen world;
  Workbench& w = world.world.w;
  auto& pad = world.find<GridView>("FgNu");
  pad.setFocus();
  w.FgNu.setCurrent(2, 3);
  settle();
  press(world, Qt::Key_Space);
  EXPECT_EQ(w.FgNu.back(2, 3), Ciano);
  press(world, Qt::Key_Down);
  press(world, Qt::Key_Space);
  EXPECT_EQ(w.FgNu.back(3, 3), Ciano);
}

TEST(WorkbenchKeys, ControlZeroIsTheTenthTabWhileTheWorkbenchIsInFront) {
  ProgramWorld files;
  std::mt19937 rng(3);
  files.makeBoth(randomRows(rng, 60));
  QuietShell shell(allScreens());
  Program program(shell, files.folder.path());
  shell.attach(program);
  shell.show("INIZIO");
  settle();
  qobject_cast<QAbstractButton*>(shell.widget("INIZIO", "Command2"))->click();
  settle();
  const QAction* reset = nullptr;
  for (const auto* const action : shell.widget("Container")->actions())
    if (action->shortcut() == QKeySequence(Qt::CTRL | Qt::Key_0)) reset = action;
  ASSERT_NE(reset, nullptr);
  EXPECT_TRUE(reset->isEnabled());
  shell.show("Sommativi1");
  settle();
  EXPECT_FALSE(reset->isEnabled());
  // The focus stays where it is when the density changes and the pages move.
  shell.widget("Sommativi1", "FgF")->setFocus();
  shell.widget("Container")->resize(1366, 768);
  settle();
  shell.widget("Container")->resize(1920, 1080);
  settle();
  EXPECT_TRUE(shell.widget("Sommativi1", "FgF")->hasFocus());
  shell.close("Sommativi1");
  settle();
  EXPECT_TRUE(reset->isEnabled());
  shell.closeAll();
  shell.purge();
}

}  // namespace
}  // namespace trv5
