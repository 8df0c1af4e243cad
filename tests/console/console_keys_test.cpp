// Keys and the focus.
#include "console/key_names.h"
#include "console_world.h"

namespace trv5 {
namespace {

TEST_F(ConsoleTest, KeysGoToTheControlThatGetsTheFocus) {
  does("key", "INIZIO", "TxtNumeri", "7");
  does("key", "INIZIO", "TxtNumeri", "è");
  EXPECT_EQ(does("get", "INIZIO", "TxtNumeri")["text"], "7è");
  EXPECT_EQ(does("focus"), (json{{"ok", true}, {"screen", "INIZIO"}, {"control", "TxtNumeri"}}));
  does("key", "INIZIO", "TxtNumeri", "Backspace");
  EXPECT_EQ(does("get", "INIZIO", "TxtNumeri")["text"], "7");
  does("key", "INIZIO", "Command1", "Space");
  does("key", "INIZIO", "Ask", "Alt+P");
  EXPECT_EQ(log(), (Lines{"Command1", "Command1"}));
  does("key", "INIZIO", "hs1", "Right");
  EXPECT_EQ(does("get", "INIZIO", "hs1")["value"], 2);
  does("key", "INIZIO", "Command1", "Tab");
  EXPECT_EQ(does("focus")["control"], "Ask");
  does("key", "INIZIO", "Ask", "Shift+Tab");
  EXPECT_EQ(does("focus")["control"], "Command1");
  refuses("key", "INIZIO", "Command1", "Invio");
}

TEST_F(ConsoleTest, AKeyReachesTheOperationOfTheControlWithAWindowAndWithout) {
  for (Text* const box : {&made->TxtNumeri, &made->Text3}) {
    box->onEnter([box] { box->selectAll(); });
    box->onKey([](const Key& key) {
      if (key.code == Key::Code::Enter) made->ComboR1.focus();
      return key.code == Key::Code::Enter;
    });
    const std::string name = box->name();
    does("set", "INIZIO", name, "12");
    does("key", "INIZIO", name, "7");
    EXPECT_EQ(does("get", "INIZIO", name)["text"], "7") << name;
    does("key", "INIZIO", name, "Enter");
    EXPECT_EQ(does("focus")["control"], "ComboR1") << name;
  }
}

TEST(KeyNames, AreThoseOfTheKeyboard) {
  EXPECT_EQ(keyOf("Ctrl+F5")->key, Qt::Key_F5);
  EXPECT_EQ(keyOf("Ctrl+F5")->modifiers, Qt::ControlModifier);
  EXPECT_EQ(keyOf("Alt+Left")->key, Qt::Key_Left);
  EXPECT_EQ(keyOf("Shift+Tab")->key, Qt::Key_Backtab);
  EXPECT_EQ(keyOf("F12")->key, Qt::Key_F12);
  EXPECT_EQ(keyOf("F")->text, QStringLiteral("F"));
  EXPECT_EQ(keyOf("+")->text, QStringLiteral("+"));
  EXPECT_EQ(keyOf("Ctrl++")->key, Qt::Key_Plus);
  EXPECT_FALSE(keyOf("F13"));
  EXPECT_FALSE(keyOf("Return now"));
  EXPECT_FALSE(keyOf(""));
}

}  // namespace
}  // namespace trv5
