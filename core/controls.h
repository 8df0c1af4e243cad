#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/grid.h"
#include "core/palette.h"
#include "core/shell.h"

namespace trv5 {

class Control;

/// One screen without its looks: its name, its title, its help context and its controls, found by name. Operations read
/// and write the controls; the window and the console show and drive the same ones.
class Form {
 public:
  Form(Shell& shell, std::string name, std::string title, int helpContext = 0);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Shell& shell() const { return m_shell; }
  const std::string& name() const { return m_name; }
  const std::string& title() const { return m_title; }
  void setTitle(std::string title);
  int helpContext() const { return m_helpContext; }
  void setHelpContext(int context) { m_helpContext = context; }

  /// Null when there is none of that name.
  Control* find(std::string_view name) const;
  const std::vector<Control*>& controls() const { return m_controls; }
  /// The control of that name and kind; throws std::logic_error when there is none.
  template <class Kind>
  Kind& get(std::string_view name) const;

  /// Runs an operation under the one error handler: what escapes from the outermost call is shown in a box. Operations
  /// that run others call them directly or press their buttons; errors then pass through to the outermost.
  void perform(const std::function<void()>& operation);
  /// True while an operation of any form is at work.
  static bool operationRunning();

  /// Called after a change of the title.
  std::function<void()> titleChanged;

 private:
  friend class Control;
  [[noreturn]] static void missing(std::string_view name);

  Shell& m_shell;
  std::string m_name, m_title;
  int m_helpContext;
  std::vector<Control*> m_controls;
  std::map<std::string, Control*, std::less<>> m_byName;
};

/// What all controls have in common. A control is a value with a listener (the widget that shows it) and an event (the
/// operation behind it).
class Control {
 public:
  Control(Form& form, std::string name);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& form() const { return m_form; }
  const std::string& name() const { return m_name; }
  bool enabled() const { return m_enabled; }
  void setEnabled(bool enabled);
  std::optional<Rgb> back() const { return m_back; }
  std::optional<Rgb> fore() const { return m_fore; }
  void setBack(std::optional<Rgb> colour);
  void setFore(std::optional<Rgb> colour);
  const std::string& toolTip() const { return m_toolTip; }
  void setToolTip(std::string text);
  /// True when no operation would read the control's value as things stand: it is shown quietly, and works as ever.
  bool aside() const { return m_aside; }
  void setAside(bool aside);

  /// The operation of the control: a click, a pick, a change of value.
  void onEvent(std::function<void()> operation) { m_event = std::move(operation); }
  bool hasEvent() const { return static_cast<bool>(m_event); }
  void onDoubleClick(std::function<void()> operation) { m_doubleClick = std::move(operation); }
  bool hasDoubleClick() const { return static_cast<bool>(m_doubleClick); }
  void doubleClick();
  /// The view that follows the control's value and looks.
  void setListener(std::function<void()> listener) { m_listener = std::move(listener); }

 protected:
  void fire();
  void changed();

 private:
  Form& m_form;
  std::string m_name;
  bool m_enabled = true, m_aside = false;
  std::optional<Rgb> m_back, m_fore;
  std::string m_toolTip;
  std::function<void()> m_event, m_doubleClick, m_listener;
};

/// A button. Its caption carries no mnemonic: mnemonics belong to the layout.
class Button : public Control {
 public:
  Button(Form& form, std::string name, std::string caption = {}, std::string toolTip = {});
  const std::string& caption() const { return m_caption; }
  void setCaption(std::string caption);
  /// Runs the button's operation, as a click does; "run the button" from an operation too.
  void press() { fire(); }

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

 private:
  std::string m_text;
};

/// A list of items of which one is chosen, in an editable one also a typed text (index -1).
class Combo : public Control {
 public:
  enum class Typing { No, Yes };
  Combo(Form& form, std::string name, Typing typing = Typing::No);

  bool editable() const { return m_editable; }
  const std::vector<std::string>& items() const { return m_items; }
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

 private:
  void assign(int index, std::string text);

  bool m_editable;
  std::vector<std::string> m_items;
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

 private:
  std::string m_caption;
  bool m_checked = false;
};

/// A box for a line of text.
class Text : public Control {
 public:
  Text(Form& form, std::string name, int maximumLength = 32767);
  const std::string& text() const { return m_text; }
  int maximumLength() const { return m_maximumLength; }
  /// Fires only when the text changes.
  void set(std::string text);

 private:
  std::string m_text;
  int m_maximumLength;
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

 private:
  int m_value = 0, m_maximum = 0;
};

/// A calendar.
class Calendar : public Control {
 public:
  using Control::Control;
  /// "GG/MM/AAAA", empty before the first choice.
  const std::string& date() const { return m_date; }
  /// Fires only when the date changes.
  void set(std::string date);

 private:
  std::string m_date;
};

/// A grid on a screen.
class GridControl : public Control, public Grid {
 public:
  GridControl(Form& form, std::string name, std::string_view heading) : Control(form, std::move(name)), Grid(heading) {}
  GridControl(Form& form, std::string name, int rows, int columns)
      : Control(form, std::move(name)), Grid(rows, columns) {}
  GridControl(const GridControl&) = delete;
  GridControl& operator=(const GridControl&) = delete;
  /// Replaces the grid's contents.
  Grid& grid() { return *this; }
  const Grid& grid() const { return *this; }

  void onCellClick(std::function<void(int row, int column)> operation) { m_click = std::move(operation); }
  void onCellDoubleClick(std::function<void(int row, int column)> operation) {
    m_cellDoubleClick = std::move(operation);
  }
  /// Shown in the middle of the empty grid, given the grid's state.
  void setEmptyText(std::string text);
  const std::string& emptyText() const { return m_emptyText; }
  /// True when a click is a toggle, so that Space and dragging do the same.
  bool hasCellClick() const { return static_cast<bool>(m_click); }

  /// The user's click: makes the cell current (a heading row never), then runs the operation.
  void clickCell(int row, int column);
  void doubleClickCell(int row, int column);
  /// Writes an editable cell. False when the cell isn't editable or the text isn't one of its choices.
  bool edit(int row, int column, const std::string& text);
  /// The view follows looks (Control) and contents (Grid) by two listeners.
  using Control::setListener;
  void setGridListener(std::function<void(const GridChange&)> listener) { Grid::setListener(std::move(listener)); }

  // A colour of the control and one of a cell are different things.
  using Grid::back;
  using Grid::setBack;
  using Grid::setFore;

 private:
  std::function<void(int, int)> m_click, m_cellDoubleClick;
  std::string m_emptyText;
};

/// A control array: members found by their given index, named "Name_index".
template <class Kind>
class ControlArray {
 public:
  /// Makes one member for each index, handing `arguments` behind the name to each.
  template <class... Arguments>
  ControlArray(Form& form, const std::string& name, std::initializer_list<int> indices, const Arguments&... arguments) {
    for (int i : indices) m_members[i] = std::make_unique<Kind>(form, name + "_" + std::to_string(i), arguments...);
  }
  Kind& operator[](int index) const { return *m_members.at(index); }
  auto begin() const { return m_members.begin(); }
  auto end() const { return m_members.end(); }

 private:
  std::map<int, std::unique_ptr<Kind>> m_members;
};

template <class Kind>
Kind& Form::get(std::string_view name) const {
  Kind* const control = dynamic_cast<Kind*>(find(name));
  if (control == nullptr) missing(name);
  return *control;
}

}  // namespace trv5
