#include "core/control_state.h"

#include <gtest/gtest.h>

#include <random>

#include "core/controls.h"
#include "support/fake_shell.h"

namespace trv5 {
namespace {

// One control of each kind.
struct Kinds {
  FakeShell shell;
  Form form{shell, "Prova", "Prova"};
  Button button{form, "Button", "Premi"};
  Label label{form, "Label", "Testo"};
  Combo combo{form, "Combo", Combo::Typing::Yes};
  Check check{form, "Check", "Casella"};
  Text text{form, "Text"};
  Scroll scroll{form, "Scroll", 1, 100};
  Tabs tabs{form, "Tabs", {{0, "Prima"}, {1, "Seconda"}, {2, "Terza"}}};
  LineList lines{form, "Lines"};
  Progress progress{form, "Progress"};
  Calendar calendar{form, "Calendar"};
  GridControl grid{form, "Grid", "a|b|c"};
  int events = 0;

  Kinds() {
    for (Control* const control : form.controls()) {
      control->onEvent([this] { ++events; });
      control->onEnter([this] { ++events; });
      control->onLeave([this] { ++events; });
    }
    combo.setItems({"1", "2", "3"});
  }
  void changeOne(std::mt19937& rng) {
    const int n = static_cast<int>(rng() % 100);
    const std::string word = std::to_string(n);
    const std::vector<std::function<void()>> changes = {
        [&] { button.setCaption(word); }, [&] { label.setText(word); },
        [&] { combo.type(word); },        [&] { combo.pick(n % 3); },
        [&] { combo.setItems({word}); },  [&] { check.set(n % 2 == 0); },
        [&] { check.setCaption(word); },  [&] { text.edit(word, 1); },
        [&] { scroll.set(n); },           [&] { scroll.setMaximum(n + 1); },
        [&] { tabs.set(n % 3); },         [&] { tabs.setTabEnabled(n % 3, n < 50); },
        [&] { lines.add(word); },         [&] { lines.clear(); },
        [&] { progress.set(n, 100); },    [&] { calendar.set("0" + std::to_string(1 + n % 9) + "/08/2026"); },
        [&] { grid.appendRow(); },        [&] { grid.setText(0, 1, word); },
        [&] { grid.setEmptyText(word); }, [&] { grid.setCurrent(n % grid.rows()); },
    };
    changes[rng() % changes.size()]();
    Control& any = *form.controls()[rng() % form.controls().size()];
    const std::vector<std::function<void()>> looks = {
        [&] { any.setEnabled(n < 50); },
        [&] { any.setAside(n < 50); },
        [&] { any.setBack(n < 50 ? std::optional(Verde) : std::nullopt); },
        [&] { any.setFore(n < 50 ? std::optional(Rosso) : std::nullopt); },
        [&] { any.setToolTip(word); },
    };
    if (rng() % 3 == 0) looks[rng() % looks.size()]();
  }
};

TEST(FormState, PutsEveryKindOfControlBackWithoutAnEvent) {
  Kinds kinds;
  std::mt19937 rng(7);
  std::vector<FormState> states = {kinds.form.state()};
  for (int i = 0; i < 400; ++i) {
    kinds.changeOne(rng);
    states.push_back(kinds.form.state());
  }
  kinds.events = 0;
  for (int i = 0; i < 400; ++i) {
    const FormState& state = states[rng() % states.size()];
    kinds.form.restore(state);
    ASSERT_EQ(kinds.form.state(), state);
  }
  EXPECT_EQ(kinds.events, 0);
}

TEST(FormState, SharesWhatStaysTheSame) {
  Kinds kinds;
  const FormState before = kinds.form.state();
  kinds.label.setText("Altro");
  kinds.check.set(true);
  kinds.check.set(false);
  const FormState after = kinds.form.state();
  int others = 0;
  for (std::size_t i = 0; i < before.controls.size(); ++i) others += before.controls[i] != after.controls[i];
  EXPECT_EQ(others, 1);
  EXPECT_FALSE(before == after);
  EXPECT_LT(after.bytesBeside(&before), 1000U);
  EXPECT_GT(after.bytesBeside(nullptr), kinds.form.controls().size() * sizeof(ControlState));
}

TEST(FormState, IsShownOnceByEachViewThatHasSomethingNewToShow) {
  Kinds kinds;
  const FormState before = kinds.form.state();
  kinds.label.setText("Altro");
  kinds.label.setBack(Verde);
  kinds.label.setEnabled(false);
  int shown = 0, others = 0;
  kinds.label.setListener([&] { ++shown; });
  kinds.text.setListener([&] { ++others; });
  kinds.form.restore(before);
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(others, 0);
}

TEST(FormState, LeavesTheFocusWhereItIsOrTakesItBackFromADisabledControl) {
  Kinds kinds;
  kinds.button.setEnabled(false);
  kinds.text.focus();
  const FormState before = kinds.form.state();
  kinds.button.setEnabled(true);
  kinds.combo.focus();
  kinds.form.restore(before);
  EXPECT_EQ(kinds.form.focused(), &kinds.combo);
  kinds.button.setEnabled(true);
  kinds.button.focus();
  kinds.form.restore(before);
  EXPECT_EQ(kinds.form.focused(), &kinds.text);
}

TEST(FormState, LeavesOutWhatServesTheFormItself) {
  Kinds kinds;
  kinds.button.leaveOutOfState();
  const FormState before = kinds.form.state();
  kinds.button.setCaption("Altro");
  EXPECT_EQ(kinds.form.state(), before);
  kinds.form.restore(before);
  EXPECT_EQ(kinds.button.caption(), "Altro");
}

TEST(FormState, OfAnotherFormIsRefused) {
  Kinds kinds;
  Form other(kinds.shell, "Altra", "Altra");
  EXPECT_THROW(other.restore(kinds.form.state()), std::logic_error);
}

}  // namespace
}  // namespace trv5
