#include "core/controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "core/errors.h"
#include "support/fake_shell.h"

namespace trv5 {
namespace {

// A form for tests, and a counter to hang on a control's event or listener.
class Controls : public testing::Test {
 protected:
  std::function<void()> count(int& counter) {
    return [&counter] { ++counter; };
  }
  FakeShell shell;
  Form form{shell, "Prova", "Titolo", 5};
  int events = 0, notices = 0;
};

TEST_F(Controls, AFormFindsItsControlsByNameAndKind) {
  Button button(form, "Command1", "Premi");
  Text text(form, "Text1");
  EXPECT_EQ(form.find("Command1"), &button);
  EXPECT_EQ(form.find("command1"), nullptr);
  EXPECT_EQ(&form.get<Text>("Text1"), &text);
  EXPECT_THROW(form.get<Text>("Command1"), std::logic_error);
  EXPECT_THROW(form.get<Text>("Manca"), std::logic_error);
  EXPECT_EQ(form.controls().size(), 2u);
}

TEST_F(Controls, ANameGivenTwiceInAFormIsAMistakeOfTheProgram) {
  Button first(form, "Command1");
  EXPECT_THROW(Text(form, "Command1"), std::logic_error);
  EXPECT_EQ(form.find("Command1"), &first);
  EXPECT_EQ(form.controls().size(), 1u);
}

TEST_F(Controls, AControlThatIsGoneIsFoundNoMore) {
  { const Button passing(form, "Command1"); }
  EXPECT_EQ(form.find("Command1"), nullptr);
  EXPECT_TRUE(form.controls().empty());
  const Text next(form, "Command1");
  EXPECT_EQ(form.find("Command1"), &next);
}

TEST_F(Controls, AControlHasOneViewUntilThatGoes) {
  Label label(form, "Label1");
  GridControl grid(form, "FgEv", "A");
  label.setListener(count(notices));
  EXPECT_THROW(label.setListener(count(events)), std::logic_error);
  grid.setGridListener([&](const GridChange&) { ++notices; });
  EXPECT_THROW(grid.setGridListener([&](const GridChange&) { ++events; }), std::logic_error);
  label.setText("uno");
  grid.appendRow();
  EXPECT_EQ(notices, 2) << "the first ones stay";

  label.setListener({});
  label.setListener(count(events));
  grid.setGridListener({});
  grid.setGridListener([&](const GridChange&) { ++events; });
  label.setText("due");
  grid.appendRow();
  EXPECT_EQ(notices, 2);
  EXPECT_EQ(events, 2);
}

TEST_F(Controls, EachProgramCountsItsOwnRunningOperations) {
  FakeShell other;
  Form otherForm(other, "Altro", "Altro");
  form.perform([&] {
    EXPECT_TRUE(shell.operations().running());
    EXPECT_FALSE(other.operations().running());
    // An error of the other program is shown there, and this one goes on.
    otherForm.perform([] { throw UserError("Là"); });
    ++events;
  });
  EXPECT_EQ(other.texts(), std::vector<std::string>{"Là"});
  EXPECT_TRUE(shell.texts().empty());
  EXPECT_EQ(events, 1);
  EXPECT_FALSE(shell.operations().running());
}

TEST_F(Controls, TellWhenTheOutermostOperationIsOver) {
  auto listening = shell.operations().whenSettled(count(notices));
  Button inner(form, "Command1"), outer(form, "Command2");
  Check unread(form, "Check1");
  inner.onEvent(count(events));
  outer.onEvent([&] {
    inner.press();
    unread.set(true);
    EXPECT_EQ(notices, 0);
  });
  outer.press();
  EXPECT_EQ(notices, 1);
  unread.set(false);
  EXPECT_EQ(notices, 2) << "also without an operation";
  inner.onEvent([] { throw UserError("No"); });
  inner.press();
  EXPECT_EQ(notices, 3) << "also when it failed";
  listening.reset();
  inner.press();
  EXPECT_EQ(notices, 3);
}

TEST_F(Controls, AFormTellsAChangeOfItsTitle) {
  form.titleChanged = count(notices);
  form.setTitle("Altro");
  EXPECT_EQ(form.title(), "Altro");
  EXPECT_EQ(notices, 1);
}

TEST_F(Controls, WhatEscapesFromAnOperationIsShownInABox) {
  Button button(form, "Command1");
  button.onEvent([] { throw UserError("Il disco è pieno.", "Titolo"); });
  button.press();
  EXPECT_EQ(shell.lastBox(), (ShownBox{.title = "Titolo", .text = "Il disco è pieno.", .icon = Icon::Critical}));
  button.onEvent([] { throw std::runtime_error("strano"); });
  button.press();
  EXPECT_EQ(shell.lastBox().title, "Avviso");
  EXPECT_THAT(shell.lastBox().text, testing::StartsWith("Errore imprevisto"));
  EXPECT_EQ(shell.reasons.back(), "strano");  // a library's words stand in the details alone
}

TEST_F(Controls, AnErrorOfANestedOperationPassesThroughToTheOutermost) {
  Button inner(form, "Command1"), outer(form, "Command2");
  bool wentOn = false;
  inner.onEvent([] { throw UserError("Dentro"); });
  outer.onEvent([&] {
    inner.press();
    wentOn = true;
  });
  outer.press();
  EXPECT_FALSE(wentOn);
  EXPECT_EQ(shell.texts(), std::vector<std::string>{"Dentro"});
  outer.press();  // the depth was unwound: the box comes again
  EXPECT_EQ(shell.shown.size(), 2u);
}

TEST_F(Controls, AnOperationMayTrapTheErrorOfTheOneItRuns) {
  Button inner(form, "Command1"), outer(form, "Command2");
  inner.onEvent([] { throw UserError("Dentro"); });
  outer.onEvent([&] {
    try {
      inner.press();
    } catch (const UserError&) {
      form.shell().message({.text = "Messaggio fisso"});
    }
  });
  outer.press();
  EXPECT_EQ(shell.texts(), std::vector<std::string>{"Messaggio fisso"});
}

TEST_F(Controls, LooksAreToldOnceWhenTheyChange) {
  Label label(form, "Label1", "uno");
  label.setListener(count(notices));
  label.setText("uno");
  label.setEnabled(true);
  label.setBack(std::nullopt);
  EXPECT_EQ(notices, 0);
  label.setText("due");
  label.setEnabled(false);
  label.setBack(Verde);
  label.setFore(Rosso);
  EXPECT_EQ(notices, 4);
  EXPECT_EQ(label.back(), Verde);
  EXPECT_EQ(label.fore(), Rosso);
  EXPECT_FALSE(label.enabled());
}

TEST_F(Controls, APickFiresAlsoForTheItemThatStandsThereAlready) {
  Combo combo(form, "Combo1");
  combo.setItems({"uno", "due"});
  combo.onEvent(count(events));
  combo.pick(1);
  combo.pick(1);
  EXPECT_EQ(events, 2);
  EXPECT_EQ(combo.text(), "due");
  combo.pick(7);
  combo.pick(-1);
  EXPECT_EQ(events, 2);
  EXPECT_EQ(combo.index(), 1);
}

TEST_F(Controls, AnItemSetByAnOperationFiresOnlyWhenItChanges) {
  Combo combo(form, "Combo1");
  combo.setItems({"uno", "due"});
  combo.onEvent(count(events));
  combo.select(0);
  combo.select(0);
  EXPECT_EQ(events, 1);
  combo.select(-1);
  EXPECT_EQ(combo.index(), -1);
  EXPECT_EQ(combo.text(), "");
  EXPECT_EQ(events, 2);
}

TEST_F(Controls, OnlyAnEditableListTakesATypedTextWhichHasTheIndexMinusOne) {
  Combo closed(form, "Combo1");
  Combo open(form, "ComboNC", Combo::Typing::Yes);
  for (Combo* combo : {&closed, &open}) {
    combo->setItems({"5", "10"});
    combo->select(0);
  }
  closed.type("7");
  EXPECT_EQ(closed.index(), 0);
  EXPECT_EQ(closed.text(), "5");
  open.onEvent(count(events));
  open.type("7");
  EXPECT_EQ(open.index(), -1);
  EXPECT_EQ(open.number(), 7);
  open.type("7");
  EXPECT_EQ(events, 1);
  open.type("10");
  EXPECT_EQ(open.index(), 1);
  EXPECT_EQ(events, 2);
}

TEST_F(Controls, ACheckFiresOnlyWhenItChanges) {
  Check check(form, "Ch_ISO", "Isotopi");
  check.onEvent(count(events));
  check.set(false);
  check.set(true);
  check.set(true);
  EXPECT_EQ(events, 1);
  EXPECT_TRUE(check.checked());
}

TEST_F(Controls, ATextFiresOnlyWhenItChanges) {
  Text text(form, "TxtNumeri");
  text.onEvent(count(events));
  text.onDoubleClick([&] { text.set(""); });
  text.set("12");
  text.set("12");
  EXPECT_EQ(events, 1);
  text.doubleClick();
  EXPECT_EQ(text.text(), "");
  EXPECT_EQ(events, 2);
}

TEST_F(Controls, AScrollBarKeepsItsRangeAndFiresOnlyWhenItChanges) {
  Scroll scroll(form, "hs1", 1, 100);
  scroll.onEvent(count(events));
  EXPECT_EQ(scroll.value(), 1);
  scroll.set(50);
  scroll.set(50);
  scroll.set(500);
  EXPECT_EQ(scroll.value(), 100);
  scroll.set(-3);
  EXPECT_EQ(scroll.value(), 1);
  EXPECT_EQ(events, 3);
  scroll.set(80);
  scroll.setMaximum(60);
  EXPECT_EQ(scroll.value(), 60);
  EXPECT_EQ(events, 5);
  scroll.setMaximum(70);
  EXPECT_EQ(scroll.value(), 60);
  EXPECT_EQ(events, 5);
}

TEST_F(Controls, AScrollBarWithoutRoomStaysAtItsMinimum) {
  Scroll scroll(form, "hs1", 1, 0);
  scroll.set(5);
  EXPECT_EQ(scroll.value(), 1);
}

TEST_F(Controls, TabsGoByTheirGivenIndicesWhateverTheirOrder) {
  Tabs tabs(form, "SSTab1", {{1, "Selezioni"}, {0, "Elenco estrazioni"}});
  tabs.onEvent(count(events));
  EXPECT_EQ(tabs.index(), 1);
  tabs.set(0);
  tabs.set(0);
  tabs.set(7);
  EXPECT_EQ(tabs.index(), 0);
  EXPECT_EQ(events, 1);
}

TEST_F(Controls, ACalendarFiresOnlyWhenItsDateChanges) {
  Calendar calendar(form, "MonthView1");
  calendar.onEvent(count(events));
  EXPECT_EQ(calendar.date(), "");
  calendar.set("22/08/2026");
  calendar.set("22/08/2026");
  EXPECT_EQ(events, 1);
}

TEST_F(Controls, ACalendarTellsOfAnyClickAndOfNothingThatAnOperationSets) {
  Calendar calendar(form, "MonthView1");
  calendar.onEvent(count(events));
  calendar.setListener(count(notices));
  calendar.show("22/08/2026");
  EXPECT_EQ(calendar.date(), "22/08/2026");
  EXPECT_EQ(notices, 1);
  EXPECT_EQ(events, 0);
  calendar.pick("22/08/2026");
  EXPECT_EQ(events, 1);
}

TEST_F(Controls, ListsAndBarsTellTheirChanges) {
  LineList list(form, "List1");
  list.setListener(count(notices));
  list.add("uno");
  list.add("due");
  EXPECT_EQ(list.lines(), (std::vector<std::string>{"uno", "due"}));
  list.clear();
  EXPECT_TRUE(list.lines().empty());
  EXPECT_EQ(notices, 3);

  Progress bar(form, "Pb1");
  bar.setListener(count(events));
  bar.set(5, 10);
  bar.set(5, 10);
  EXPECT_EQ(events, 1);
  EXPECT_EQ(bar.value(), 5);
  EXPECT_EQ(bar.maximum(), 10);
}

TEST_F(Controls, AClickOnAGridMakesTheCellCurrentExceptInTheHeading) {
  GridControl grid(form, "FgEv", "A|B");
  grid.appendRow();
  std::vector<std::pair<int, int>> clicks;
  grid.onCellClick([&](int row, int column) { clicks.emplace_back(row, column); });
  grid.clickCell(0, 1);
  EXPECT_EQ(grid.current(), -1);
  grid.clickCell(1, 1);
  EXPECT_EQ(grid.current(), 1);
  EXPECT_EQ(grid.currentColumn(), 1);
  EXPECT_EQ(clicks, (std::vector<std::pair<int, int>>{{0, 1}, {1, 1}}));
  grid.onCellDoubleClick([&](int, int) { ++events; });
  grid.doubleClickCell(1, 0);
  EXPECT_EQ(events, 1);
  EXPECT_EQ(grid.currentColumn(), 0);
}

TEST_F(Controls, AGridTellsEachMoveToAnotherCellBeforeTheClick) {
  GridControl grid(form, "FgEv", "A|B");
  grid.setRows(3);
  std::vector<std::string> heard;
  grid.onMove([&] { heard.push_back("row " + std::to_string(grid.current())); });
  grid.onCellClick([&](int, int) { heard.emplace_back("click"); });
  grid.moveTo(1, 0);
  grid.moveTo(1, 0);
  grid.clickCell(1, 0);
  grid.clickCell(2, 0);
  grid.clickCell(0, 0);
  EXPECT_EQ(heard, (std::vector<std::string>{"row 1", "click", "row 2", "click", "click"}));
}

TEST_F(Controls, OnlyACellWithChoicesTakesOneOfThem) {
  GridControl grid(form, "FgF", "A|B");
  grid.appendRow();
  grid.setChoices(1, {"", "5", "10"});
  EXPECT_FALSE(grid.edit(1, 0, "5"));
  EXPECT_FALSE(grid.edit(1, 1, "7"));
  EXPECT_FALSE(grid.edit(0, 1, "5"));
  EXPECT_FALSE(grid.edit(2, 1, "5"));
  EXPECT_TRUE(grid.edit(1, 1, "10"));
  EXPECT_EQ(grid.text(1, 1), "10");
}

TEST_F(Controls, AGridTellsItsContentsAndItsLooksApart) {
  GridControl grid(form, "FgEv", "A");
  int contents = 0;
  grid.setListener(count(notices));
  grid.setGridListener([&](const GridChange&) { ++contents; });
  grid.appendRow();
  EXPECT_EQ(contents, 1);
  EXPECT_EQ(notices, 0);
  grid.setEmptyText("Nessun caso");
  grid.setEmptyText("Nessun caso");
  EXPECT_EQ(notices, 1);
  grid.grid() = Grid("Altro|Due");
  EXPECT_EQ(contents, 2);
  EXPECT_EQ(grid.columns(), 2);
}

TEST_F(Controls, AnArrayNamesItsMembersByTheirIndex) {
  ControlArray<Label> array(form, "LblPN", {1, 2, 5}, std::string("testo"));
  EXPECT_EQ(array[5].name(), "LblPN_5");
  EXPECT_EQ(form.find("LblPN_2"), &array[2]);
  EXPECT_EQ(array[1].text(), "testo");
  EXPECT_THROW(array[3], std::out_of_range);
}

TEST_F(Controls, AnArrayTakesARangeOfIndicesBothEndsIncluded) {
  ControlArray<Text> boxes(form, "txtin", range(1, 55), 2);
  EXPECT_EQ(std::distance(boxes.begin(), boxes.end()), 55);
  EXPECT_EQ(boxes[1].name(), "txtin_1");
  EXPECT_EQ(form.find("txtin_55"), &boxes[55]);
  EXPECT_EQ(boxes[55].maximumLength(), 2);
  EXPECT_THROW(boxes[0], std::out_of_range);
  EXPECT_THROW(boxes[56], std::out_of_range);
}

}  // namespace
}  // namespace trv5
