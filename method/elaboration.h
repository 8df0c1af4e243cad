#pragma once

#include <vector>

#include "method/verification.h"

namespace trv5 {

/// How the numbers of a lunghetta came out, case by case.
struct Elaboration {
  std::vector<CaseNumbers> numbers;  ///< in play, by case
  std::vector<Hits> hits;            ///< by case: the wheels that hold one number in play or more
  std::vector<int> marked;           ///< by case: hits that reach the sorte, where that marks the case; else 0
  std::array<int, 6> bySorte{};      ///< hits by quantity of numbers 1..5
};

/// True when the last wheel looked at holds enough of the numbers for a hit to mark the case.
bool marksCase(const Outcomes& outcomes, int caseDraw, const PlayWindow& window, const NumberFlags& inPlay);

/// Works out the lunghetta in all cases. A case that reached the sorte is marked only when the last wheel looked at, of
/// the last draw that counts, holds two of its numbers: not the best wheel of the case decides, and users' methods rely
/// on it.
Elaboration elaborate(const Archive& archive, const Method& method, const std::vector<int>& caseDraws,
                      ParametriFormula& carry);

}  // namespace trv5
