#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/controls.h"
#include "core/shell.h"

namespace trv5 {

/// One box as the user saw it.
struct ShownBox {
  enum class Kind { Message, Confirm, Input, Open, Save };
  Kind kind = Kind::Message;
  std::string title = {}, text = {};
  Icon icon = Icon::None;
  std::string initial = {}, placeholder = {};      ///< of an input box
  std::filesystem::path folder = {};               ///< of a file box
  std::string filter = {}, defaultExtension = {};  ///< of a file box
  bool operator==(const ShownBox&) const = default;
};

/// A user for tests: answers the boxes from a queue and records everything that an operation asks of the outside. A
/// question that finds the queue empty is cancelled and counted as unexpected, so that no test ever waits.
class FakeShell : public Shell {
 public:
  struct Answer {
    enum class Kind { Yes, No, Ok, Cancel, Text, File } kind;
    std::string text = {};
  };
  struct Printed {
    Grid grid;
    PrintSetup setup;
  };

  // What the user will do next, in order. A plain message takes no answer.
  void answerYes() { answers.push_back({Answer::Kind::Yes}); }
  void answerNo() { answers.push_back({Answer::Kind::No}); }
  void answerOk() { answers.push_back({Answer::Kind::Ok}); }  ///< accepts what stands in an input box
  void answerCancel() { answers.push_back({Answer::Kind::Cancel}); }
  void answerText(std::string text) { answers.push_back({Answer::Kind::Text, std::move(text)}); }
  void answerFile(const std::filesystem::path& file) { answers.push_back({Answer::Kind::File, file.string()}); }

  /// The texts of the boxes shown so far.
  std::vector<std::string> texts() const;
  /// The box shown last; an empty one when there was none.
  ShownBox lastBox() const { return shown.empty() ? ShownBox() : shown.back(); }

  /// Makes a screen known: `make` builds it on its first show.
  void addScreen(const std::string& name, std::function<std::unique_ptr<Form>()> make) {
    m_make[name] = std::move(make);
  }
  bool hasScreen(std::string_view name) const { return m_make.find(name) != m_make.end(); }
  /// The run is over: all its screens go, what the user saw stays.
  void forgetScreens();
  bool isOpen(std::string_view name) const { return m_open.find(name) != m_open.end(); }

  std::deque<Answer> answers;
  std::vector<ShownBox> shown;
  int unexpected = 0;  ///< questions that found no answer in the queue
  std::vector<Printed> prints;
  std::string clipboardText;
  std::vector<std::string> shownScreens, closedScreens;  ///< in the order of the calls
  std::vector<int> helpContexts;
  std::vector<std::string> addresses, statusTexts, reasons;
  std::vector<std::pair<int, int>> progressValues;
  DateTime clock{2026, 8, 22, 10, 30, 15};   ///< what now() tells
  int hourglasses = 0;                       ///< shown just now
  int hourglassesShown = 0;                  ///< in all
  bool holdSteps = false;                    ///< steps wait in `steps` instead of running at once
  std::vector<std::function<bool()>> steps;  ///< works that go on, as far as they wait
  int quits = 0;
  std::string offered;  ///< the name of the button that the bar offers, empty for none

  void message(const Box& box) override;
  bool confirm(const Box& box) override;
  std::optional<std::string> input(const InputBox& box) override;
  std::optional<std::filesystem::path> chooseOpen(const FileBox& box) override;
  std::optional<std::filesystem::path> chooseSave(const FileBox& box) override;
  void print(const Grid& grid, const PrintSetup& setup) override { prints.push_back({grid, setup}); }
  std::string clipboard() override { return clipboardText; }
  void setClipboard(const std::string& text) override { clipboardText = text; }
  Form& show(std::string_view screen) override;
  void close(std::string_view screen) override;
  void help(int context) override { helpContexts.push_back(context); }
  void openAddress(const std::string& url) override { addresses.push_back(url); }
  void progress(int value, int maximum) override { progressValues.emplace_back(value, maximum); }
  void status(const std::string& text) override {
    statusTexts.push_back(text);
    offered.clear();
  }
  void offer(const Button* button) override { offered = button == nullptr ? "" : button->name(); }
  void hourglass(bool shownNow) override {
    hourglasses += shownNow ? 1 : -1;
    hourglassesShown += shownNow ? 1 : 0;
  }
  void inSteps(std::function<bool()> step) override;
  /// One step of each work that waits; true while there is any.
  bool runSteps();
  DateTime now() override { return clock; }
  void quit() override { ++quits; }

 private:
  std::optional<Answer> take();
  std::optional<std::filesystem::path> file(const FileBox& box, ShownBox::Kind kind);

  std::map<std::string, std::function<std::unique_ptr<Form>()>, std::less<>> m_make;
  std::map<std::string, std::unique_ptr<Form>, std::less<>> m_open;
  // A screen may be closed by its own button: it lives on until the test ends.
  std::vector<std::unique_ptr<Form>> m_closed;
};

}  // namespace trv5
