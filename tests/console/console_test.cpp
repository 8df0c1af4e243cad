#include <QImage>

#include "console/grid_dump.h"
#include "console_world.h"

namespace trv5 {
namespace {

TEST_F(ConsoleTest, PassesOverEmptyLinesAndComments) {
  EXPECT_EQ(console.answer(""), "");
  EXPECT_EQ(console.answer("   \r"), "");
  EXPECT_EQ(console.answer("# un commento"), "");
  EXPECT_TRUE(console.allUnderstood());
}

TEST_F(ConsoleTest, WhatItDoesNotUnderstandIsAnErrorAndEndsNothing) {
  for (const char* line :
       {"ciao", "[", "{}", "[]", "[1]", "[\"vola\"]", "[\"click\"]", "[\"click\",\"INIZIO\"]",
        "[\"click\",\"INIZIO\",7]", "[\"click\",\"Manca\",\"Command1\"]", "[\"click\",\"INIZIO\",\"Command99\"]"}) {
    const json answer = json::parse(console.answer(line));
    EXPECT_FALSE(answer["ok"].get<bool>()) << line;
  }
  EXPECT_FALSE(console.allUnderstood());
  does("click", "INIZIO", "Command1");
  EXPECT_EQ(log(), Lines{"Command1"});
}

TEST_F(ConsoleTest, ClicksButtonsAndLabelsThatHaveAnOperation) {
  does("click", "INIZIO", "Command1");
  does("click", "INIZIO", "Label17");
  does("click", "INIZIO", "Hidden");
  EXPECT_EQ(log(), (Lines{"Command1", "Label17", "Hidden"}));
  refuses("click", "INIZIO", "Label5");
  refuses("click", "INIZIO", "FgF");
}

TEST_F(ConsoleTest, ADisabledControlIsAnError) {
  EveryKind& form = *made;
  form.Command1.setEnabled(false);
  form.Hidden.setEnabled(false);
  form.ComboR1.setEnabled(false);
  refuses("click", "INIZIO", "Command1");
  refuses("click", "INIZIO", "Hidden");
  refuses("set", "INIZIO", "ComboR1", 1);
  EXPECT_EQ(log(), Lines{});
  EXPECT_EQ(does("get", "INIZIO", "Command1")["enabled"], false);
}

TEST_F(ConsoleTest, DoubleClicksWhatHasAnOperationForIt) {
  does("set", "INIZIO", "TxtNumeri", "01-30");
  does("dblclick", "INIZIO", "TxtNumeri");
  EXPECT_EQ(does("get", "INIZIO", "TxtNumeri")["text"], "");
  refuses("dblclick", "INIZIO", "Command1");
}

TEST_F(ConsoleTest, AListTakesAnIndexOrATextAndFiresAlsoForTheSame) {
  does("set", "INIZIO", "ComboR1", 1);
  does("set", "INIZIO", "ComboR1", "CA");
  does("set", "INIZIO", "ComboR1", "FI");
  EXPECT_EQ(log(), (Lines{"ComboR1 CA", "ComboR1 CA", "ComboR1 FI"}));
  const json list = does("get", "INIZIO", "ComboR1");
  EXPECT_EQ(list["index"], 2);
  EXPECT_EQ(list["text"], "FI");
  EXPECT_EQ(does("list", "INIZIO", "ComboR1")["items"], json({"BA", "CA", "FI"}));
  refuses("set", "INIZIO", "ComboR1", 3);
  refuses("set", "INIZIO", "ComboR1", -1);
  refuses("set", "INIZIO", "ComboR1", "XX");
  refuses("set", "INIZIO", "ComboR1");
  EXPECT_EQ(does("get", "INIZIO", "ComboR1")["index"], 2);
}

TEST_F(ConsoleTest, AnEditableListTakesWhatIsTyped) {
  does("set", "INIZIO", "ComboNC", "15");
  EXPECT_EQ(does("get", "INIZIO", "ComboNC")["index"], -1);
  EXPECT_EQ(does("get", "INIZIO", "ComboNC")["text"], "15");
  does("set", "INIZIO", "ComboNC", "15");
  does("set", "INIZIO", "ComboNC", "10");
  EXPECT_EQ(does("get", "INIZIO", "ComboNC")["index"], 2);
  EXPECT_EQ(log(), (Lines{"ComboNC 15", "ComboNC 10"}));
}

TEST_F(ConsoleTest, TextScrollBarAndTabFireOnlyWhenTheyChange) {
  does("set", "INIZIO", "hs1", 7000);
  does("set", "INIZIO", "hs1", 7000);
  does("set", "INIZIO", "SSTab1", 0);
  does("set", "INIZIO", "SSTab1", 0);
  does("set", "INIZIO", "SSTab1", 1);
  EXPECT_EQ(log(), (Lines{"hs1 7000", "SSTab1 0", "SSTab1 1"}));
  const json bar = does("get", "INIZIO", "hs1");
  EXPECT_EQ(bar["value"], 7000);
  EXPECT_EQ(bar["minimum"], 1);
  EXPECT_EQ(bar["maximum"], 7370);
  refuses("set", "INIZIO", "SSTab1", 7);
  refuses("set", "INIZIO", "hs1", "molto");
}

TEST_F(ConsoleTest, CheckBoxesTextsAndCalendarsTakeTheirValues) {
  does("set", "INIZIO", "Check1", 1);
  does("set", "INIZIO", "Check1", 1);
  EXPECT_EQ(does("get", "INIZIO", "Check1")["checked"], true);
  refuses("set", "INIZIO", "Check1", 2);
  does("set", "INIZIO", "MonthView1", "22/08/2026");
  EXPECT_EQ(does("get", "INIZIO", "MonthView1")["text"], "22/08/2026");
  refuses("set", "INIZIO", "MonthView1", "31/02/2026");
  EXPECT_EQ(log(), (Lines{"Check1", "MonthView1 22/08/2026"}));
  does("set", "INIZIO", "TxtNumeri", "01-30-60-90");
  EXPECT_EQ(does("get", "INIZIO", "TxtNumeri")["text"], "01-30-60") << "eight characters";
  does("set", "INIZIO", "Text3", "perché");
  EXPECT_EQ(does("get", "INIZIO", "Text3")["text"], "per") << "without a widget too";
  refuses("set", "INIZIO", "Label5", "x");
}

TEST_F(ConsoleTest, TellsColoursTooltipsAndTheScreen) {
  made->Command1.setBack(0x00FF00);
  made->Command1.setFore(0x008000);
  made->Command1.setToolTip("Fa qualcosa");
  const json button = does("get", "INIZIO", "Command1");
  EXPECT_EQ(button["back"], "00FF00");
  EXPECT_EQ(button["fore"], "008000");
  EXPECT_EQ(button["tooltip"], "Fa qualcosa");
  EXPECT_EQ(button["text"], "Premi");
  const json screen = does("get", "INIZIO", "");
  EXPECT_EQ(screen["title"], "Prova di tutto");
  EXPECT_EQ(screen["help"], 299);
}

TEST_F(ConsoleTest, ClicksCellsAndMakesThemCurrent) {
  does("cell", "INIZIO", "FgF", 1, 1, "click");
  does("cell", "INIZIO", "FgF", 2, 0, "dblclick");
  EXPECT_EQ(log(), (Lines{"FgF 1 1", "FgF due volte 2"}));
  EXPECT_EQ(does("dump", "INIZIO", "FgF")["current"], 2);
  does("cell", "INIZIO", "FgZ100", 0, 0, "click");
  refuses("cell", "INIZIO", "FgF", 3, 0, "click");
  refuses("cell", "INIZIO", "FgF", 0, 3, "click");
  refuses("cell", "INIZIO", "FgF", 1, 1, "tocca");
  refuses("cell", "INIZIO", "Command1", 0, 0, "click");
}

TEST_F(ConsoleTest, AClickOnTheHeadingDoesNothingAsOnScreen) {
  does("cell", "INIZIO", "FgF", 0, 1, "click");
  does("cell", "INIZIO", "FgF", 0, 1, "dblclick");
  EXPECT_EQ(log(), Lines{});
  EXPECT_EQ(does("dump", "INIZIO", "FgF")["current"], -1);
}

TEST_F(ConsoleTest, EditsEditableCellsAlone) {
  does("edit", "INIZIO", "FgF", 1, 1, "2");
  EXPECT_EQ(does("dump", "INIZIO", "FgF")["rows"][1][1], "2");
  refuses("edit", "INIZIO", "FgF", 1, 0, "2");
  refuses("edit", "INIZIO", "FgF", 1, 1, "9");
  refuses("edit", "INIZIO", "FgF", 0, 1, "1");
  refuses("edit", "INIZIO", "FgF", 99, 1, "1");
}

TEST_F(ConsoleTest, DumpsTextsColoursBarsAndWhatIsHidden) {
  json dump = does("dump", "INIZIO", "FgF");
  EXPECT_EQ(dump["rows"], json({{"a", "Sorte", "c"}, {"7361 \"è\"", "", ""}, {"", "", ""}}));
  EXPECT_EQ(dump["back"], json::array({json({1, 1, "80FF80"})}));
  EXPECT_EQ(dump["fore"], json::array({json({2, 0, "FF0000"})}));
  EXPECT_EQ(dump["bold"], json::array({json({2, 1})}));
  EXPECT_EQ(dump["bars"], json::array({json({1, 2, 40.5, "00FF00"})}));
  EXPECT_EQ(dump["hidden_rows"], json({2}));
  EXPECT_EQ(dump["hidden_cols"], json({2}));
  EXPECT_EQ(dump["current"], -1);
  made->FgF.setBack(1, 1, kWhite);
  made->FgF.setFore(2, 0, kBlack);
  dump = does("dump", "INIZIO", "FgF");
  EXPECT_EQ(dump["back"], json::array());
  EXPECT_EQ(dump["fore"], json::array());
  refuses("dump", "INIZIO", "Command1");
}

TEST_F(ConsoleTest, ListsTheControlsWithTheirKindsAndHowFarTheyGo) {
  const json controls = does("controls", "INIZIO")["controls"];
  const auto outline = [&controls](const char* name) {
    for (const json& control : controls)
      if (control["name"] == name) return control;
    return json();
  };
  const auto common = [](const char* name, const char* kind, bool acts) {
    return json{{"name", name}, {"kind", kind}, {"enabled", true}, {"acts", acts}, {"double", false}};
  };
  const auto with = [](json base, const json& more) {
    base.update(more);
    return base;
  };
  EXPECT_EQ(outline("Command1"), common("Command1", "button", true));
  EXPECT_EQ(outline("Label5"), common("Label5", "label", false));
  EXPECT_EQ(outline("Check1"), common("Check1", "check", true));
  EXPECT_EQ(outline("ComboNC"), with(common("ComboNC", "combo", true), {{"items", 3}, {"editable", true}}));
  EXPECT_EQ(outline("hs1"), with(common("hs1", "scroll", true), {{"minimum", 1}, {"maximum", 7370}}));
  EXPECT_EQ(outline("SSTab1"), with(common("SSTab1", "tabs", true), {{"tabs", {1, 0}}}));
  EXPECT_EQ(outline("TxtNumeri"), with(common("TxtNumeri", "text", false), {{"length", 8}, {"double", true}}));
  EXPECT_EQ(outline("FgF"), with(common("FgF", "grid", true),
                                 {{"rows", 3}, {"columns", 3}, {"headings", 1}, {"choices", {{"1", {"", "1", "2"}}}}}));
  EXPECT_EQ(outline("FgZ100")["acts"], false) << "without a widget too";
  EXPECT_EQ(outline("List1")["kind"], "lines");
  EXPECT_EQ(outline("MonthView1")["kind"], "calendar");
  made->Command1.setEnabled(false);
  EXPECT_EQ(does("controls", "INIZIO")["controls"][0]["enabled"], false);
  refuses("controls", "Sommativi1");
  refuses("controls");
}

TEST_F(ConsoleTest, TellsTheMemoryInUse) {
  const auto inUse = [this] { return does("memory")["bytes"].get<long long>(); };
  const long long before = inUse();
  EXPECT_GT(before, 100000);
  const std::vector<char> more(50000000, 'x');
  EXPECT_GE(inUse(), before + 50000000);
  EXPECT_EQ(more.back(), 'x');
}

TEST(GridDump, IsJsonForAnyText) {
  Grid grid(3, 1);
  grid.setText(0, 0, "\"\\\t\x01");
  grid.setText(1, 0, "è 1° \xE2\x82\xAC");
  grid.setText(2, 0, "rotto \xFF");
  const json dump = json::parse("{" + dumpFields(grid) + "}");
  EXPECT_EQ(dump["rows"][0][0], "\"\\\t\x01");
  EXPECT_EQ(dump["rows"][1][0], "è 1° €");
}

TEST_F(ConsoleTest, TheClipboardIsReadAndSet) {
  does("clipboard", "uno\tdue\r\n3");
  EXPECT_EQ(does("clipboard")["text"], "uno\tdue\r\n3");
}

TEST_F(ConsoleTest, TheClockStandsStillWhereItWasStopped) {
  does("clock", "22/08/2026 10:42:07");
  does("click", "INIZIO", "Now");
  EXPECT_EQ(log(), Lines{"10:42:07"});
  for (const char* wrong : {"22/08/2026", "30/02/2026 10:00:00", "22/08/2026 25:00:00", "22/08/2026 10:61:00",
                            "22/08/2026 10:00:60", "31/02/2026 10:00:00", "2x/08/2026 10:00:00", "22/08/2026 -1:00:00",
                            "22/08/2026 xx:yy:zz", "22/08/2026  1:00:00", "ieri"})
    refuses("clock", wrong);
}

TEST_F(ConsoleTest, ANumberThatDoesNotFitIsAnError) {
  const std::int64_t one = 4294967297;  // 1 in the lower 32 bits
  const std::uint64_t highest = 18446744073709551615U;
  for (const char* const control : {"ComboR1", "hs1", "Check1", "SSTab1"}) {
    refuses("set", "INIZIO", control, one);
    refuses("set", "INIZIO", control, -one + 2);
    refuses("set", "INIZIO", control, highest);
  }
  refuses("set", "INIZIO", "hs1", 0);
  refuses("set", "INIZIO", "hs1", 7371);
  refuses("cell", "INIZIO", "FgF", one, 1, "click");
  refuses("cell", "INIZIO", "FgF", 1, one, "click");
  refuses("edit", "INIZIO", "FgF", one, 1, "2");
  refuses("edit", "INIZIO", "FgF", 1, one, "2");
  const std::string file = (world.folder / "foto.png").string();
  for (const json& wrong : {json{{"width", one + 700}}, json{{"height", one + 700}}, json{{"width", 0}}})
    refuses("shot", "INIZIO", file, wrong);
  EXPECT_EQ(log(), Lines{});
  does("set", "INIZIO", "ComboNC", "x");
  does("set", "INIZIO", "TxtNumeri", highest);
  EXPECT_EQ(does("get", "INIZIO", "TxtNumeri")["text"], "18446744") << "a text of eight characters";
}

TEST_F(ConsoleTest, TakesPicturesInTheSizeScaleAndThemeAskedFor) {
  const std::string file = (world.folder / "foto.png").string();
  does("shot", "INIZIO", file);
  EXPECT_EQ(QImage(qs(file)).size(), QSize(700, 900));
  does("shot", "INIZIO", file, json{{"width", 900}, {"height", 1000}, {"dark", true}, {"points", 12}});
  const QImage dark(qs(file));
  EXPECT_EQ(dark.size(), QSize(900, 1000));
  EXPECT_EQ(dark.pixel(2, 990) & 0xFFFFFFU, kDarkColours.field);
  does("shot", "INIZIO", file);
  EXPECT_EQ(QImage(qs(file)).size(), QSize(700, 900)) << "as before";
  EXPECT_EQ(QImage(qs(file)).pixel(2, 890) & 0xFFFFFFU, kLightColours.field);
  refuses("shot", "INIZIO", (world.folder / "manca" / "foto.png").string());
  refuses("shot", "INIZIO", file, json{{"colore", "rosso"}});
}

TEST_F(ConsoleTest, StartsAgainAndForgetsTheRunBefore) {
  does("click", "INIZIO", "Command1");
  does("start", world.folder.path().string());
  EXPECT_EQ(does("list", "INIZIO", "List1")["items"], json::array());
  EXPECT_EQ(does("screens")["screens"], json({"INIZIO"}));
}

TEST(ConsoleWithoutStart, TellsThatTheProgramIsNotStarted) {
  Console console(Theme::edit());
  EXPECT_FALSE(json::parse(console.answer("[\"click\",\"INIZIO\",\"Command2\"]"))["ok"].get<bool>());
  EXPECT_EQ(json::parse(console.answer("[\"screens\"]"))["screens"], json::array());
  EXPECT_FALSE(console.wantsToQuit());
  EXPECT_TRUE(json::parse(console.answer("[\"quit\"]"))["ok"].get<bool>());
  EXPECT_TRUE(console.wantsToQuit());
}

}  // namespace
}  // namespace trv5
