#pragma once

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "console/console.h"
#include "screens/kit/screen.h"
#include "screens/shell/registry.h"
#include "support/program_world.h"

namespace trv5 {

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

}  // namespace trv5
