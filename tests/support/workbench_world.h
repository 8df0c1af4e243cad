#pragma once

#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "cases/case_rows.h"
#include "cases/formula_rows.h"
#include "cases/workbench.h"
#include "engine/evaluation.h"
#include "support/archive_builder.h"
#include "support/fake_shell.h"

namespace trv5 {

/// A formula row as a table holds it. Elements beyond those given stay blank.
struct FormulaCells {
  struct Element {
    int wheel, position;
  };
  std::vector<Element> elements = {};
  std::string op = {};
  int fix = 0;  ///< 0: the cell stays empty
  std::string nr = "1", qn = "1";
  std::string alteration = {};
  std::string wheels = {};
};

/// The workbench on an archive of its own, opened as the program opens it, with a user who answers from a queue.
class WorkbenchWorld {
 public:
  explicit WorkbenchWorld(Archive draws);

  Archive archive;
  FakeShell shell;
  Workbench w;

  void press(const char* button) { w.button(button).press(); }
  /// The user's pick of the item with this text; typed where there is none.
  static void choose(Combo& combo, const std::string& text);
  /// Paints exactly these wheels of play, as clicks would.
  void playOn(std::initializer_list<int> wheels);
  /// Chooses exactly these positions.
  void positions(std::initializer_list<int> chosen);
  /// `FgEv` with a case on each of these draws, and the colpi, as a detection leaves them.
  void setCases(const std::vector<int>& draws, int colpi = 10);
  /// Appends a formula to a table.
  static int addFormula(Grid& table, const FormulaCells& row);
};

/// A formula of any shape, alteration, operator and fix, sometimes one that no list offers.
FormulaCells randomFormula(std::mt19937& rng);

}  // namespace trv5
