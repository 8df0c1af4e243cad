#include "core/controls.h"

#include <algorithm>

#include "core/text.h"

namespace trv5 {

Button::Button(Form& form, std::string name, std::string caption, std::string toolTip)
    : Control(form, std::move(name)), m_caption(std::move(caption)) {
  setToolTip(std::move(toolTip));
}

void Button::setCaption(std::string caption) {
  m_caption = std::move(caption);
  changed();
}

Label::Label(Form& form, std::string name, std::string text, std::string toolTip)
    : Control(form, std::move(name)), m_text(std::move(text)) {
  setToolTip(std::move(toolTip));
}

void Label::setText(std::string text) {
  if (m_text == text) return;
  m_text = std::move(text);
  changed();
}

Combo::Combo(Form& form, std::string name, Typing typing) : Control(form, std::move(name)), m_typing(typing) {}

void Combo::setItems(std::vector<std::string> items) {
  m_items = std::make_shared<const std::vector<std::string>>(std::move(items));
  m_index = -1;
  m_text.clear();
  changed();
}

int Combo::number() const {
  return numberOf(m_text);
}

void Combo::pick(int index) {
  if (index < 0 || index >= static_cast<int>(items().size())) return;
  const UserAct act(form(), this);
  assign(index, items()[static_cast<std::size_t>(index)]);
  fire();
}

void Combo::type(std::string text) {
  const auto it = std::find(items().begin(), items().end(), text);
  const UserAct act(form(), this, true);
  if (it != items().end()) return pick(static_cast<int>(it - items().begin()));
  if (!editable() || (m_index == -1 && m_text == text)) return;
  assign(-1, std::move(text));
  fire();
}

void Combo::select(int index) {
  if (index < 0 || index >= static_cast<int>(items().size())) index = -1;
  if (index == m_index && index >= 0) return;
  const UserAct act(form(), this);
  assign(index, index < 0 ? std::string() : items()[static_cast<std::size_t>(index)]);
  fire();
}

void Combo::assign(int index, std::string text) {
  m_index = index;
  m_text = std::move(text);
  changed();
}

Check::Check(Form& form, std::string name, std::string caption, std::string toolTip)
    : Control(form, std::move(name)), m_caption(std::move(caption)) {
  setToolTip(std::move(toolTip));
}

void Check::setCaption(std::string caption) {
  m_caption = std::move(caption);
  changed();
}

void Check::set(bool checked) {
  if (m_checked == checked) return;
  const UserAct act(form(), this);
  m_checked = checked;
  changed();
  fire();
}

Text::Text(Form& form, std::string name, int maximumLength)
    : Control(form, std::move(name)), m_maximumLength(maximumLength) {}

void Text::set(std::string text) {
  if (m_text == text) return;
  const int end = characterCount(text);
  edit(std::move(text), end);
}

void Text::edit(std::string text, int cursor) {
  if (m_text == text) return select(cursor, 0);
  const UserAct act(form(), this, true);
  m_text = std::move(text);
  m_start = std::clamp(cursor, 0, characterCount(m_text));
  m_length = 0;
  changed();
  fire();
}

void Text::type(std::string_view text) {
  const std::size_t begin = byteOfCharacter(m_text, m_start), end = byteOfCharacter(m_text, m_start + m_length);
  const int room = m_maximumLength - (characterCount(m_text) - m_length);
  text = text.substr(0, byteOfCharacter(text, std::max(0, room)));
  edit(m_text.substr(0, begin).append(text).append(m_text, end), m_start + characterCount(text));
}

void Text::erase(int start, int length) {
  if (start < 0) return;
  select(start, length);
  type({});
}

void Text::select(int start, int length) {
  const int count = characterCount(m_text);
  start = std::clamp(start, 0, count);
  length = std::clamp(length, 0, count - start);
  if (m_start == start && m_length == length) return;
  m_start = start;
  m_length = length;
  changed();
}

void Text::selectAll() {
  select(0, characterCount(m_text));
}

void Text::keyPassed(const Key& key) {
  if (key.control || key.alt) return;
  const bool some = m_length > 0;
  switch (key.code) {
    case Key::Code::Character:
      return type(key.text);
    case Key::Code::Backspace:
      return some ? type({}) : erase(m_start - 1, 1);
    case Key::Code::Delete:
      return some ? type({}) : erase(m_start, 1);
    case Key::Code::Left:
      return select(some ? m_start : m_start - 1, 0);
    case Key::Code::Right:
      return select(some ? m_start + m_length : m_start + 1, 0);
    case Key::Code::Home:
      return select(0, 0);
    case Key::Code::End:
      return select(characterCount(m_text), 0);
    default:
      return;
  }
}

Scroll::Scroll(Form& form, std::string name, int minimum, int maximum)
    : Control(form, std::move(name)), m_value(minimum), m_minimum(minimum), m_maximum(maximum) {}

void Scroll::set(int value) {
  value = std::clamp(value, m_minimum, std::max(m_minimum, m_maximum));
  if (m_value == value) return;
  const UserAct act(form(), this, true);
  m_value = value;
  changed();
  fire();
}

void Scroll::setMaximum(int maximum) {
  if (m_maximum == maximum) return;
  m_maximum = maximum;
  changed();
  set(m_value);
}

Tabs::Tabs(Form& form, std::string name, std::vector<std::pair<int, std::string>> captions)
    : Control(form, std::move(name)), m_captions(std::move(captions)), m_index(m_captions.front().first) {}

void Tabs::set(int index) {
  if (m_index == index) return;
  if (std::none_of(m_captions.begin(), m_captions.end(), [&](const auto& tab) { return tab.first == index; })) return;
  const UserAct act(form(), this, true);
  m_index = index;
  changed();
  fire();
}

void Tabs::setTabEnabled(int index, bool enabled) {
  if (enabled)
    m_disabled.erase(index);
  else
    m_disabled.insert(index);
  changed();
}

void LineList::clear() {
  m_lines.clear();
  changed();
}

void LineList::add(std::string line) {
  m_lines.push_back(std::move(line));
  changed();
}

void Progress::set(int value, int maximum) {
  if (m_value == value && m_maximum == maximum) return;
  m_value = value;
  m_maximum = maximum;
  changed();
}

void Calendar::set(std::string date) {
  if (m_date != date) pick(std::move(date));
}

void Calendar::pick(std::string date) {
  const UserAct act(form(), this, true);
  show(std::move(date));
  fire();
}

void Calendar::show(std::string date) {
  if (m_date == date) return;
  m_date = std::move(date);
  changed();
}

void Button::setHeld(const ControlValue& value) {
  m_caption = std::get<std::string>(value);
}

void Label::setHeld(const ControlValue& value) {
  m_text = std::get<std::string>(value);
}

void Combo::setHeld(const ControlValue& value) {
  const auto& own = std::get<ComboValue>(value);
  m_items = own.items;
  m_index = own.index;
  m_text = own.text;
}

void Check::setHeld(const ControlValue& value) {
  const auto& own = std::get<CheckValue>(value);
  m_caption = own.caption;
  m_checked = own.checked;
}

void Text::setHeld(const ControlValue& value) {
  if (m_text == std::get<std::string>(value)) return;
  m_text = std::get<std::string>(value);
  m_start = characterCount(m_text);
  m_length = 0;
}

void Scroll::setHeld(const ControlValue& value) {
  const auto& own = std::get<ScrollValue>(value);
  m_value = own.value;
  m_maximum = own.maximum;
}

void Tabs::setHeld(const ControlValue& value) {
  const auto& own = std::get<TabsValue>(value);
  m_index = own.index;
  m_disabled = own.disabled;
}

void LineList::setHeld(const ControlValue& value) {
  m_lines = std::get<std::vector<std::string>>(value);
}

void Progress::setHeld(const ControlValue& value) {
  const auto& own = std::get<ProgressValue>(value);
  m_value = own.value;
  m_maximum = own.maximum;
}

void Calendar::setHeld(const ControlValue& value) {
  m_date = std::get<std::string>(value);
}

}  // namespace trv5
