#pragma once

#include <vector>

#include "cases/hit_rows.h"
#include "cases/workbench.h"

namespace trv5 {

/// The hits that a search of companions, or of pure numbers, starts from, by the table it works for.
struct HitSource {
  Table table;  ///< ambi, terni, lunghetta
  GridControl Workbench::*hits;
  /// Column of `FgEv` that tells the covered cases; 0: `CasiQuasi` tells the cases to work on.
  int coveredColumn;
  int numberColumns;           ///< columns of the hit rows that hold the numbers in play, from G1 on
  const char* missingMessage;  ///< shown when there are no hit rows; null: an empty grid is searched in silence
};

/// The source of the ambi, the terni or the lunghetta.
const HitSource& hitSource(Table table);

/// False, with the message shown, when the hits of the table below must come first.
bool hitsAreThere(Workbench& w, const HitSource& source);

/// The rows of the source that tell a hit, without those that "Casi scoperti" leaves out.
std::vector<HitRow> countingHits(const Workbench& w, const HitSource& source);

}  // namespace trv5
