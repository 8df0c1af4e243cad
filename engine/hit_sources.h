#pragma once

#include <vector>

#include "cases/workbench.h"

namespace trv5 {

/// The hits that a search of companions, or of pure numbers, starts from, by the table it works for.
struct HitSource {
  int sorte;  ///< 2 ambi, 3 terni, 6 lunghetta
  GridControl Workbench::*hits;
  /// Column of `FgEv` that tells the covered cases; 0: `CasiQuasi` tells the cases to work on.
  int coveredColumn;
  int numberColumns;           ///< columns of the hit rows that hold the numbers in play, from G1 on
  const char* missingMessage;  ///< shown when there are no hit rows; null: an empty grid is searched in silence
};

/// The source of the table 2, 3 or 6.
const HitSource& hitSource(int sorte);

/// A hit row that counts.
struct SourceHit {
  int caseRow, caseDraw, hitDraw;  ///< hitDraw is above 0
  std::vector<int> numbers;        ///< above 0
};

/// False, with the message shown, when the hits of the table below must come first.
bool hitsAreThere(Workbench& w, const HitSource& source);

/// The hit rows of the source, without those that "Casi scoperti" leaves out.
std::vector<SourceHit> countingHits(const Workbench& w, const HitSource& source);

}  // namespace trv5
