#include "support/fake_shell.h"

#include <chrono>
#include <thread>

#include "core/errors.h"

namespace trv5 {

std::vector<std::string> FakeShell::texts() const {
  std::vector<std::string> all;
  for (const ShownBox& box : shown) all.push_back(box.text);
  return all;
}

std::optional<FakeShell::Answer> FakeShell::take() {
  if (answers.empty()) {
    ++unexpected;
    return std::nullopt;
  }
  Answer answer = std::move(answers.front());
  answers.pop_front();
  return answer;
}

void FakeShell::message(const Box& box) {
  shown.push_back({.kind = ShownBox::Kind::Message, .title = box.title, .text = box.text, .icon = box.icon});
  reasons.push_back(box.reason);
}

bool FakeShell::confirm(const Box& box) {
  shown.push_back({.kind = ShownBox::Kind::Confirm, .title = box.title, .text = box.text, .icon = box.icon});
  reasons.push_back(box.reason);
  const std::optional<Answer> answer = take();
  return answer && answer->kind == Answer::Kind::Yes;
}

std::optional<std::string> FakeShell::input(const InputBox& box) {
  shown.push_back({.kind = ShownBox::Kind::Input,
                   .title = box.title,
                   .text = box.text,
                   .initial = box.initial,
                   .placeholder = box.placeholder});
  const std::optional<Answer> answer = take();
  if (!answer) return std::nullopt;
  if (answer->kind == Answer::Kind::Ok) return box.initial;
  if (answer->kind == Answer::Kind::Text) return answer->text;
  return std::nullopt;
}

std::optional<std::filesystem::path> FakeShell::file(const FileBox& box, ShownBox::Kind kind) {
  shown.push_back({.kind = kind,
                   .title = box.title,
                   .folder = box.folder,
                   .filter = box.filter,
                   .defaultExtension = box.defaultExtension});
  const std::optional<Answer> answer = take();
  if (!answer || answer->kind != Answer::Kind::File) return std::nullopt;
  return answer->text;
}

std::optional<std::filesystem::path> FakeShell::chooseOpen(const FileBox& box) {
  return file(box, ShownBox::Kind::Open);
}

std::optional<std::filesystem::path> FakeShell::chooseSave(const FileBox& box) {
  return file(box, ShownBox::Kind::Save);
}

Form& FakeShell::show(std::string_view screen) {
  const std::string name(screen);
  auto open = m_open.find(name);
  if (open == m_open.end()) {
    const auto make = m_make.find(name);
    if (make == m_make.end()) throw UserError("La schermata \"" + name + "\" non è disponibile.");
    open = m_open.emplace(name, make->second()).first;
  }
  shownScreens.push_back(name);
  return *open->second;
}

void FakeShell::inSteps(std::function<bool()> step) {
  if (holdSteps) {
    steps.push_back(std::move(step));
  } else {
    while (step()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

bool FakeShell::runSteps() {
  std::vector<std::function<bool()>> run;
  run.swap(steps);
  for (std::function<bool()>& step : run)
    if (step()) steps.push_back(std::move(step));
  return !steps.empty();
}

void FakeShell::forgetScreens() {
  m_open.clear();
  m_closed.clear();
}

void FakeShell::close(std::string_view screen) {
  closedScreens.emplace_back(screen);
  const auto open = m_open.find(screen);
  if (open == m_open.end()) return;
  m_closed.push_back(std::move(open->second));
  m_open.erase(open);
}

}  // namespace trv5
