#include "core/user_act.h"

#include <exception>

#include "core/form.h"

namespace trv5 {

UserAct::UserAct(Form& form, const Control* source, bool moves) : m_form(nullptr), m_source(source), m_moves(moves) {
  if (form.m_acts == nullptr || form.m_acting || form.shell().operations().running()) return;
  m_form = &form;
  m_form->m_acting = true;
  m_form->m_acts->actBegins();
}

UserAct::~UserAct() {
  if (m_form == nullptr) return;
  m_form->m_acting = false;
  if (m_form->m_acts == nullptr) return;
  try {
    m_form->m_acts->actEnds(m_source, m_moves);
  } catch (const std::exception&) {
    // What the act did stands, and its result is told already. Where memory ends for the step of the history, the next
    // act's step takes both back.
  }
}

}  // namespace trv5
