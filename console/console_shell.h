#pragma once

#include <deque>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "screens/shell/qt_shell.h"

namespace trv5 {

/// What stands in for the user, from one start of the program to the next.
struct Script {
  enum class Answer { Yes, No, Ok, Cancel, Text, File };
  struct Queued {
    Answer answer;
    std::string text;
  };

  std::deque<Queued> answers;  ///< to the next boxes, in order
  nlohmann::json messages = nlohmann::json::array();
  std::optional<DateTime> clock;  ///< where it stands still
};

/// The user's side without a user: boxes take their answers from a queue and are kept on record; the clock can be
/// stopped. Screens are the real ones.
class ConsoleShell : public QtShell {
  Q_OBJECT
 public:
  ConsoleShell(Script& script, std::vector<ScreenEntry> screens) : QtShell(std::move(screens)), m_script(script) {}

  /// True after an operation has ended the program.
  bool ended() const { return m_ended; }

  void message(const Box& box) override;
  bool confirm(const Box& box) override;
  std::optional<std::string> input(const InputBox& box) override;
  std::optional<std::filesystem::path> chooseOpen(const FileBox& box) override;
  std::optional<std::filesystem::path> chooseSave(const FileBox& box) override;
  void print(const Grid& grid, const PrintSetup& setup) override;
  void openAddress(const std::string& url) override;
  DateTime now() override;
  void quit() override { m_ended = true; }

 private:
  /// The next answer; a box that finds none is cancelled.
  Script::Queued take();
  std::optional<std::filesystem::path> chooseFile(const FileBox& box, const char* kind);
  nlohmann::json& record(const char* kind, const std::string& title, const std::string& text, const char* icon);

  Script& m_script;
  bool m_ended = false;
};

}  // namespace trv5
