#include "console/console_shell.h"

#include <chrono>
#include <thread>

#include "screens/kit/grid_print.h"

namespace trv5 {

using Answer = Script::Answer;

namespace {

const char* nameOf(Icon icon) {
  switch (icon) {
    case Icon::Information:
      return "information";
    case Icon::Exclamation:
      return "exclamation";
    case Icon::Critical:
      return "critical";
    case Icon::Question:
      return "question";
    case Icon::None:
      break;
  }
  return "none";
}

}  // namespace

Script::Queued ConsoleShell::take() {
  if (m_script.answers.empty()) return {Answer::Cancel, {}};
  Script::Queued next = std::move(m_script.answers.front());
  m_script.answers.pop_front();
  return next;
}

void ConsoleShell::record(const char* kind, const Box& box) {
  Script::Shown shown{.kind = kind, .title = box.title, .text = box.text, .icon = nameOf(box.icon)};
  if (!box.reason.empty()) shown.reason = box.reason;
  m_script.messages.push_back(std::move(shown));
}

// A message asks nothing: it takes only an answer that is meant for it, so that the answer to the question behind it
// stays in the queue.
void ConsoleShell::message(const Box& box) {
  record("message", box);
  if (!m_script.answers.empty() &&
      (m_script.answers.front().answer == Answer::Ok || m_script.answers.front().answer == Answer::Cancel))
    m_script.answers.pop_front();
}

bool ConsoleShell::confirm(const Box& box) {
  record("confirm", box);
  const Answer answer = take().answer;
  return answer == Answer::Yes || answer == Answer::Ok;
}

std::optional<std::string> ConsoleShell::input(const InputBox& box) {
  m_script.messages.push_back({.kind = "input", .title = box.title, .text = box.text, .initial = box.initial});
  const Script::Queued answer = take();
  if (answer.answer == Answer::Text) return answer.text;
  if (answer.answer == Answer::Ok) return box.initial;
  return std::nullopt;
}

std::optional<std::filesystem::path> ConsoleShell::chooseFile(const FileBox& box, const char* kind) {
  m_script.messages.push_back(
      {.kind = kind, .title = box.title, .text = {}, .folder = box.folder.string(), .filter = box.filter});
  const Script::Queued answer = take();
  if (answer.answer != Answer::File || answer.text.empty()) return std::nullopt;
  std::filesystem::path file(answer.text);
  // A name typed without extension takes the dialog's own.
  if (!file.has_extension() && !box.defaultExtension.empty()) file += "." + box.defaultExtension;
  return file;
}

std::optional<std::filesystem::path> ConsoleShell::chooseOpen(const FileBox& box) {
  return chooseFile(box, "open");
}

std::optional<std::filesystem::path> ConsoleShell::chooseSave(const FileBox& box) {
  return chooseFile(box, "save");
}

void ConsoleShell::print(const Grid& grid, const PrintSetup& setup) {
  m_script.messages.push_back({.kind = "print",
                               .title = setup.title,
                               .text = {},
                               .orientation = setup.landscape ? "landscape" : "portrait",
                               .margin = setup.horizontalMargin});
  const Script::Queued answer = take();
  if (answer.answer == Answer::File) printToPdf(grid, withHeader(grid, setup), answer.text);
}

void ConsoleShell::openAddress(const std::string& url) {
  m_script.messages.push_back({.kind = "address", .title = {}, .text = url});
}

void ConsoleShell::inSteps(std::function<bool()> step) {
  while (step()) std::this_thread::sleep_for(std::chrono::milliseconds(2));
}

DateTime ConsoleShell::now() {
  return m_script.clock ? *m_script.clock : QtShell::now();
}

}  // namespace trv5
