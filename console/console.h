#pragma once

#include <functional>
#include <map>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>

#include "console/console_shell.h"
#include "core/program.h"
#include "screens/kit/theme.h"

class QWidget;

namespace trv5 {

/// Drives the program by lines: each a JSON array, each answered by a JSON object. It finds screens and controls by
/// their names and knows nothing of what they do; it acts on the real widgets, and on the control itself where that has
/// no place on screen.
class Console {
 public:
  explicit Console(Theme& theme, std::vector<ScreenEntry> screens = allScreens());
  ~Console();

  /// The answer to a line, without its end; empty for a line that is passed over.
  std::string answer(const std::string& line);
  bool wantsToQuit() const { return m_quit; }
  /// True when every line so far was understood and done.
  bool allUnderstood() const { return m_understood; }

 private:
  using Arguments = nlohmann::json;
  // The fields of the answer, without braces and without "ok".
  using Command = std::string (Console::*)(const Arguments&);

  std::string start(const Arguments& line);
  std::string click(const Arguments& line);
  std::string doubleClick(const Arguments& line);
  std::string set(const Arguments& line);
  std::string get(const Arguments& line);
  std::string cell(const Arguments& line);
  std::string edit(const Arguments& line);
  std::string dump(const Arguments& line);
  std::string list(const Arguments& line);
  std::string queueAnswer(const Arguments& line);
  std::string messages(const Arguments& line);
  std::string clipboard(const Arguments& line);
  std::string key(const Arguments& line);
  std::string clock(const Arguments& line);
  std::string focus(const Arguments& line);
  std::string screens(const Arguments& line);
  std::string controls(const Arguments& line);
  std::string memory(const Arguments& line);
  std::string shot(const Arguments& line);
  std::string quit(const Arguments& line);

  // What a line names: a control of a form, the widget that shows it, or both.
  struct Target {
    Form* form = nullptr;
    QWidget* screen = nullptr;
    Control* control = nullptr;
    QWidget* widget = nullptr;
  };
  Target screenOf(const Arguments& line) const;
  Target target(const Arguments& line) const;
  /// The same for a control that the user may act on: a disabled one is an error.
  Target enabledTarget(const Arguments& line) const;
  ConsoleShell& shell() const;
  void tidy();

  static const std::map<std::string, Command, std::less<>>& commands();

  Theme& m_theme;
  std::vector<ScreenEntry> m_screens;
  Script m_script;
  // The program goes after the screens, which show it.
  std::unique_ptr<Program> m_program;
  std::unique_ptr<ConsoleShell> m_shell;
  bool m_quit = false, m_understood = true;
};

}  // namespace trv5
