#include "method/candidate_check.h"

#include <algorithm>
#include <span>

#include "method/elaboration.h"

namespace trv5 {
namespace {

std::vector<CaseNumbers> numbersStandingAlone(const CandidateRequest& request) {
  ParametriFormula carry;
  return numbersInPlay(*request.archive, request.method.formulas, request.caseDraws, carry);
}

}  // namespace

bool countsStandAlone(const CandidateRequest& request, const std::vector<FormulaRow>& candidates) {
  const auto alone = [](const FormulaRow& row) { return Formula(row).standsAlone(); };
  for (const std::vector<FormulaRow>& table : request.method.formulas)
    if (!std::all_of(table.begin(), table.end(), alone)) return false;
  return std::all_of(candidates.begin(), candidates.end(),
                     [&](const FormulaRow& row) { return isBlank(row) || alone(row); }) &&
         !request.archive->repeatsNumbers();
}

CandidateCounts::CandidateCounts(const CandidateRequest& request)
    : CandidateCounts(request, *request.archive, numbersStandingAlone(request)) {}

CandidateCounts::CandidateCounts(const CandidateRequest& request, const Outcomes& outcomes,
                                 const std::vector<CaseNumbers>& numbers)
    : m_archive(*request.archive) {
  const PlayWindow window = request.method.window();
  // A forecast joins one number of each table below and the candidate's; a lunghetta, its own numbers and that one.
  const int joined = traitsOf(request.table).joinedTables;
  for (std::size_t i = 0; i < request.caseDraws.size(); ++i) {
    OneCase one{.draw = request.caseDraws[i], .leftOut = i < request.leftOut.size() && request.leftOut[i]};
    if (joined == 0)
      one.counts =
          companionsOfAll(outcomes, one.draw, window, numbers[i][indexOf(request.table)].flags(), request.method.sorte);
    else if (!one.leftOut)
      one.counts = companionsOfSets(outcomes, one.draw, window,
                                    std::span(numbers[i]).first(static_cast<std::size_t>(joined - 1)));
    m_cases.push_back(one);
  }
}

Totals CandidateCounts::with(const FormulaRow& candidate) const {
  const Formula formula(candidate);
  ParametriFormula carry;
  return with([&](int draw) { return formula.evaluate(m_archive, draw, carry); });
}

Totals CandidateCounts::with(const std::function<int(int draw)>& numberOf) const {
  Totals totals;
  for (const OneCase& one : m_cases) totals.add(hits(one, numberOf(one.draw)));
  return totals;
}

Totals CandidateCounts::without() const {
  Totals totals;
  for (const OneCase& one : m_cases) totals.add(hits(one, 0));
  return totals;
}

int CandidateCounts::hits(const OneCase& one, int number) {
  const auto n = static_cast<std::size_t>(number >= 1 && number <= kMostNumber ? number : 0);
  const int hits = one.counts.always + one.counts.with[n];
  if (!one.leftOut) return hits;
  // The closing elaboration of the lunghetta leaves no case out: it marks by the last wheel looked at.
  return one.counts.playedOnLastWheel + (one.counts.onLastWheel[n] ? 1 : 0) >= 2 ? hits : 0;
}

Totals verifiedTotals(const CandidateRequest& request, ParametriFormula& carry) {
  const Archive& archive = *request.archive;
  if (request.table != Table::Lunghetta)
    return verify(archive, request.method, request.table, request.caseDraws, {.leftOut = request.leftOut}, carry)
        .totals;
  // The lunghetta is evaluated twice, for its verification and for the elaboration that ends it; of both only the
  // counts are wanted.
  const std::vector<CaseNumbers> verified = numbersInPlay(archive, request.method.formulas, request.caseDraws, carry);
  const std::vector<CaseNumbers> elaborated = numbersInPlay(archive, request.method.formulas, request.caseDraws, carry);
  const PlayWindow window = request.method.window();
  Totals totals;
  for (std::size_t i = 0; i < request.caseDraws.size(); ++i) {
    const int draw = request.caseDraws[i];
    const auto count = [&](const std::vector<CaseNumbers>& numbers) {
      return countOfAll(archive, draw, window, numbers[i][indexOf(Table::Lunghetta)].flags(), request.method.sorte);
    };
    const NumberFlags& inPlay = elaborated[i][indexOf(Table::Lunghetta)].flags();
    const bool marks = marksCase(archive, draw, window, inPlay);
    const bool leftOut = i < request.leftOut.size() && request.leftOut[i];
    const int reached = marks ? count(elaborated) : 0;
    totals.add(reached > 0 || leftOut ? reached : count(verified));
  }
  return totals;
}

}  // namespace trv5
