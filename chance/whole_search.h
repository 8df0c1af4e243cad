#pragma once

#include <cstdint>
#include <vector>

#include "chance/workers.h"
#include "method/search.h"

namespace trv5 {

/// How the rows of all searches stand in one ranking.
enum class WholeOrder {
  Rarity,  ///< by the chance that a formula fixed beforehand covers as many on so many wheels, the smallest first
  Covered  ///< by cases covered, and among equals by rarity
};

/// A search of ambate through everything: the four shapes with every alteration and operator, every fix, every set of
/// one, two and three wheels.
struct WholeRequest {
  const Archive* archive = nullptr;
  std::vector<int> cases = {};  ///< draw index of each case that counts
  int colpi = 0;                ///< draws after the case that count
  int lastDraw = 0;             ///< later draws aren't seen
  TripleFlags triples{};        ///< of the three numbers of one wheel
  WholeOrder order = WholeOrder::Rarity;
  int keep = 0;  ///< rows of the ranking
};

/// One run of a search button within it.
struct WholePass {
  Shape shape = Shape::OneNumber;
  int alteration = 0;           ///< index in kAlterations
  Operator op = Operator::Sum;  ///< of two elements

  bool operator==(const WholePass&) const = default;
};

struct WholeRow {
  WholePass pass;
  Candidate formula;    ///< `wheelSet` counts in wholeWheelSets()
  WheelSet wheels = 0;  ///< the wheels of play
  double rarity = 1;    ///< the chance of a formula fixed beforehand to cover as many on these wheels
};

/// The 231 sets of one, two and three wheels, each size in the order of its button.
const std::vector<WheelSet>& wholeWheelSets();

/// All passes in the order in which equal rows follow each other: by shape, alteration, operator.
std::vector<WholePass> wholePasses();

/// How many formulas a search goes through: those of all passes with every fix on every set of wheels.
std::int64_t wholeFormulas(const TripleFlags& triples);

/// What a pass evaluates.
FormulaInput formulaOf(const WholePass& pass, const TripleFlags& triples);

/// The best rows. A case is covered by the number of the formula and by nothing else: a wheel that wasn't drawn covers
/// none. Rows of equal rarity and count keep the order of passes, wheel sets, fixes and element sets. Stopped, it gives
/// no row at all.
std::vector<WholeRow> searchEverything(const WholeRequest& request, const Workers& workers = {});

}  // namespace trv5
