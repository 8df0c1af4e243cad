#include "core/controls.h"

#include <algorithm>
#include <stdexcept>

#include "core/errors.h"
#include "core/text.h"

namespace trv5 {
namespace {

// Operations nest across forms (one may open another screen and drive it), so the depth is the program's.
int g_depth = 0;

struct Depth {
  Depth() { ++g_depth; }
  ~Depth() { --g_depth; }
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

void Form::perform(const std::function<void()>& operation) {
  if (!operation) return;
  if (g_depth > 0) {
    const Depth depth;
    operation();
    return;
  }
  try {
    const Depth depth;
    operation();
  } catch (const UserError& error) {
    m_shell.message({.text = error.what(), .title = error.title(), .icon = Icon::Critical});
  } catch (const std::exception& error) {
    m_shell.message({.text = std::string("Errore imprevisto: ") + error.what(), .icon = Icon::Critical});
  }
}

bool Form::operationRunning() {
  return g_depth > 0;
}

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

Combo::Combo(Form& form, std::string name, Typing typing)
    : Control(form, std::move(name)), m_editable(typing == Typing::Yes) {}

void Combo::setItems(std::vector<std::string> items) {
  m_items = std::move(items);
  m_index = -1;
  m_text.clear();
  changed();
}

int Combo::number() const {
  return numberOf(m_text);
}

void Combo::pick(int index) {
  if (index < 0 || index >= static_cast<int>(m_items.size())) return;
  assign(index, m_items[static_cast<std::size_t>(index)]);
  fire();
}

void Combo::type(std::string text) {
  const auto it = std::find(m_items.begin(), m_items.end(), text);
  if (it != m_items.end()) return pick(static_cast<int>(it - m_items.begin()));
  if (!m_editable || (m_index == -1 && m_text == text)) return;
  assign(-1, std::move(text));
  fire();
}

void Combo::select(int index) {
  if (index < 0 || index >= static_cast<int>(m_items.size())) index = -1;
  if (index == m_index && index >= 0) return;
  assign(index, index < 0 ? std::string() : m_items[static_cast<std::size_t>(index)]);
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
  m_checked = checked;
  changed();
  fire();
}

Text::Text(Form& form, std::string name, int maximumLength)
    : Control(form, std::move(name)), m_maximumLength(maximumLength) {}

void Text::set(std::string text) {
  if (m_text == text) return;
  m_text = std::move(text);
  changed();
  fire();
}

Scroll::Scroll(Form& form, std::string name, int minimum, int maximum)
    : Control(form, std::move(name)), m_value(minimum), m_minimum(minimum), m_maximum(maximum) {}

void Scroll::set(int value) {
  value = std::clamp(value, m_minimum, std::max(m_minimum, m_maximum));
  if (m_value == value) return;
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
  if (m_date == date) return;
  m_date = std::move(date);
  changed();
  fire();
}

void GridControl::setEmptyText(std::string text) {
  if (m_emptyText == text) return;
  m_emptyText = std::move(text);
  changed();
}

void GridControl::clickCell(int row, int column) {
  if (row >= headingRows()) setCurrent(row, column);
  if (m_click) form().perform([&] { m_click(row, column); });
}

void GridControl::doubleClickCell(int row, int column) {
  if (row >= headingRows()) setCurrent(row, column);
  if (m_cellDoubleClick) form().perform([&] { m_cellDoubleClick(row, column); });
}

bool GridControl::edit(int row, int column, const std::string& text) {
  const std::vector<std::string>* const allowed = choices(column);
  if (allowed == nullptr || row < headingRows() || row >= rows()) return false;
  if (std::find(allowed->begin(), allowed->end(), text) == allowed->end()) return false;
  setText(row, column, text);
  return true;
}

}  // namespace trv5
