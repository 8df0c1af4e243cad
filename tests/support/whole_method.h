#pragma once

#include <random>
#include <vector>

#include "method/elaboration.h"
#include "method/search.h"
#include "method/summary.h"

namespace trv5 {

/// A method from its situation to its summary.
struct WholeMethod {
  Method method = {};  ///< with the formulas found on the way
  std::vector<int> cases = {};
  ByTable<Verification> verified = {};
  Elaboration elaborated = {};
  Summary summary = {};
};

/// The hits of all cases as a search of companions starts from them: the numbers that each hit names are in play.
std::vector<CompanionRow> companionRows(const std::vector<Hits>& hits, const std::vector<int>& caseDraws);

/// Detects the cases; searches an ambata (2N 1R, "N1 + N2", with fix), an ambo, a terno, and, on top of these three in
/// a lunghetta, one more number, each time taking the best formula over; verifies all of it.
WholeMethod playWholeMethod(const Archive& archive, Method method);

/// A situation of one element, wheels of play, colpi and sorte on an archive, without formulas.
Method randomSituation(std::mt19937& rng, const Archive& archive);

}  // namespace trv5
