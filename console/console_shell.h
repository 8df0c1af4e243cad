#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "screens/shell/qt_shell.h"

namespace trv5 {

/// What stands in for the user, from one start of the program to the next.
struct Script {
  enum class Answer { Yes, No, Ok, Cancel, Text, File };
  struct Queued {
    Answer answer;
    std::string text;
  };

  /// A box that was shown, with what its kind has.
  struct Shown {
    std::string kind, title, text;
    std::string icon = "none";
    std::optional<std::string> initial = {}, folder = {}, filter = {}, orientation = {}, reason = {};
    std::optional<int> margin = {};  ///< twentieths of a point
  };

  std::deque<Queued> answers;  ///< to the next boxes, in order
  std::vector<Shown> messages;
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
  /// The next line finds everything done.
  void inSteps(std::function<bool()> step) override;
  DateTime now() override;
  void quit() override { m_ended = true; }

 private:
  /// The next answer; a box that finds none is cancelled.
  Script::Queued take();
  std::optional<std::filesystem::path> chooseFile(const FileBox& box, const char* kind);
  void record(const char* kind, const Box& box);

  Script& m_script;
  bool m_ended = false;
};

}  // namespace trv5
