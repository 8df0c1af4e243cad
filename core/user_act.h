#pragma once

namespace trv5 {

class Control;
class Form;

/// Follows what the user does on a form, act by act: a click with all that its operation does, a change of a value.
class ActListener {
 public:
  virtual void actBegins() = 0;
  /// `source`: the control that the user acted at, null where the form itself ran something. `moves`: the act only went
  /// on along one value (a scroll bar, a text being typed, the current row): a run of such acts is one to the user.
  virtual void actEnds(const Control* source, bool moves) = 0;
  /// True while the user's last act was typing into this control, which then takes its own typing back.
  virtual bool typingIn(const Control& control) const = 0;

 protected:
  ~ActListener() = default;
};

/// One act of the user on a form, as long as this lives. It opens before anything changes; what runs inside an
/// operation, or inside another act, is part of that and no act.
class UserAct {
 public:
  UserAct(Form& form, const Control* source, bool moves = false);
  ~UserAct();
  UserAct(const UserAct&) = delete;
  UserAct& operator=(const UserAct&) = delete;
  void setMoves(bool moves) { m_moves = moves; }

 private:
  Form* m_form;  // null: no act
  const Control* m_source;
  bool m_moves;
};

}  // namespace trv5
