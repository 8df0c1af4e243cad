#pragma once

#include <QWidget>
#include <vector>

#include "cases/workbench.h"
#include "screens/kit.h"

namespace trv5 {

/// What the four tabs Ambate, Ambi, Terni and Lunghetta are made of, by the names of their controls.
struct SorteTab {
  const char* formulas;
  int places;  ///< formulas that the table takes
  const char* hits;
  const char* verifyAll;
  const char* verifyRow;  ///< null where the tab has none
  const char* beyondLimit;
  const char* remove;
  const char* clear;
  const char* rowWheels;  ///< a check box; null where the tab has none
  const char* print;
  const char* copy;
  const char* clean;
  const char* extended;  ///< null where the tab has none
};

/// The table of formulas with its buttons at the left, its hits at the right; the same place for each on all four.
/// `above`: what stands over the table; null for nothing.
QWidget* sorteTab(Workbench& w, const SorteTab& names, QLayout* above = nullptr);

/// Two columns of a tab: the left one no wider than it needs to be read, the rest for the right one.
QWidget* leftAndRight(QLayout* left, QLayout* right);

/// The widest texts of the columns of a grid of hits.
std::vector<QString> hitSamples();

}  // namespace trv5
