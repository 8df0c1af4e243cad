#include "core/form.h"

#include <stdexcept>
#include <utility>

#include "core/control.h"
#include "core/errors.h"

namespace trv5 {
Form::Form(Shell& shell, std::string name, std::string title, int helpContext)
    : m_shell(shell), m_name(std::move(name)), m_title(std::move(title)), m_helpContext(helpContext) {}

Form::~Form() = default;

void Form::setTitle(std::string title) {
  m_title = std::move(title);
  if (titleChanged) titleChanged();
}

Control* Form::find(std::string_view name) const {
  const auto it = m_byName.find(name);
  return it == m_byName.end() ? nullptr : it->second;
}

void Form::missing(std::string_view name) {
  throw std::logic_error("no such control: " + std::string(name));
}

void Form::moveFocus(Control* to) {
  if (m_focused == to) return;
  if (Control* const from = std::exchange(m_focused, nullptr)) perform(from->m_leave);
  if (m_focused != nullptr) return;  // what ran on leaving gave the focus elsewhere
  m_focused = to;
  if (to != nullptr) perform(to->m_enter);
}

void Form::perform(const std::function<void()>& operation) {
  if (!operation) return;
  OperationDepth& depth = m_shell.operations();
  if (depth.running()) {
    const OperationDepth::Step step(depth);
    operation();
    return;
  }
  try {
    const OperationDepth::Step step(depth);
    operation();
  } catch (const UserError& error) {
    m_shell.message({.text = error.what(), .title = error.title(), .icon = Icon::Critical, .reason = error.details()});
  } catch (const std::exception& error) {
    m_shell.message(
        {.text = "Errore imprevisto: l'operazione non è terminata.", .icon = Icon::Critical, .reason = error.what()});
  }
}

}  // namespace trv5
