#pragma once

#include <QWidget>
#include <vector>

#include "cases/workbench.h"
#include "screens/kit/kit.h"

namespace trv5 {

/// What the four tabs Ambate, Ambi, Terni and Lunghetta are made of, by the names of their controls.
struct SorteTab {
  const char* sorte;  ///< as the tab is called, for the names of its grids
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

/// Two columns of a tab. The right one has the width that `grid`, which it holds, wants for its columns; the left one
/// the rest, up to what is easily read; what is still left goes to the right one. So the columns of all tabs with such
/// a grid are equal, whatever their buttons.
QWidget* leftAndRight(QLayout* left, QLayout* right, GridView* grid);

/// The widest texts of the columns of a grid of hits.
std::vector<QString> hitSamples();

}  // namespace trv5
