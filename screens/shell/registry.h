#pragma once

#include <QSize>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/controls.h"

class QWidget;

namespace trv5 {

struct Program;

/// Where a screen stands.
enum class Place {
  Window,  ///< a window of its own (`INIZIO`, `Container`)
  Fills,   ///< fills the area of the shell
  Framed   ///< a small window above those that fill the area, closed with Esc
};

/// One screen that the program has: how its form and its widget are made. The registry lists them; nothing else knows
/// screens by name.
struct ScreenEntry {
  std::string name;
  Place place = Place::Fills;
  QSize size = {};       ///< natural size of a framed screen, or of a window
  bool atRight = false;  ///< a framed screen that opens at the right edge of the area
  std::function<std::unique_ptr<Form>(Program&)> makeForm;
  std::function<QWidget*(Form&)> makeWidget;
  /// The load of the form, run once after its widget was made.
  std::function<void(Form&)> load = [](Form&) {};
  /// Run when the program ends.
  std::function<void(Form&)> end = [](Form&) {};
  /// What the user is at work on there, for the window's title; empty for nothing.
  std::function<std::string(const Form&)> work = [](const Form&) { return std::string(); };
};

/// All screens of the program.
std::vector<ScreenEntry> allScreens();

}  // namespace trv5
