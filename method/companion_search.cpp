#include <algorithm>
#include <cstddef>

#include "method/search.h"
#include "method/vote_counter.h"

namespace trv5 {
namespace {

// The votes of the companions, gathered by the draw that formulas are evaluated on: all rows of one case are one.
struct CompanionVotes {
  std::vector<int> draws;
  std::vector<ResidueWeights> cc, pres;
};

int insideArchive(int draw) {
  return draw >= 0 && draw <= Archive::kMaxDraws ? draw : 0;
}

class CompanionCount {
 public:
  CompanionCount(const CompanionRequest& request, const Outcomes& outcomes)
      : m_request(request), m_outcomes(outcomes), m_place(Archive::kMaxDraws + 1, -1), m_used(Archive::kMaxDraws + 1) {}

  CompanionVotes votes() {
    for (const CompanionRow& row : m_request.rows) add(row);
    return std::move(m_votes);
  }

 private:
  void add(const CompanionRow& row) {
    const int hitDraw = insideArchive(row.hitDraw);
    const bool usedBefore = m_used[static_cast<std::size_t>(hitDraw)];
    if (m_request.guarded && usedBefore) return;
    NumberFlags present{}, seen{};
    for (const int n : row.numbers)
      if (n >= 0 && n <= 90) present[static_cast<std::size_t>(n)] = true;
    for (int w = 0; w < kWheels; ++w) {
      if (!holds(m_request.wheels, w)) continue;
      const std::uint8_t* numbers = m_outcomes.wheelOf(hitDraw, w);
      const auto inPlay = std::count_if(numbers, numbers + kPositions, [&](std::uint8_t n) { return present[n]; });
      if (inPlay < m_request.least || inPlay > m_request.most) continue;
      m_used[static_cast<std::size_t>(hitDraw)] = true;
      const std::size_t place = placeOf(insideArchive(row.caseDraw));
      for (int k = 0; k < kPositions; ++k) {
        const std::uint8_t n = numbers[k];
        if (present[n]) continue;
        ++m_votes.pres[place][n % 90U];
        if (!m_request.guarded || !seen[n]) ++m_votes.cc[place][n % 90U];
        seen[n] = true;
      }
    }
  }

  std::size_t placeOf(int caseDraw) {
    int& place = m_place[static_cast<std::size_t>(caseDraw)];
    if (place < 0) {
      place = static_cast<int>(m_votes.draws.size());
      m_votes.draws.push_back(caseDraw);
      m_votes.cc.emplace_back();
      m_votes.pres.emplace_back();
    }
    return static_cast<std::size_t>(place);
  }

  const CompanionRequest& m_request;
  Outcomes m_outcomes;
  CompanionVotes m_votes;
  std::vector<int> m_place;  // by draw of the case, -1 for none yet
  std::vector<bool> m_used;  // EstrazioneUsata, by draw of the hit
};

}  // namespace

CompanionSearch::CompanionSearch(const CompanionRequest& request)
    : m_request(request), m_place(Archive::kMaxDraws + 1, -1) {
  std::vector<int> draws;
  for (const CompanionRow& row : request.rows) {
    const int draw = insideArchive(row.caseDraw);
    int& place = m_place[static_cast<std::size_t>(draw)];
    if (place >= 0) continue;
    place = static_cast<int>(draws.size());
    draws.push_back(draw);
  }
  const FormulaInput& formula = request.formula;
  m_values = std::make_unique<const FormulaValues>(*request.archive, formula, draws,
                                                   elementSets(formula.shape, SetOrder::ElementFirst, formula.triples));
}

CompanionSearch::~CompanionSearch() = default;

std::vector<Candidate> CompanionSearch::run(const Outcomes& outcomes, int keep) const {
  if (keep < 1) return {};
  const CompanionVotes votes = CompanionCount(m_request, outcomes).votes();
  const VoteRings rings(votes.cc);
  std::vector<int> places;
  for (const int index : rings.cases())
    places.push_back(m_place[static_cast<std::size_t>(votes.draws[static_cast<std::size_t>(index)])]);
  const FormulaValues values = m_values->of(places);
  NumberFlags fixes{};
  fixes[90] = true;
  Ranking ranking(keep);
  rankVotes(rings, values, m_request.withFix ? m_request.allowedFix : fixes, ranking);

  std::vector<Candidate> candidates;
  std::vector<std::uint8_t> residues(values.rowLength());
  for (const Ranking::Row& found : ranking.rows()) {
    const auto set = static_cast<std::size_t>(found.set);
    values.numbers(set, found.fix, residues.data());
    std::uint32_t pres = 0;
    for (std::size_t i = 0; i < places.size(); ++i)
      pres += votes.pres[static_cast<std::size_t>(rings.cases()[i])][residues[i]];
    candidates.push_back({values.set(set), found.fix, found.count, static_cast<int>(pres), 0});
  }
  return candidates;
}

std::vector<Candidate> searchCompanions(const CompanionRequest& request) {
  return CompanionSearch(request).run(*request.archive, request.keep);
}

}  // namespace trv5
