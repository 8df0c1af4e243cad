#pragma once

#include "cases/workbench.h"

namespace trv5 {

/// The "NUM" buttons of the tab Ambate: the numbers by the cases after which they were drawn, on `RuoteGioco`
/// (`wheelsOfSet` 0) or on every set of 1, 2 or 3 wheels. Each wheel set overwrites the rows 1 to 90 one after the
/// other, and each row moves to its place at once: rows of earlier sets that climbed above the running row survive, and
/// that is how these lists are meant to be.
void CercaNumeri(Workbench& w, int wheelsOfSet);

/// The "NUM" buttons of the tabs Ambi, Terni and Lunghetta: the number that completes earlier hits. That of the
/// lunghetta counts nothing: it lists the 90 numbers for the verification that follows.
void CercaNumeriCompagni(Workbench& w, Table table);

}  // namespace trv5
