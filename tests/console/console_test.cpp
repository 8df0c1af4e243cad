#include "console/console.h"

#include <gtest/gtest.h>

#include <QImage>

#include "console/grid_dump.h"
#include "console/key_names.h"
#include "screens/kit/screen.h"
#include "screens/shell/registry.h"
#include "support/program_world.h"

namespace trv5 {
namespace {

using nlohmann::json;

// A screen with a control of each kind; the last ones have no widget.
class EveryKind : public Form {
 public:
  explicit EveryKind(Program& program) : Form(program.shell, "INIZIO", "Prova di tutto", 299) {
    Command1.onEvent([this] { log.add("Command1"); });
    Label17.onEvent([this] { log.add("Label17"); });
    TxtNumeri.onDoubleClick([this] { TxtNumeri.set(""); });
    ComboR1.setItems({"BA", "CA", "FI"});
    ComboR1.onEvent([this] { log.add("ComboR1 " + ComboR1.text()); });
    ComboNC.setItems({"1", "2", "10"});
    ComboNC.onEvent([this] { log.add("ComboNC " + ComboNC.text()); });
    hs1.onEvent([this] { log.add("hs1 " + std::to_string(hs1.value())); });
    Check1.onEvent([this] { log.add("Check1"); });
    SSTab1.onEvent([this] { log.add("SSTab1 " + std::to_string(SSTab1.index())); });
    MonthView1.onEvent([this] { log.add("MonthView1 " + MonthView1.date()); });
    Hidden.onEvent([this] { log.add("Hidden"); });
    FgF.onCellClick(
        [this](int row, int column) { log.add("FgF " + std::to_string(row) + " " + std::to_string(column)); });
    FgF.onCellDoubleClick([this](int row, int) { log.add("FgF due volte " + std::to_string(row)); });
    FgF.setRows(3);
    FgF.setText(1, 0, "7361 \"è\"");
    FgF.setBack(1, 1, 0x80FF80);
    FgF.setFore(2, 0, 0xFF0000);
    FgF.setBold(2, 1);
    FgF.setChoices(1, {"", "1", "2"});
    FgF.setColumnHidden(2);
    FgF.setRowHidden(2, true);
    FgF.setBar(1, 2, {40.5, 0x00FF00});
    Ask.onEvent([this] {
      this->shell().message({.text = "Primo"});
      log.add(this->shell().confirm({.text = "Vero?", .title = "Domanda", .icon = Icon::Question}) ? "sì" : "no");
      log.add(this->shell().input({.text = "Data", .title = "Cerca", .initial = "01/01/2026"}).value_or("(annullato)"));
      log.add(this->shell()
                  .chooseSave({.title = "Salva", .folder = "/tmp", .filter = "*.txt", .defaultExtension = "txt"})
                  .value_or("(annullato)")
                  .string());
      this->shell().openAddress("http://esempio.it");
    });
    Print.onEvent(
        [this] { this->shell().print(FgF, {.title = "Formule", .landscape = false, .horizontalMargin = 400}); });
    Now.onEvent([this] { log.add(timeText(this->shell().now())); });
  }

  Button Command1{*this, "Command1", "Premi"}, Ask{*this, "Ask", "Chiede"}, Print{*this, "Print", "Stampa"},
      Now{*this, "Now", "Ora"};
  Label Label17{*this, "Label17", "Seleziona tutti"}, Label5{*this, "Label5", "Testo"};
  Text TxtNumeri{*this, "TxtNumeri", 8};
  Combo ComboR1{*this, "ComboR1"}, ComboNC{*this, "ComboNC", Combo::Typing::Yes};
  Scroll hs1{*this, "hs1", 1, 7370};
  Check Check1{*this, "Check1", "R"};
  Tabs SSTab1{*this, "SSTab1", {{1, "Selezioni"}, {0, "Elenco"}}};
  Calendar MonthView1{*this, "MonthView1"};
  GridControl FgF{*this, "FgF", "a|Sorte|c"};
  LineList log{*this, "List1"};
  Button Hidden{*this, "Hidden", "Nascosto"};
  GridControl FgZ100{*this, "FgZ100", "a|b"};
  Text Text3{*this, "Text3", 3};
};

class EveryScreen : public Screen {
 public:
  explicit EveryScreen(Form& form) : Screen(form) {
    setLayout(column({kit.button("Command1", {.mnemonic = 'P'}), kit.button("Ask"), kit.button("Print"),
                      kit.button("Now"), kit.swatch("Label17", 0x00FF00), kit.label("Label5"), kit.edit("TxtNumeri"),
                      kit.combo("ComboR1"), kit.combo("ComboNC"), kit.scroll("hs1"), kit.check("Check1"),
                      kit.tabs("SSTab1", {new QWidget, new QWidget}), kit.calendar("MonthView1"), kit.grid("FgF"),
                      kit.lines("List1", 2)}));
  }
};

class ConsoleTest : public testing::Test {
 protected:
  void SetUp() override {
    world.makeMainFor({});
    does("start", world.folder.path().string());
    does("messages");
  }

  static inline EveryKind* made = nullptr;  // the form of the screen that is open

  static std::vector<ScreenEntry> screens() {
    return {{.name = "INIZIO",
             .place = Place::Window,
             .size = QSize(700, 900),
             .makeForm =
                 [](Program& program) {
                   auto form = std::make_unique<EveryKind>(program);
                   made = form.get();
                   return form;
                 },
             .makeWidget = [](Form& form) { return new EveryScreen(form); }}};
  }

  template <class... Words>
  json say(const Words&... words) {
    return json::parse(console.answer(json::array({words...}).dump()));
  }
  template <class... Words>
  json does(const Words&... words) {
    json answer = say(words...);
    EXPECT_TRUE(answer["ok"].get<bool>()) << answer;
    return answer;
  }
  template <class... Words>
  void refuses(const Words&... words) {
    const json answer = say(words...);
    EXPECT_FALSE(answer["ok"].get<bool>()) << answer;
    EXPECT_FALSE(answer["error"].get<std::string>().empty());
  }
  std::vector<std::string> log() {
    std::vector<std::string> lines = does("list", "INIZIO", "List1")["items"];
    std::vector<std::string> fresh(lines.begin() + static_cast<std::ptrdiff_t>(m_seen), lines.end());
    m_seen = lines.size();
    return fresh;
  }
  using Lines = std::vector<std::string>;

  ProgramWorld world;
  Theme& theme = Theme::edit();
  Console console{theme, screens()};

 private:
  std::size_t m_seen = 0;
};

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

TEST(GridDump, IsJsonForAnyText) {
  Grid grid(3, 1);
  grid.setText(0, 0, "\"\\\t\x01");
  grid.setText(1, 0, "è 1° \xE2\x82\xAC");
  grid.setText(2, 0, "rotto \xFF");
  const json dump = json::parse("{" + dumpFields(grid) + "}");
  EXPECT_EQ(dump["rows"][0][0], "\"\\\t\x01");
  EXPECT_EQ(dump["rows"][1][0], "è 1° €");
}

TEST_F(ConsoleTest, AnswersBoxesInOrderAndRecordsThem) {
  does("answer", "yes");
  does("answer", "text", "22/08/2026");
  does("answer", "file", "/tmp/uscita");
  does("click", "INIZIO", "Ask");
  EXPECT_EQ(log(), (Lines{"sì", "22/08/2026", "/tmp/uscita.txt"}));
  const json shown = does("messages")["messages"];
  ASSERT_EQ(shown.size(), 5u);
  EXPECT_EQ(shown[0], (json{{"kind", "message"}, {"title", "Avviso"}, {"text", "Primo"}, {"icon", "exclamation"}}));
  EXPECT_EQ(shown[1], (json{{"kind", "confirm"}, {"title", "Domanda"}, {"text", "Vero?"}, {"icon", "question"}}));
  EXPECT_EQ(shown[2]["kind"], "input");
  EXPECT_EQ(shown[2]["default"], "01/01/2026");
  EXPECT_EQ(shown[3]["kind"], "save");
  EXPECT_EQ(shown[3]["folder"], "/tmp");
  EXPECT_EQ(shown[3]["filter"], "*.txt");
  EXPECT_EQ(shown[4]["kind"], "address");
  EXPECT_EQ(shown[4]["text"], "http://esempio.it");
  EXPECT_EQ(does("messages")["messages"], json::array());
}

TEST_F(ConsoleTest, BoxesThatFindNoAnswerAreCancelled) {
  does("click", "INIZIO", "Ask");
  EXPECT_EQ(log(), (Lines{"no", "(annullato)", "(annullato)"}));
}

TEST_F(ConsoleTest, OkAcceptsTheDefaultAndAcknowledgesAMessage) {
  does("answer", "ok");  // the message
  does("answer", "no");
  does("answer", "ok");
  does("answer", "cancel");
  does("click", "INIZIO", "Ask");
  EXPECT_EQ(log(), (Lines{"no", "01/01/2026", "(annullato)"}));
  refuses("answer", "forse");
  refuses("answer", "file");
}

TEST_F(ConsoleTest, PrintsIntoThePdfThatTheAnswerNames) {
  const std::string pdf = (world.folder / "formule.pdf").string();
  does("answer", "file", pdf);
  does("click", "INIZIO", "Print");
  EXPECT_EQ(readBytes(pdf).substr(0, 5), "%PDF-");
  const json shown = does("messages")["messages"][0];
  EXPECT_EQ(shown["kind"], "print");
  EXPECT_EQ(shown["title"], "Formule");
  EXPECT_EQ(shown["orientation"], "portrait");
  EXPECT_EQ(shown["margin"], 400);
}

TEST_F(ConsoleTest, TheClipboardIsReadAndSet) {
  does("clipboard", "uno\tdue\r\n3");
  EXPECT_EQ(does("clipboard")["text"], "uno\tdue\r\n3");
}

TEST_F(ConsoleTest, TheClockStandsStillWhereItWasStopped) {
  does("clock", "22/08/2026 10:42:07");
  does("click", "INIZIO", "Now");
  EXPECT_EQ(log(), Lines{"10:42:07"});
  for (const char* wrong : {"22/08/2026", "30/02/2026 10:00:00", "22/08/2026 25:00:00", "ieri"})
    refuses("clock", wrong);
}

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
  refuses("key", "INIZIO", "Hidden", "Enter");
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
