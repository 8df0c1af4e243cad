#pragma once

#include <vector>

#include "chance/poisson_binomial.h"
#include "method/hits.h"
#include "method/table.h"

namespace trv5 {

/// True when a wheel of a draw was drawn; a wheel that was entered in part counts.
bool wasDrawn(const Outcomes& outcomes, int draw, int wheel);

/// How many wheels of play were drawn in the colpi of a case. Draws behind the last that counts aren't there.
int wheelDraws(const Outcomes& outcomes, int caseDraw, const PlayWindow& window);

/// The chance of one drawn wheel to be a hit of the table with these numbers in play. Ambi and terni hit with one
/// number of each list, all different; a lunghetta with `sorte` of its numbers.
double chanceOnWheel(Table table, const CaseNumbers& numbers, int sorte);

/// What chance alone covers of the cases of a table whose numbers are fixed.
struct ExpectedCover {
  /// By case: its chance to be covered; 0 where nothing was drawn or it wasn't played.
  std::vector<double> chances;
  /// Of the cases played, the covered ones. Cases whose colpi overlap and that play the same numbers hang on each
  /// other: their mean is right all the same.
  PoissonBinomial covered;
};

/// `leftOut`: by case, as a verification has it; empty for none.
ExpectedCover expectedCover(const Outcomes& outcomes, Table table, const std::vector<CaseNumbers>& numbers,
                            const std::vector<int>& caseDraws, const PlayWindow& window, int sorte,
                            const std::vector<bool>& leftOut = {});

}  // namespace trv5
