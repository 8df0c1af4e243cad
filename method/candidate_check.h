#pragma once

#include <functional>
#include <vector>

#include "method/companion_counts.h"
#include "method/verification.h"

namespace trv5 {

/// What candidates of a search are verified against.
struct CandidateRequest {
  const Archive* archive = nullptr;
  /// The method; of the table at stake, the formulas that each candidate is put behind.
  Method method;
  Table table = Table::Ambi;  ///< ambi, terni or lunghetta
  std::vector<int> caseDraws;
  std::vector<bool> leftOut = {};  ///< by case: what is covered already, where only the others count
};

/// True when no formula of the method and no candidate hangs on the evaluation before it, and no wheel of the archive
/// holds a number twice: candidates can then be counted by CandidateCounts.
bool countsStandAlone(const CandidateRequest& request, const std::vector<FormulaRow>& candidates);

/// Counts candidates by look-ups: in each case, how many hits each number 1..90 would make with the numbers in play.
class CandidateCounts {
 public:
  explicit CandidateCounts(const CandidateRequest& request);
  /// The same on other outcomes, with the numbers that the method puts in play worked out before.
  CandidateCounts(const CandidateRequest& request, const Outcomes& outcomes, const std::vector<CaseNumbers>& numbers);

  /// What the verification of the table would count with this formula behind its own.
  Totals with(const FormulaRow& candidate) const;
  /// The same of a formula that gives `numberOf(draw)` on the draw of a case.
  Totals with(const std::function<int(int draw)>& numberOf) const;
  /// The same without a candidate.
  Totals without() const;

 private:
  struct OneCase {
    int draw = 0;
    bool leftOut = false;
    CompanionCounts counts = {};
  };
  static int hits(const OneCase& one, int number);

  const Archive& m_archive;
  std::vector<OneCase> m_cases;
};

/// What the verification of the table counts with the method as it stands, its evaluations carried on.
Totals verifiedTotals(const CandidateRequest& request, ParametriFormula& carry);

}  // namespace trv5
