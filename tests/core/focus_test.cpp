#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/controls.h"
#include "core/errors.h"
#include "support/fake_shell.h"

namespace trv5 {
namespace {

using Log = std::vector<std::string>;

// Two text boxes that note what happens to them.
class Focus : public testing::Test {
 protected:
  Focus() {
    for (Text* const box : {&first, &second}) {
      box->onEnter([this, box] { log.push_back("entra " + box->name()); });
      box->onLeave([this, box] { log.push_back("esce " + box->name()); });
      box->onEvent([this, box] { log.push_back(box->name() + " = " + box->text()); });
    }
  }
  Log taken() { return std::exchange(log, {}); }

  FakeShell shell;
  Form form{shell, "Prova", "Prova"};
  Text first{form, "txtin_1"}, second{form, "txtin_2", 2};
  Log log;
};

TEST_F(Focus, GoesFromOneControlToTheOther) {
  EXPECT_EQ(form.focused(), nullptr);
  first.focus();
  EXPECT_EQ(form.focused(), &first);
  second.focus();
  EXPECT_TRUE(second.hasFocus());
  EXPECT_FALSE(first.hasFocus());
  EXPECT_EQ(log, (Log{"entra txtin_1", "esce txtin_1", "entra txtin_2"}));
}

TEST_F(Focus, NothingRunsWhereItStays) {
  first.focus();
  taken();
  first.focus();
  first.entered();
  second.left();
  EXPECT_TRUE(log.empty());
}

TEST_F(Focus, TheWindowTellsWhereTheUserTakesIt) {
  first.entered();
  first.left();
  EXPECT_EQ(form.focused(), nullptr);
  second.entered();
  EXPECT_EQ(log, (Log{"entra txtin_1", "esce txtin_1", "entra txtin_2"}));
}

TEST_F(Focus, TheViewIsAskedToTakeItOnlyWhenAnOperationGivesIt) {
  int asked = 0;
  first.setListener([] {}, [&] { ++asked; });
  first.entered();
  EXPECT_EQ(asked, 0);
  second.focus();
  first.focus();
  EXPECT_EQ(asked, 1);
}

TEST_F(Focus, ADisabledControlDoesNotTakeItAndLosesIt) {
  first.setEnabled(false);
  first.focus();
  EXPECT_EQ(form.focused(), nullptr);
  second.focus();
  taken();
  second.setEnabled(false);
  EXPECT_EQ(form.focused(), nullptr);
  EXPECT_EQ(log, Log{"esce txtin_2"});
}

TEST_F(Focus, StaysWhereTheOperationOnLeavingPutsIt) {
  Text third(form, "txtin_3");
  first.onLeave([&] { third.focus(); });
  first.focus();
  taken();
  second.focus();
  EXPECT_EQ(form.focused(), &third);
  EXPECT_TRUE(log.empty()) << "the second was never entered";
}

TEST_F(Focus, IsNobodysWhenItsControlIsGone) {
  {
    Text passing(form, "txtin_3");
    passing.focus();
  }
  EXPECT_EQ(form.focused(), nullptr);
}

TEST_F(Focus, AKeyReachesTheOperationBeforeTheControl) {
  second.onKey([this](const Key& key) {
    log.push_back("tasto " + key.text);
    return key.text == "7";
  });
  second.key({.text = "7"});
  EXPECT_EQ(second.text(), "");
  second.key({.text = "8"});
  EXPECT_EQ(second.text(), "8");
  EXPECT_EQ(log, (Log{"entra txtin_2", "tasto 7", "tasto 8", "txtin_2 = 8"}));
}

TEST_F(Focus, AnOperationMovesTheFocusByAKey) {
  first.onKey([this](const Key& key) {
    if (key.code != Key::Code::Enter) return false;
    second.focus();
    return true;
  });
  first.key({.code = Key::Code::Enter});
  EXPECT_TRUE(second.hasFocus());
}

TEST_F(Focus, AKeyWhoseOperationFailsIsTaken) {
  first.onKey([](const Key&) -> bool { throw UserError("Il disco è pieno."); });
  first.key({.text = "1"});
  EXPECT_EQ(first.text(), "");
  EXPECT_EQ(shell.texts(), Log{"Il disco è pieno."});
}

TEST_F(Focus, ADisabledControlGetsNoKeys) {
  first.setEnabled(false);
  first.key({.text = "1"});
  EXPECT_EQ(first.text(), "");
}

TEST_F(Focus, WhatIsTypedTakesThePlaceOfTheSelection) {
  first.set("perché no");
  first.select(3, 3);
  first.type("ò");
  EXPECT_EQ(first.text(), "però no");
  EXPECT_EQ(first.selectionStart(), 4);
  EXPECT_EQ(first.selectionLength(), 0);
  first.selectAll();
  EXPECT_EQ(first.selectionLength(), 7);
  first.key({.text = "5"});
  EXPECT_EQ(first.text(), "5");
}

TEST_F(Focus, ASelectionEndsWithTheText) {
  first.set("dieci");
  first.select(3, 10);
  EXPECT_EQ(first.selectionStart(), 3);
  EXPECT_EQ(first.selectionLength(), 2);
  first.select(-1, -1);
  EXPECT_EQ(first.selectionStart(), 0);
  EXPECT_EQ(first.selectionLength(), 0);
  first.select(2, 2);
  first.set("due");
  EXPECT_EQ(first.selectionStart(), 3) << "the cursor of a new text is at its end";
  EXPECT_EQ(first.selectionLength(), 0);
}

TEST_F(Focus, ASelectionIsToldToTheViewWithoutFiring) {
  first.set("dieci");
  taken();
  int notices = 0;
  first.setListener([&] { ++notices; });
  first.selectAll();
  first.selectAll();
  EXPECT_EQ(notices, 1);
  EXPECT_TRUE(log.empty());
}

TEST_F(Focus, ABoxTakesNoMoreThanItsLength) {
  second.type("123");
  EXPECT_EQ(second.text(), "12");
  second.key({.text = "4"});
  EXPECT_EQ(second.text(), "12");
  second.selectAll();
  second.key({.text = "4"});
  EXPECT_EQ(second.text(), "4");
}

TEST_F(Focus, KeysThatPassMoveTheCursorAndErase) {
  first.set("17");
  first.key({.code = Key::Code::Left});
  first.key({.code = Key::Code::Backspace});
  EXPECT_EQ(first.text(), "7");
  first.key({.code = Key::Code::Backspace});
  EXPECT_EQ(first.text(), "7") << "nothing stands before the cursor";
  first.key({.code = Key::Code::Delete});
  EXPECT_EQ(first.text(), "");
  first.set("123");
  first.key({.code = Key::Code::Home});
  first.key({.text = "0"});
  first.key({.code = Key::Code::End});
  first.key({.text = "4"});
  EXPECT_EQ(first.text(), "01234");
  first.select(1, 2);
  first.key({.code = Key::Code::Right});
  EXPECT_EQ(first.selectionStart(), 3);
  first.key({.text = "a", .control = true});
  EXPECT_EQ(first.text(), "01234") << "a shortcut types nothing";
}

}  // namespace
}  // namespace trv5
