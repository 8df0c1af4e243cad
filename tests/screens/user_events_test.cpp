#include "screens/kit/user_events.h"

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

#include "form_world.h"
#include "screens/kit/bindings.h"

namespace trv5 {
namespace {

using Log = std::vector<std::string>;

// Three boxes and a button in a window that has the focus.
struct Entering : testing::Test {
  Entering() {
    for (const auto& [i, box] : boxes) {
      const std::string name = box->name();
      box->onEnter([this, name] { log.push_back("entra " + name); });
      box->onLeave([this, name] { log.push_back("esce " + name); });
      bind(edits[i], *box);
      layout.addWidget(&edits[i]);
    }
    bind(button, save);
    layout.addWidget(&button);
    shown(window, 300, 300);
    window.activateWindow();
    button.setFocus();
    settle();
    log.clear();
  }
  Log taken() { return std::exchange(log, {}); }

  FormWorld world;
  ControlArray<Text> boxes{world.form, "txtin", range(1, 3), 5};
  Button save{world.form, "Command8", "SALVA"};
  QWidget window;
  QVBoxLayout layout{&window};
  std::map<int, QLineEdit> edits;
  QPushButton button;
  Log log;
};

TEST_F(Entering, EnterAndSpacePressTheButtonWithTheFocus) {
  int pressed = 0;
  save.onEvent([&] { ++pressed; });
  button.setAutoDefault(false);
  button.setFocus();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) QTest::keyClick(&button, key);
  EXPECT_EQ(pressed, 3);
  save.setEnabled(false);
  QTest::keyClick(&button, Qt::Key_Return);
  EXPECT_EQ(pressed, 3);
}

TEST_F(Entering, TheFocusOfTheWindowIsTheControls) {
  edits[1].setFocus();
  EXPECT_EQ(world.form.focused(), &boxes[1]);
  QTest::keyClick(&edits[1], Qt::Key_Tab);
  EXPECT_EQ(world.form.focused(), &boxes[2]);
  QTest::mouseClick(&edits[3], Qt::LeftButton);
  EXPECT_EQ(world.form.focused(), &boxes[3]);
  EXPECT_EQ(log, (Log{"entra txtin_1", "esce txtin_1", "entra txtin_2", "esce txtin_2", "entra txtin_3"}));
  button.setFocus();
  EXPECT_EQ(world.form.focused(), &save);
}

TEST_F(Entering, AnOperationGivesTheFocusToAWidget) {
  boxes[2].focus();
  EXPECT_TRUE(edits[2].hasFocus());
  EXPECT_EQ(log, Log{"entra txtin_2"});
}

TEST_F(Entering, AnOperationOnLeavingMayKeepTheFocus) {
  edits[1].setFocus();
  boxes[1].onLeave([this] { boxes[1].focus(); });
  taken();
  edits[2].setFocus();
  EXPECT_TRUE(edits[1].hasFocus());
  EXPECT_EQ(world.form.focused(), &boxes[1]);
}

TEST_F(Entering, AListOrAnotherWindowInFrontTakesNoFocusFromAControl) {
  edits[1].setFocus();
  taken();
  for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
    QFocusEvent out(QEvent::FocusOut, reason);
    QCoreApplication::sendEvent(&edits[1], &out);
    QFocusEvent in(QEvent::FocusIn, reason);
    QCoreApplication::sendEvent(&edits[1], &in);
  }
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(world.form.focused(), &boxes[1]);
}

TEST_F(Entering, ADisabledControlIsLeft) {
  edits[1].setFocus();
  taken();
  boxes[1].setEnabled(false);
  EXPECT_EQ(taken().front(), "esce txtin_1");
  EXPECT_NE(world.form.focused(), &boxes[1]);
}

TEST_F(Entering, AKeyThatTheOperationTakesDoesNothingElse) {
  std::vector<Key> keys;
  boxes[1].onKey([&](const Key& key) {
    keys.push_back(key);
    if (key.code == Key::Code::Down) boxes[2].focus();
    return key.text == "x" || key.code == Key::Code::Down;
  });
  edits[1].setFocus();
  QTest::keyClick(&edits[1], Qt::Key_X);
  QTest::keyClick(&edits[1], Qt::Key_7, Qt::KeypadModifier);
  QTest::keyClick(&edits[1], Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(boxes[1].text(), "7");
  QTest::keyClick(&edits[1], Qt::Key_Down);
  EXPECT_TRUE(edits[2].hasFocus());
  EXPECT_EQ(keys,
            (std::vector<Key>{{.text = "x"}, {.text = "7"}, {.code = Key::Code::Enter}, {.code = Key::Code::Down}}));
}

TEST_F(Entering, KeysAreToldInTheFormsTerms) {
  const auto key = [](int code, Qt::KeyboardModifiers held, const char* text) {
    return keyFrom(QKeyEvent(QEvent::KeyPress, code, held, QString::fromUtf8(text)));
  };
  EXPECT_EQ(key(Qt::Key_Return, {}, "\r"), (Key{.code = Key::Code::Enter}));
  EXPECT_EQ(key(Qt::Key_Backtab, Qt::ShiftModifier, ""), (Key{.code = Key::Code::BackTab, .shift = true}));
  EXPECT_EQ(key(Qt::Key_Egrave, {}, "è"), Key{.text = "è"});
  EXPECT_EQ(key(Qt::Key_A, Qt::ControlModifier, "\x01"), (Key{.text = "a", .control = true}));
  EXPECT_EQ(key(Qt::Key_F5, {}, ""), Key{.code = Key::Code::Other});
}

TEST_F(Entering, TheSelectionGoesBothWays) {
  boxes[1].set("caffè");
  boxes[1].select(3, 2);
  EXPECT_EQ(edits[1].selectedText(), QStringLiteral("fè"));
  edits[1].setSelection(0, 3);
  EXPECT_EQ(boxes[1].selectionStart(), 0);
  EXPECT_EQ(boxes[1].selectionLength(), 3);
  QTest::keyClicks(&edits[1], QStringLiteral("P"));
  EXPECT_EQ(boxes[1].text(), "Pfè");
  EXPECT_EQ(boxes[1].selectionStart(), 1);
  EXPECT_EQ(boxes[1].selectionLength(), 0);
  EXPECT_EQ(edits[1].cursorPosition(), 1) << "typing in the middle leaves the cursor there";
}

TEST_F(Entering, WhatIsSelectedOnEnteringStaysSoAfterTheClick) {
  boxes[1].set("12345");
  boxes[1].onEnter([this] { boxes[1].selectAll(); });
  QTest::mouseClick(&edits[1], Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_EQ(edits[1].selectedText(), QStringLiteral("12345"));
  QTest::mouseClick(&edits[1], Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_EQ(edits[1].selectedText(), QString()) << "the next click places the cursor";
  QTest::keyClicks(&edits[1], QStringLiteral("6"));
  EXPECT_EQ(boxes[1].text(), "12345") << "full";
}

TEST_F(Entering, ARuleOnTheTextRunsBehindTheTyping) {
  boxes[1].onEvent([this] {
    if (boxes[1].text() == "91") boxes[1].set("");
  });
  edits[1].setFocus();
  QTest::keyClicks(&edits[1], QStringLiteral("91"));
  EXPECT_EQ(edits[1].text(), QString());
  QTest::keyClicks(&edits[1], QStringLiteral("90"));
  EXPECT_EQ(boxes[1].text(), "90");
}

TEST(EnteringOthers, TabsCalendarsAndGridsAreEnteredToo) {
  FormWorld world;
  Tabs tabs(world.form, "SSTab1", {{0, "Uno"}, {1, "Due"}});
  Calendar calendar(world.form, "MonthView1");
  GridControl grid(world.form, "FgDB", "A");
  grid.appendRow();
  QWidget window;
  QVBoxLayout layout(&window);
  QTabWidget pages;
  pages.addTab(new QWidget, QString());
  pages.addTab(new QWidget, QString());
  QCalendarWidget month;
  GridView view(grid);
  bind(pages, tabs);
  bind(month, calendar);
  for (QWidget* const widget : std::initializer_list<QWidget*>{&pages, &month, &view}) layout.addWidget(widget);
  shown(window, 500, 700);
  window.activateWindow();
  settle();
  pages.setFocus();
  EXPECT_EQ(world.form.focused(), &tabs);
  month.setFocus();
  EXPECT_EQ(world.form.focused(), &calendar);
  view.setFocus();
  EXPECT_EQ(world.form.focused(), &grid);
  tabs.focus();
  EXPECT_TRUE(pages.tabBar()->hasFocus());
  int keys = 0;
  tabs.onKey([&](const Key&) {
    ++keys;
    return false;
  });
  QTest::keyClick(pages.tabBar(), Qt::Key_F5);
  EXPECT_EQ(keys, 1) << "also where the bar hands on what it has no use for";
  grid.focus();
  EXPECT_TRUE(view.hasFocus());
}

}  // namespace
}  // namespace trv5
