#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/control_state.h"
#include "core/grid.h"
#include "core/shell.h"
#include "core/user_act.h"

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

  /// Holds something for as long as the form lives, such as a subscription to a notice.
  void keep(std::shared_ptr<void> held) { m_held.push_back(std::move(held)); }

  /// Runs an operation under the one error handler: what escapes from the outermost call is shown in a box. Operations
  /// that run others call them directly or press their buttons; errors then pass through to the outermost. `source`:
  /// the control that the user acted at. `operation` is empty for a change that no operation follows.
  void perform(const std::function<void()>& operation, const Control* source = nullptr);

  /// All controls as they stand; what hasn't changed since the last time is shared with that state.
  FormState state() const;
  /// Puts a state of this form back: no operation runs, each view that has something new to show is told once. The
  /// focus stays where it is; from a control that is disabled now it goes back to where it was then.
  void restore(const FormState& state);
  /// As long as one lives, no view of the form hears of a change; at the end of the last each one that has something
  /// new to show is told once. For an operation that runs many others, whose states are nothing to look at.
  class Still {
   public:
    explicit Still(Form& form);
    ~Still();
    Still(const Still&) = delete;
    Still& operator=(const Still&) = delete;

   private:
    Form& m_form;
    std::vector<std::unique_ptr<Grid::Batch>> m_grids;
  };

  /// Who follows the acts of the user; null for nobody.
  void setActListener(ActListener* listener) { m_acts = listener; }
  const ActListener* actListener() const { return m_acts; }

  /// Called after a change of the title.
  std::function<void()> titleChanged;

 private:
  friend class Control;
  friend class UserAct;
  [[noreturn]] static void missing(std::string_view name);
  void runOutermost(const std::function<void()>& operation, OperationDepth& depth);
  void moveFocus(Control* to);

  Shell& m_shell;
  std::string m_name, m_title;
  int m_helpContext;
  Control* m_focused = nullptr;
  std::vector<Control*> m_controls;
  std::map<std::string, Control*, std::less<>> m_byName;
  ActListener* m_acts = nullptr;
  bool m_acting = false;     // an act is under way
  bool m_restoring = false;  // no operation runs
  std::vector<std::shared_ptr<void>> m_held;
  int m_still = 0;  // how many keep the views from hearing
};

template <class Kind>
Kind& Form::get(std::string_view name) const {
  Kind* const control = dynamic_cast<Kind*>(find(name));
  if (control == nullptr) missing(name);
  return *control;
}

}  // namespace trv5
