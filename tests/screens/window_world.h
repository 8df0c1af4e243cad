#pragma once

#include <QApplication>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "core/program.h"
#include "form_world.h"
#include "screens/shell/Container.h"
#include "screens/shell/qt_shell.h"
#include "support/program_world.h"

namespace trv5 {

/// The windows of the desktop program without its boxes: they are kept on record, and files come from a queue.
class QuietShell : public QtShell {
 public:
  using QtShell::QtShell;

  void message(const Box& box) override { messages.push_back(box.text); }
  bool confirm(const Box& box) override {
    messages.push_back(box.text);
    return agrees;
  }
  std::optional<std::string> input(const InputBox& box) override {
    messages.push_back(box.text);
    return std::nullopt;
  }
  std::optional<std::filesystem::path> chooseOpen(const FileBox&) override {
    if (files.empty()) return std::nullopt;
    const std::filesystem::path file = files.front();
    files.pop_front();
    return file;
  }
  void quit() override { ++quits; }

  std::vector<std::string> messages;
  std::deque<std::filesystem::path> files;
  bool agrees = false;  ///< what the user says to every question
  int quits = 0;
};

/// A small screen to open inside the shell.
class SmallForm : public Form {
 public:
  SmallForm(Shell& shell, std::string name, int help = 0) : Form(shell, std::move(name), "Piccola", help) {
    Command1.onEvent([this] { this->shell().close(this->name()); });
  }
  Button Command1{*this, "Command1", "Chiude"};
  Text Text1{*this, "Text1"};
};

class SmallScreen : public Screen {
 public:
  explicit SmallScreen(SmallForm& form) : Screen(form) {
    setLayout(column({kit.edit("Text1"), kit.button("Command1", {.mnemonic = 'C'}), Piece::gap()}));
    layout()->setContentsMargins(8, 8, 8, 8);
  }
};

inline ScreenEntry smallEntry(const std::string& name, Place place) {
  return {.name = name,
          .place = place,
          .size = QSize(300, 200),
          .makeForm = [name](Program& program) { return std::make_unique<SmallForm>(program.shell, name); },
          .makeWidget = [](Form& form) { return new SmallScreen(static_cast<SmallForm&>(form)); }};
}

/// An installation with three draws, started with the real windows.
struct WindowWorld {
  static std::vector<ScreenEntry> screens() {
    std::vector<ScreenEntry> all = allScreens();
    std::erase_if(
        all, [](const ScreenEntry& entry) { return entry.place != Place::Window && entry.name != "VerificaArchivio"; });
    all.push_back(smallEntry("Sommativi1", Place::Fills));
    all.push_back(smallEntry("archivio", Place::Fills));
    all.push_back(smallEntry("Estrazioni_minielenco", Place::Framed));
    return all;
  }

  WindowWorld() {
    files.makeBoth({drawOf("07/01/1939", {{"BA", {58, 22, 47, 49, 69}}}),
                    drawOf("14/01/1939", {{"RO", {1, 2, 3, 4, 5}}}),
                    drawOf("04/02/1939", {{"NZ", {90, 89, 88, 87, 86}}})});
    shell.attach(program);
  }
  ~WindowWorld() {
    shell.closeAll();
    shell.purge();
  }

  void start() {
    shell.show("INIZIO");
    settle();
  }
  ContainerScreen& proceed() {
    start();
    button("INIZIO", "Command2").click();
    settle();
    auto* const window = qobject_cast<ContainerScreen*>(shell.widget("Container"));
    EXPECT_NE(window, nullptr);
    window->resize(1366, 768);
    window->activateWindow();
    settle();
    return *window;
  }
  QAbstractButton& button(const char* screen, const char* name) {
    auto* const found = qobject_cast<QAbstractButton*>(shell.widget(screen, name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }

  ProgramWorld files;
  QuietShell shell{screens()};
  Program program{shell, files.folder.path()};
};

}  // namespace trv5
