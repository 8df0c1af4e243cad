#include "core/user_act.h"

#include <gtest/gtest.h>

#include <new>

#include "core/controls.h"
#include "core/errors.h"
#include "support/fake_shell.h"

namespace trv5 {
namespace {

class UserActs : public testing::Test, public ActListener {
 protected:
  UserActs() { form.setActListener(this); }
  ~UserActs() { form.setActListener(nullptr); }

  void actBegins() override { valueAtBegin = scroll.value(); }
  void actEnds(const Control* source, bool moves) override {
    if (memoryEnds) throw std::bad_alloc();
    acts.push_back((source == nullptr ? "modulo" : source->name()) + (moves ? " scorre" : ""));
  }
  bool typingIn(const Control&) const override { return false; }

  FakeShell shell;
  Form form{shell, "Prova", "Prova"};
  Form other{shell, "Altra", "Altra"};
  Button button{form, "Button"};
  Button foreign{other, "Button"};
  Scroll scroll{form, "Scroll", 1, 100};
  Text text{form, "Text"};
  Check check{form, "Check"};
  GridControl grid{form, "Grid", 3, 3};
  std::vector<std::string> acts;
  int valueAtBegin = 0;
  bool memoryEnds = false;
};

using Acts = std::vector<std::string>;

TEST_F(UserActs, OpenBeforeTheValueChanges) {
  scroll.set(7);
  EXPECT_EQ(valueAtBegin, 1);
  EXPECT_EQ(acts, Acts{"Scroll scorre"});
}

TEST_F(UserActs, HoldAllThatAnOperationDoes) {
  button.onEvent([&] {
    scroll.set(7);
    text.set("12");
    form.perform([&] { check.set(true); });
  });
  button.press();
  EXPECT_EQ(acts, Acts{"Button"});
}

TEST_F(UserActs, EndAlsoWhereTheOperationFails) {
  button.onEvent([&] {
    scroll.set(7);
    throw UserError("Il disco è pieno.");
  });
  button.press();
  EXPECT_EQ(shell.texts(), Acts{"Il disco è pieno."});
  EXPECT_EQ(acts, Acts{"Button"});
}

TEST_F(UserActs, StandWhereMemoryEndsForTheirStep) {
  memoryEnds = true;
  button.onEvent([&] { scroll.set(7); });
  button.press();
  EXPECT_EQ(scroll.value(), 7);
  EXPECT_EQ(shell.texts(), Acts{});
  memoryEnds = false;
  button.press();
  EXPECT_EQ(acts, Acts{"Button"});
}

TEST_F(UserActs, AreNoneInsideAnOperationOfAnotherForm) {
  foreign.onEvent([&] {
    scroll.set(7);
    button.press();
  });
  foreign.press();
  EXPECT_EQ(acts, Acts{});
}

TEST_F(UserActs, AreChangesWithoutAnOperationToo) {
  text.type("1");
  check.set(true);
  check.set(true);
  EXPECT_EQ(acts, (Acts{"Text scorre", "Check"}));
}

TEST_F(UserActs, AreNoneWhereARowIsOnlyChosen) {
  grid.clickCell(1, 1);
  EXPECT_EQ(acts, Acts{});
  grid.onCellClick([&](int row, int column) {
    if (column == 2) grid.setText(row, column, "x");
  });
  grid.clickCell(2, 1);
  grid.clickCell(2, 2);
  EXPECT_EQ(acts, (Acts{"Grid scorre", "Grid"}));
}

}  // namespace
}  // namespace trv5
