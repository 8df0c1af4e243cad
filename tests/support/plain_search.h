#pragma once

#include <array>
#include <vector>

#include "method/search.h"

namespace trv5 {

/// A formula's shape and rules as the searches read them from the controls.
struct PlainFormula {
  static constexpr int kConstant = 9;  ///< alteration: each element is its constant

  Shape shape = Shape::OneNumber;
  int alteration = 0;  ///< index in kAlterations, or kConstant
  std::array<int, 3> constants{};
  int op = 0;  ///< index in kOperators
  TripleFlags triples{};
};

/// The same for the engine.
FormulaInput formulaInput(const PlainFormula& formula);

/// The searches as their rules tell them, step by step: every case, element set, draw, wheel and position in loops, a
/// table of counters, a ranking in which a newcomer takes the place of the last row before all is sorted. They are what
/// the engine is measured against and what it has to agree with. Of the requests they read all but `formula`.
std::vector<Candidate> plainSearchAmbate(const PlainFormula& formula, const AmbataRequest& request);
std::vector<Candidate> plainSearchCompanions(const PlainFormula& formula, const CompanionRequest& request);
std::vector<NumberCounts> plainCountNumbers(const Archive& archive, const std::vector<int>& cases, int colpi,
                                            int lastDraw, const std::vector<WheelSet>& wheelSets);
NumberCounts plainCountNumbersAtHits(const Archive& archive, const std::vector<PureNumberRow>& rows, WheelSet wheels);

/// The wheel sets of the best-wheel buttons: each wheel, pair or triple of wheels.
std::vector<WheelSet> plainWheelSets(int wheels);

/// The 35 ascending triples.
TripleFlags ascendingTriples();

/// All fixes, 1..90.
NumberFlags everyFix();

}  // namespace trv5
