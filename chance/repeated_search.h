#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "chance/fair_draws.h"
#include "method/candidate_check.h"
#include "method/search.h"

namespace trv5 {

/// A row of a ranking as far as luck is concerned.
struct CountedRow {
  int count = 0;              ///< cases covered
  std::uint64_t formula = 0;  ///< the same for the same formula on the same wheels, and for no other

  bool operator==(const CountedRow&) const = default;
};

/// A search that can be run on any outcomes as often as wanted, and what has to be drawn anew for it to try its luck.
class RepeatedSearch {
 public:
  virtual ~RepeatedSearch() = default;

  /// The first rows of the ranking by count, `keep` of them if there are so many.
  virtual std::vector<CountedRow> run(const Outcomes& outcomes, int keep) const = 0;
  /// How many formulas cover each number of cases, by cases, from `least` (1 or more) on: of all formulas, or where a
  /// search counts its candidates anew, of those.
  virtual std::vector<std::int64_t> tally(const Outcomes& outcomes, int least) const;

  const Redraw& redraw() const { return m_redraw; }
  /// Rows that the user's ranking has at most.
  int keep() const { return m_keep; }

 protected:
  RepeatedSearch(Redraw redraw, int keep) : m_redraw(std::move(redraw)), m_keep(keep) {}

 private:
  Redraw m_redraw;
  int m_keep;
};

/// A search of ambate, best-wheel or not: all wheels of play are drawn anew in the colpi of its cases.
std::shared_ptr<const RepeatedSearch> repeatAmbate(const AmbataRequest& request);

/// The pure numbers, one formula each: the same.
std::shared_ptr<const RepeatedSearch> repeatPureNumbers(const Archive& archive, const std::vector<int>& cases,
                                                        int colpi, int lastDraw, std::vector<WheelSet> wheelSets,
                                                        int keep);

/// A search of companions: the numbers in play stay where they came out, what else stands on their wheels is drawn
/// anew. Counts are those of the search.
std::shared_ptr<const RepeatedSearch> repeatCompanions(const CompanionRequest& request);

/// The same with what follows it: each of the `request.keep` candidates is verified and counts the cases that it
/// covers. Of the method no formula may hang on the evaluation before it (countsStandAlone).
std::shared_ptr<const RepeatedSearch> repeatCompanions(const CompanionRequest& request,
                                                       const CandidateRequest& verification);

/// The number 1..90 that a formula of a search gives on a draw, as the search takes it.
int numberOf(const Archive& archive, const FormulaInput& formula, const ElementSet& elements, int fix, int draw);

}  // namespace trv5
