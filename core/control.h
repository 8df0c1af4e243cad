#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/control_state.h"
#include "core/key.h"
#include "core/palette.h"

namespace trv5 {

class Form;

/// What all controls have in common. A control is a value with a listener (the widget that shows it) and an event (the
/// operation behind it).
class Control {
 public:
  /// Throws std::logic_error when the form has a control of that name.
  Control(Form& form, std::string name);
  virtual ~Control();
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

  /// Looks and value as they stand: the same object as long as neither changes.
  std::shared_ptr<const ControlState> state() const;
  /// False for what serves the form itself, such as the command that takes a state back: no part of the form's state.
  bool partOfState() const { return m_partOfState; }
  void leaveOutOfState() { m_partOfState = false; }

  /// The operation of the control: a click, a pick, a change of value.
  void onEvent(std::function<void()> operation) { m_event = std::move(operation); }
  bool hasEvent() const { return static_cast<bool>(m_event); }
  void onDoubleClick(std::function<void()> operation) { m_doubleClick = std::move(operation); }
  bool hasDoubleClick() const { return static_cast<bool>(m_doubleClick); }
  void doubleClick();

  /// Run when the focus comes to the control and when it goes; nothing runs where it stays.
  void onEnter(std::function<void()> operation) { m_enter = std::move(operation); }
  void onLeave(std::function<void()> operation) { m_leave = std::move(operation); }
  /// Run for each key at the control, before the control itself acts on it; true: the key ends there.
  void onKey(std::function<bool(const Key&)> operation) { m_key = std::move(operation); }
  /// Gives the control the focus, in the window too; a disabled one doesn't take it.
  void focus();
  bool hasFocus() const;
  /// What the window tells: the user's focus has come here, or has gone.
  void entered();
  void left();
  /// Runs the operation for a key. True when that took it, also by failing: then the key must do nothing else.
  bool offerKey(const Key& key);
  /// The user's key at the control, which gets the focus, where there is no window: what the operation lets pass does
  /// to the control what it does on screen.
  void key(const Key& key);

  /// The view that follows the control's value and looks; empty when it goes. Throws std::logic_error when the control
  /// has one: two widgets that show one control are a mistake of the layout. `takeFocus` is called when an operation
  /// gives the control the focus.
  void setListener(std::function<void()> listener, std::function<void()> takeFocus = {});

 protected:
  /// What the control holds, and how it takes that back, without a word to the view.
  virtual ControlValue held() const = 0;
  virtual void setHeld(const ControlValue& value) = 0;
  /// Moves with each change of looks or value.
  virtual std::uint64_t revision() const { return m_revision; }

  void fire();
  void changed();
  /// What a key does to the control by itself.
  virtual void keyPassed(const Key& key);

 private:
  friend class Form;
  void restore(const std::shared_ptr<const ControlState>& state);
  void tellView();

  Form& m_form;
  std::string m_name;
  bool m_enabled = true, m_aside = false, m_partOfState = true;
  bool m_toTell = false;  // a change that the view hears of when the form is no longer still
  std::optional<Rgb> m_back, m_fore;
  std::string m_toolTip;
  std::function<void()> m_event, m_doubleClick, m_enter, m_leave, m_listener, m_takeFocus;
  std::function<bool(const Key&)> m_key;
  std::uint64_t m_revision = 0;
  // The last state, and when that was.
  mutable std::shared_ptr<const ControlState> m_state;
  mutable std::uint64_t m_stateAt = 0;
};

}  // namespace trv5
