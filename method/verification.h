#pragma once

#include <functional>
#include <vector>

#include "method/hits.h"
#include "method/method.h"

namespace trv5 {

/// Which cases a verification goes through, and how far.
struct Scope {
  /// By case from 0; a case beyond the list is played. Empty: all are.
  std::vector<bool> leftOut = {};
  /// Draw index of the last draw that counts; 0: the method's reference draw.
  int lastDraw = 0;
};

/// How often and in how many cases.
struct Totals {
  int hits = 0, cases = 0;
  void add(int hitsOfCase) {
    hits += hitsOfCase;
    if (hitsOfCase > 0) ++cases;
  }
  bool operator==(const Totals&) const = default;
};

/// What playing a table over the cases gave. Cases count from 0.
struct Verification {
  std::vector<CaseNumbers> numbers;  ///< in play, by case
  std::vector<Hits> hits;            ///< by case
  std::vector<bool> played;          ///< by case
  /// By case: fewer than the colpi have been drawn up to the reference draw.
  std::vector<bool> open;
  std::array<int, 6> bySorte{};  ///< hits by quantity of numbers 1..5; a table counts by its own but for the lunghetta
  Totals totals;

  bool covered(std::size_t caseIndex) const { return !hits[caseIndex].empty(); }
};

/// Plays a table as one forecast: in each case the numbers of all its formulas, from the draw after the case on.
/// `caseDraws`: the draws of the cases.
Verification verify(const Archive& archive, const Method& method, Table table, const std::vector<int>& caseDraws,
                    const Scope& scope, ParametriFormula& carry);

/// The same on other outcomes, with the numbers in play worked out before.
Verification play(const Outcomes& outcomes, const Method& method, Table table, const std::vector<int>& caseDraws,
                  const Scope& scope, std::vector<CaseNumbers> numbers);

/// The hits of one case. A lunghetta wants `sorte` numbers on a wheel.
Hits hitsOfCase(const Outcomes& outcomes, Table table, const CaseNumbers& numbers, int caseDraw,
                const PlayWindow& window, int sorte);

/// One formula played by itself, in each case its number and the hits.
struct RowVerification {
  std::vector<int> numbers;
  std::vector<Hits> hits;
};

/// `evaluate` leaves the number of a case in the record, whose `Estr` is set to the draw of the case before.
RowVerification verifyRow(const Archive& archive, const PlayWindow& window, const std::vector<int>& caseDraws,
                          ParametriFormula& carry, const std::function<void(ParametriFormula&)>& evaluate);

}  // namespace trv5
