#include "core/control.h"

#include "core/form.h"

namespace trv5 {

Control::Control(Form& form, std::string name) : m_form(form), m_name(std::move(name)) {
  m_form.m_controls.push_back(this);
  m_form.m_byName[m_name] = this;
}

void Control::setEnabled(bool enabled) {
  if (m_enabled == enabled) return;
  m_enabled = enabled;
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
  m_form.perform(m_doubleClick);
}

void Control::fire() {
  m_form.perform(m_event);
}

void Control::changed() {
  if (m_listener) m_listener();
}

}  // namespace trv5
