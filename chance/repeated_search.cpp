#include "chance/repeated_search.h"

#include <algorithm>
#include <utility>

#include "core/numbers.h"
#include "method/drawn_numbers.h"

namespace trv5 {
namespace {

// Wheels in four bits, positions in three, the fix in seven, the rest for the wheel set.
std::uint64_t formulaOf(const Candidate& row) {
  auto formula = static_cast<std::uint64_t>(row.wheelSet) << 7U | static_cast<std::uint64_t>(row.fix);
  for (std::size_t e = 0; e < row.elements.wheels.size(); ++e)
    formula = formula << 7U | static_cast<std::uint64_t>(row.elements.wheels[e]) << 3U | row.elements.positions[e];
  return formula;
}

std::vector<CountedRow> countedRows(const std::vector<Candidate>& ranking) {
  std::vector<CountedRow> rows;
  rows.reserve(ranking.size());
  for (const Candidate& row : ranking) rows.push_back({row.cc, formulaOf(row)});
  return rows;
}

// The first by count, among equals in the order in which they come.
void keepFirst(std::vector<CountedRow>& rows, int keep) {
  std::stable_sort(rows.begin(), rows.end(),
                   [](const CountedRow& a, const CountedRow& b) { return a.count > b.count; });
  if (rows.size() > static_cast<std::size_t>(std::max(keep, 0)))
    rows.resize(static_cast<std::size_t>(std::max(keep, 0)));
}

WheelSet wheelsOf(const std::vector<WheelSet>& sets) {
  WheelSet wheels = 0;
  for (const WheelSet set : sets) wheels |= set;
  return wheels;
}

class Ambate : public RepeatedSearch {
 public:
  explicit Ambate(const AmbataRequest& r)
      : RepeatedSearch(redrawAfter(*r.archive, r.cases, r.colpi, r.lastDraw, wheelsOf(r.wheelSets)), r.keep),
        m_search(r) {}

  std::vector<CountedRow> run(const Outcomes& outcomes, int keep) const override {
    return countedRows(m_search.run(outcomes, keep));
  }
  std::vector<std::int64_t> tally(const Outcomes& outcomes, int least) const override {
    return m_search.tally(outcomes, least);
  }

 private:
  AmbataSearch m_search;
};

class PureNumbers : public RepeatedSearch {
 public:
  PureNumbers(const Archive& archive, std::vector<int> cases, int colpi, int lastDraw, std::vector<WheelSet> wheelSets,
              int keep)
      : RepeatedSearch(redrawAfter(archive, cases, colpi, lastDraw, wheelsOf(wheelSets)), keep),
        m_cases(std::move(cases)),
        m_colpi(colpi),
        m_lastDraw(lastDraw),
        m_wheelSets(std::move(wheelSets)) {}

  std::vector<CountedRow> run(const Outcomes& outcomes, int keep) const override {
    std::vector<CountedRow> rows;
    const std::vector<NumberCounts> counts = countNumbers(outcomes, m_cases, m_colpi, m_lastDraw, m_wheelSets);
    for (std::size_t set = 0; set < counts.size(); ++set)
      for (std::size_t n = 1; n <= kMostNumber; ++n)
        if (counts[set][n].cc > 0) rows.push_back({counts[set][n].cc, set << 7U | n});
    keepFirst(rows, keep);
    return rows;
  }

 private:
  std::vector<int> m_cases;
  int m_colpi, m_lastDraw;
  std::vector<WheelSet> m_wheelSets;
};

std::vector<KeptNumbers> keptByRows(const CompanionRequest& request) {
  std::vector<KeptNumbers> kept;
  for (const CompanionRow& row : request.rows) {
    KeptNumbers& entry = kept.emplace_back(KeptNumbers{.draw = row.hitDraw, .numbers = {}});
    for (const int n : row.numbers)
      if (n >= 1 && n <= kMostNumber) entry.numbers[static_cast<std::size_t>(n)] = true;
  }
  return kept;
}

class Companions : public RepeatedSearch {
 public:
  explicit Companions(const CompanionRequest& request)
      : RepeatedSearch(redrawBeside(*request.archive, keptByRows(request), request.wheels), request.keep),
        m_search(request) {}

  std::vector<CountedRow> run(const Outcomes& outcomes, int keep) const override {
    return countedRows(m_search.run(outcomes, keep));
  }

 private:
  CompanionSearch m_search;
};

std::vector<CaseNumbers> numbersOf(const CandidateRequest& request) {
  ParametriFormula carry;
  return numbersInPlay(*request.archive, request.method.formulas, request.caseDraws, carry);
}

// A candidate is verified beside the numbers of the tables below its own, a lunghetta beside its own. They stay in all
// draws of their cases: where the search looks at some hits only, the verification sees the others too.
std::vector<KeptNumbers> keptByVerification(const CompanionRequest& search, const CandidateRequest& request,
                                            const std::vector<CaseNumbers>& numbers) {
  std::vector<KeptNumbers> kept = keptByRows(search);
  const int joined = traitsOf(request.table).joinedTables;
  for (std::size_t i = 0; i < request.caseDraws.size(); ++i) {
    NumberFlags flags{};
    for (std::size_t table = 0; table < numbers[i].size(); ++table) {
      const bool plays = joined == 0 ? table == indexOf(request.table) : static_cast<int>(table) < joined - 1;
      for (std::size_t n = 1; plays && n < flags.size(); ++n) flags[n] = flags[n] || numbers[i][table].flags()[n];
    }
    const ColpiWindow window = windowAfter(request.caseDraws[i], request.method.colpi, request.method.reference);
    for (int draw = window.first; draw <= window.last; ++draw) kept.push_back({draw, flags});
  }
  return kept;
}

class VerifiedCompanions : public RepeatedSearch {
 public:
  VerifiedCompanions(const CompanionRequest& search, const CandidateRequest& verification)
      : VerifiedCompanions(search, verification, numbersOf(verification)) {}

  std::vector<CountedRow> run(const Outcomes& outcomes, int keep) const override {
    const CandidateCounts counts(m_verification, outcomes, m_numbers);
    std::vector<CountedRow> rows;
    for (const Candidate& row : m_search.run(outcomes, this->keep())) {
      const Totals totals = counts.with(
          [&](int draw) { return numberOf(*m_verification.archive, m_formula, row.elements, row.fix, draw); });
      rows.push_back({totals.cases, formulaOf(row)});
    }
    keepFirst(rows, keep);
    return rows;
  }

 private:
  VerifiedCompanions(const CompanionRequest& search, const CandidateRequest& verification,
                     std::vector<CaseNumbers> numbers)
      : RepeatedSearch(redrawBeside(*search.archive, keptByVerification(search, verification, numbers),
                                    search.wheels | verification.method.wheels),
                       search.keep),
        m_search(search),
        m_formula(search.formula),
        m_verification(verification),
        m_numbers(std::move(numbers)) {}

  CompanionSearch m_search;
  FormulaInput m_formula;
  CandidateRequest m_verification;
  std::vector<CaseNumbers> m_numbers;
};

}  // namespace

std::vector<std::int64_t> RepeatedSearch::tally(const Outcomes& outcomes, int least) const {
  std::vector<std::int64_t> formulas;
  for (const CountedRow& row : run(outcomes, m_keep)) {
    if (row.count < least) continue;
    if (static_cast<std::size_t>(row.count) >= formulas.size())
      formulas.resize(static_cast<std::size_t>(row.count) + 1);
    ++formulas[static_cast<std::size_t>(row.count)];
  }
  return formulas;
}

std::shared_ptr<const RepeatedSearch> repeatAmbate(const AmbataRequest& request) {
  return std::make_shared<const Ambate>(request);
}

std::shared_ptr<const RepeatedSearch> repeatPureNumbers(const Archive& archive, const std::vector<int>& cases,
                                                        int colpi, int lastDraw, std::vector<WheelSet> wheelSets,
                                                        int keep) {
  return std::make_shared<const PureNumbers>(archive, cases, colpi, lastDraw, std::move(wheelSets), keep);
}

std::shared_ptr<const RepeatedSearch> repeatCompanions(const CompanionRequest& request) {
  return std::make_shared<const Companions>(request);
}

std::shared_ptr<const RepeatedSearch> repeatCompanions(const CompanionRequest& request,
                                                       const CandidateRequest& verification) {
  return std::make_shared<const VerifiedCompanions>(request, verification);
}

int numberOf(const Archive& archive, const FormulaInput& formula, const ElementSet& elements, int fix, int draw) {
  const auto element = [&](std::size_t e) {
    return zeroAs90(
        formula.elements[e][static_cast<std::size_t>(archive.number(draw, elements.wheels[e], elements.positions[e]))]);
  };
  switch (formula.shape) {
    case Shape::OneNumber:
      return fold90(element(0) + fix);
    case Shape::ThreeOneWheel:
      return fold90(element(0) + element(1) + element(2) + fix);
    default:
      return fold90(combine(formula.op, element(0), element(1)) + fix);
  }
}

}  // namespace trv5
