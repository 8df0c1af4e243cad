#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

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

  /// The control that has the focus among those of this form; null for none.
  Control* focused() const { return m_focused; }

  /// Runs an operation under the one error handler: what escapes from the outermost call is shown in a box. Operations
  /// that run others call them directly or press their buttons; errors then pass through to the outermost.
  void perform(const std::function<void()>& operation);

  /// Called after a change of the title.
  std::function<void()> titleChanged;

 private:
  friend class Control;
  [[noreturn]] static void missing(std::string_view name);
  void moveFocus(Control* to);

  Shell& m_shell;
  std::string m_name, m_title;
  int m_helpContext;
  Control* m_focused = nullptr;
  std::vector<Control*> m_controls;
  std::map<std::string, Control*, std::less<>> m_byName;
};

template <class Kind>
Kind& Form::get(std::string_view name) const {
  Kind* const control = dynamic_cast<Kind*>(find(name));
  if (control == nullptr) missing(name);
  return *control;
}

}  // namespace trv5
