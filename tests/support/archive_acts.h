#pragma once

#include <string>

#include "maintenance/archivio.h"
#include "support/fake_shell.h"

namespace trv5 {

// What a user does on the archive's screen to write draws, every question answered with yes.

inline void saveDraw(Archivio& a, FakeShell& shell, const std::string& date) {
  a.MonthView1.set(date);
  shell.answerYes();
  a.Command8.press();
}

/// Pastes the numbers over those of the draw.
inline void correctDraw(Archivio& a, FakeShell& shell, int draw, const std::string& numbers) {
  a.HScrestrazione.set(draw);
  shell.clipboardText = numbers;
  a.Command12.press();
  shell.answerYes();
  a.Command3.press();
}

inline void deleteDraw(Archivio& a, FakeShell& shell, int draw) {
  a.HScrestrazione.set(draw);
  shell.answerYes();
  a.Command2.press();
}

}  // namespace trv5
