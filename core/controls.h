#pragma once

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/control.h"
#include "core/control_array.h"
#include "core/form.h"
#include "core/grid_control.h"

namespace trv5 {

/// A button. Its caption carries no mnemonic: mnemonics belong to the layout.
class Button : public Control {
 public:
  Button(Form& form, std::string name, std::string caption = {}, std::string toolTip = {});
  const std::string& caption() const { return m_caption; }
  void setCaption(std::string caption);
  /// Runs the button's operation, as a click does; "run the button" from an operation too.
  void press() { fire(); }

 protected:
  ControlValue held() const override { return m_caption; }
  void setHeld(const ControlValue& value) override;

 private:
  std::string m_caption;
};

/// A text on the screen; with an event it can be clicked.
class Label : public Control {
 public:
  Label(Form& form, std::string name, std::string text = {}, std::string toolTip = {});
  const std::string& text() const { return m_text; }
  void setText(std::string text);
  void click() { fire(); }

 protected:
  ControlValue held() const override { return m_text; }
  void setHeld(const ControlValue& value) override;

 private:
  std::string m_text;
};

/// A list of items of which one is chosen, in an editable one also a typed text (index -1).
class Combo : public Control {
 public:
  /// What the keyboard gives: nothing, digits or any text. A text that comes in another way is never refused.
  enum class Typing { No, Digits, Yes };
  Combo(Form& form, std::string name, Typing typing = Typing::No);

  bool editable() const { return m_typing != Typing::No; }
  bool digitsOnly() const { return m_typing == Typing::Digits; }
  const std::vector<std::string>& items() const { return *m_items; }
  void setItems(std::vector<std::string> items);
  /// The chosen item from 0; -1 for a typed text or none.
  int index() const { return m_index; }
  const std::string& text() const { return m_text; }
  /// The text read as a number.
  int number() const;

  /// The user's pick: fires the event also for the item that stands there already. Ignores an index out of range.
  void pick(int index);
  /// The user's typing into an editable list: the item with that text where there is one, else index -1.
  void type(std::string text);
  /// Set by an operation: fires only when the index changes. Out of range: no item, an empty text.
  void select(int index);

 protected:
  ControlValue held() const override { return ComboValue{m_items, m_index, m_text}; }
  void setHeld(const ControlValue& value) override;

 private:
  void assign(int index, std::string text);

  Typing m_typing;
  std::shared_ptr<const std::vector<std::string>> m_items = std::make_shared<const std::vector<std::string>>();
  int m_index = -1;
  std::string m_text;
};

/// A check box or an option button.
class Check : public Control {
 public:
  Check(Form& form, std::string name, std::string caption = {}, std::string toolTip = {});
  const std::string& caption() const { return m_caption; }
  void setCaption(std::string caption);
  bool checked() const { return m_checked; }
  /// Fires only when the state changes.
  void set(bool checked);

 protected:
  ControlValue held() const override { return CheckValue{m_caption, m_checked}; }
  void setHeld(const ControlValue& value) override;

 private:
  std::string m_caption;
  bool m_checked = false;
};

/// A box for a line of text, with the part of it that is selected, in characters: without a part the cursor alone.
class Text : public Control {
 public:
  Text(Form& form, std::string name, int maximumLength = 32767);
  const std::string& text() const { return m_text; }
  int maximumLength() const { return m_maximumLength; }
  /// Puts the cursor at the end. Fires only when the text changes.
  void set(std::string text);
  /// The user's change, which leaves the cursor at `cursor`. Fires only when the text changes.
  void edit(std::string text, int cursor);
  /// The user's typing: `text` takes the place of what is selected, as far as it finds room.
  void type(std::string_view text);

  int selectionStart() const { return m_start; }
  int selectionLength() const { return m_length; }
  /// What lies outside the text is left out.
  void select(int start, int length);
  void selectAll();

 protected:
  ControlValue held() const override { return m_text; }
  void setHeld(const ControlValue& value) override;
  void keyPassed(const Key& key) override;

 private:
  void erase(int start, int length);

  std::string m_text;
  int m_maximumLength;
  int m_start = 0, m_length = 0;
};

/// A scroll bar.
class Scroll : public Control {
 public:
  Scroll(Form& form, std::string name, int minimum, int maximum);
  int value() const { return m_value; }
  int minimum() const { return m_minimum; }
  int maximum() const { return m_maximum; }
  /// Fires only when the value changes; the value is kept inside the range.
  void set(int value);
  /// A value left outside the new range moves to its end, and fires.
  void setMaximum(int maximum);

 protected:
  ControlValue held() const override { return ScrollValue{m_value, m_maximum}; }
  void setHeld(const ControlValue& value) override;

 private:
  int m_value, m_minimum, m_maximum;
};

/// The tabs of a tab control, by their given indices, in whatever order the screen shows them.
class Tabs : public Control {
 public:
  /// `captions`: given index to caption, in the order in which they are shown.
  Tabs(Form& form, std::string name, std::vector<std::pair<int, std::string>> captions);
  const std::vector<std::pair<int, std::string>>& captions() const { return m_captions; }
  int index() const { return m_index; }
  /// Brings a tab to the front; fires only when it changes. Ignores an index that no tab has.
  void set(int index);
  /// A tab that has nothing to offer yet can't be reached by the user; operations may still bring it to the front.
  void setTabEnabled(int index, bool enabled);
  bool tabEnabled(int index) const { return !m_disabled.contains(index); }

 protected:
  ControlValue held() const override { return TabsValue{m_index, m_disabled}; }
  void setHeld(const ControlValue& value) override;

 private:
  std::vector<std::pair<int, std::string>> m_captions;
  int m_index;
  std::set<int> m_disabled;
};

/// A list of lines, such as a log.
class LineList : public Control {
 public:
  using Control::Control;
  const std::vector<std::string>& lines() const { return m_lines; }
  void clear();
  void add(std::string line);

 protected:
  ControlValue held() const override { return m_lines; }
  void setHeld(const ControlValue& value) override;

 private:
  std::vector<std::string> m_lines;
};

/// A progress bar.
class Progress : public Control {
 public:
  using Control::Control;
  int value() const { return m_value; }
  int maximum() const { return m_maximum; }
  void set(int value, int maximum);

 protected:
  ControlValue held() const override { return ProgressValue{m_value, m_maximum}; }
  void setHeld(const ControlValue& value) override;

 private:
  int m_value = 0, m_maximum = 0;
};

/// A calendar.
class Calendar : public Control {
 public:
  using Control::Control;
  /// "GG/MM/AAAA", empty before the first choice.
  const std::string& date() const { return m_date; }
  /// The user's change; fires only when the date changes.
  void set(std::string date);
  /// The user's click on a day: fires also on the one that stands there already.
  void pick(std::string date);
  /// Set by an operation: fires nothing.
  void show(std::string date);

 protected:
  ControlValue held() const override { return m_date; }
  void setHeld(const ControlValue& value) override;

 private:
  std::string m_date;
};

}  // namespace trv5
