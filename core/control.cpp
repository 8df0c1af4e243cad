#include "core/control.h"

#include <stdexcept>
#include <vector>

#include "core/form.h"

namespace trv5 {

Control::Control(Form& form, std::string name) : m_form(form), m_name(std::move(name)) {
  if (!m_form.m_byName.emplace(m_name, this).second)
    throw std::logic_error("two controls of " + form.name() + " are named " + m_name);
  m_form.m_controls.push_back(this);
}

Control::~Control() {
  if (hasFocus()) m_form.m_focused = nullptr;
  m_form.m_byName.erase(m_name);
  std::erase(m_form.m_controls, this);
}

void Control::setListener(std::function<void()> listener, std::function<void()> takeFocus) {
  if (m_listener && listener) throw std::logic_error("a second view of " + m_name);
  m_listener = std::move(listener);
  m_takeFocus = std::move(takeFocus);
}

void Control::setEnabled(bool enabled) {
  if (m_enabled == enabled) return;
  m_enabled = enabled;
  if (!enabled) left();
  changed();
}

void Control::setBack(std::optional<Rgb> colour) {
  if (m_back == colour) return;
  m_back = colour;
  changed();
}

void Control::setFore(std::optional<Rgb> colour) {
  if (m_fore == colour) return;
  m_fore = colour;
  changed();
}

void Control::setAside(bool aside) {
  if (m_aside == aside) return;
  m_aside = aside;
  changed();
}

void Control::setToolTip(std::string text) {
  m_toolTip = std::move(text);
  changed();
}

void Control::doubleClick() {
  m_form.perform(m_doubleClick, this);
}

void Control::focus() {
  if (!m_enabled) return;
  m_form.moveFocus(this);
  // What ran on the way may have given it elsewhere.
  if (hasFocus() && m_takeFocus) m_takeFocus();
}

bool Control::hasFocus() const {
  return m_form.focused() == this;
}

void Control::entered() {
  m_form.moveFocus(this);
}

void Control::left() {
  if (hasFocus()) m_form.moveFocus(nullptr);
}

bool Control::offerKey(const Key& key) {
  if (!m_key) return false;
  bool taken = true;
  m_form.perform([&] { taken = m_key(key); }, this);
  return taken;
}

void Control::key(const Key& key) {
  focus();
  if (hasFocus() && !offerKey(key)) keyPassed(key);
}

void Control::keyPassed(const Key&) {}

void Control::fire() {
  m_form.perform(m_event, this);
}

std::shared_ptr<const ControlState> Control::state() const {
  if (m_state != nullptr && m_stateAt == revision()) return m_state;
  auto now = std::make_shared<const ControlState>(ControlState{
      .enabled = m_enabled, .aside = m_aside, .back = m_back, .fore = m_fore, .toolTip = m_toolTip, .value = held()});
  if (m_state == nullptr || !(*m_state == *now)) m_state = std::move(now);
  m_stateAt = revision();
  return m_state;
}

void Control::restore(const std::shared_ptr<const ControlState>& state) {
  if (*this->state() == *state) return;
  m_enabled = state->enabled;
  m_aside = state->aside;
  m_back = state->back;
  m_fore = state->fore;
  m_toolTip = state->toolTip;
  setHeld(state->value);
  ++m_revision;
  m_state = state;
  m_stateAt = revision();
  if (!m_enabled) left();
  tellView();
}

void Control::changed() {
  ++m_revision;
  tellView();
}

void Control::tellView() {
  m_toTell = m_form.m_still > 0;
  if (!m_toTell && m_listener) m_listener();
}

}  // namespace trv5
