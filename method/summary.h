#pragma once

#include <array>
#include <set>
#include <vector>

#include "method/verification.h"

namespace trv5 {

/// A hit of a table as the summary of a method joins it.
struct SummaryHit {
  int caseRow = 0;  ///< row of the case in the list, from 1
  int colpo = 0;    ///< draws from the case to the hit
  int sorte = 0;    ///< 1 ambata, 2 ambo, 3 terno
};

/// A row of the summary.
struct SummaryRow {
  int caseRow = 0;
  int hit = -1;  ///< place among the hits that were joined; -1: a case without hit

  bool operator==(const SummaryRow&) const = default;
};

/// What a whole method gave, case by case and colpo by colpo.
struct Summary {
  std::vector<SummaryRow> rows;
  std::array<int, 6> bySorte{};  ///< hits by sorte 1..3
  int positive = 0;              ///< hits
  int negative = 0;              ///< cases without hit that aren't open
  /// A hit or a row of the list names a case that no list can hold; what hangs on it was passed over.
  bool anomaly = false;
};

/// Joins the hits of the tables that were chosen, in their order. `numbering`: the number that each row of the case
/// list bears, by row from 0; hits name cases by it, and so does `open`, the cases still open. With `firstOnly` the
/// hits of each case's first colpo stay alone, of every sorte and on every wheel; hits later than 1000 draws are first
/// of no case.
Summary summarize(const std::vector<SummaryHit>& hits, const std::vector<int>& numbering, const std::set<int>& open,
                  bool firstOnly);

/// The hits of a table for the summary, which passes over the cases still open.
void joinHits(const Verification& verified, Table table, const std::vector<int>& caseDraws,
              std::vector<SummaryHit>& into);

}  // namespace trv5
