#include "core/form.h"

#include <stdexcept>
#include <utility>

#include "core/control.h"
#include "core/errors.h"
#include "core/grid_control.h"

namespace trv5 {
namespace {

// A flag that is up as long as this lives.
struct Raised {
  explicit Raised(bool& raised) : flag(raised) { flag = true; }
  ~Raised() { flag = false; }
  Raised(const Raised&) = delete;
  Raised& operator=(const Raised&) = delete;
  bool& flag;
};

}  // namespace

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
  if (Control* const from = std::exchange(m_focused, nullptr)) perform(from->m_leave, from);
  if (m_focused != nullptr) return;  // what ran on leaving gave the focus elsewhere
  m_focused = to;
  if (to != nullptr) perform(to->m_enter, to);
}

FormState Form::state() const {
  FormState state;
  state.controls.reserve(m_controls.size());
  for (const Control* const control : m_controls)
    state.controls.push_back(control->partOfState() ? control->state() : nullptr);
  state.focused = m_focused;
  return state;
}

void Form::restore(const FormState& state) {
  if (state.controls.size() != m_controls.size()) throw std::logic_error("a state of another form than " + m_name);
  const Control* const focused = m_focused;
  const OperationDepth::Step step(m_shell.operations());
  const Raised restoring(m_restoring);
  for (std::size_t i = 0; i < m_controls.size(); ++i)
    if (state.controls[i] != nullptr) m_controls[i]->restore(state.controls[i]);
  if (focused != nullptr && m_focused != focused && state.focused != nullptr) state.focused->focus();
}

Form::Still::Still(Form& form) : m_form(form) {
  ++m_form.m_still;
  for (Control* const control : m_form.m_controls)
    if (auto* const grid = dynamic_cast<GridControl*>(control))
      m_grids.push_back(std::make_unique<Grid::Batch>(grid->grid()));
}

Form::Still::~Still() {
  m_grids.clear();
  if (--m_form.m_still > 0) return;
  for (Control* const control : m_form.m_controls)
    if (control->m_toTell) control->tellView();
}

void Form::perform(const std::function<void()>& operation, const Control* source) {
  if (m_restoring) return;
  OperationDepth& depth = m_shell.operations();
  if (!operation) {
    if (!depth.running()) depth.settle();
    return;
  }
  const UserAct act(*this, source);
  if (depth.running()) {
    const OperationDepth::Step step(depth);
    operation();
    return;
  }
  runOutermost(operation, depth);
  depth.settle();  // the operation may have closed this form
}

void Form::runOutermost(const std::function<void()>& operation, OperationDepth& depth) {
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
