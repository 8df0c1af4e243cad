#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// How a column of a formula table is coloured: a cell with these colours and without a text.
Cell formulaColours(int column);

/// Colours a formula table: elements, counters, fix.
void coloraFormule(Grid& formulas);

/// "Colora grid": colours `FgF`, its counters in their own shade.
void ColoraFgF(Workbench& w);

/// Colours `Fg00` and numbers its rows from 1.
void Colora_fg00(Workbench& w);

/// Numbers the rows of `Fg00` from 1.
void numeraFg00(Workbench& w);

/// Colours the hit grid of a table and merges the equal neighbours of its column 1; the ambi and the terni also have
/// the columns of `Fg15` fitted.
void coloraEsiti(Workbench& w, Table table);

}  // namespace trv5
