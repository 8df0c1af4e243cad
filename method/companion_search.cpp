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
  explicit CompanionCount(const CompanionRequest& request)
      : m_request(request),
        m_outcomes(*request.archive),
        m_place(Archive::kMaxDraws + 1, -1),
        m_used(Archive::kMaxDraws + 1) {}

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

std::vector<Candidate> searchCompanions(const CompanionRequest& request) {
  if (request.keep < 1) return {};
  const FormulaInput& formula = request.formula;
  const CompanionVotes votes = CompanionCount(request).votes();
  const VoteRings rings(votes.cc);
  std::vector<int> draws;
  for (const int index : rings.cases()) draws.push_back(votes.draws[static_cast<std::size_t>(index)]);
  const FormulaValues values(*request.archive, formula, draws,
                             elementSets(formula.shape, SetOrder::ElementFirst, formula.triples));
  NumberFlags fixes{};
  fixes[90] = true;
  Ranking ranking(request.keep);
  rankVotes(rings, values, request.withFix ? request.allowedFix : fixes, ranking);

  std::vector<Candidate> candidates;
  std::vector<std::uint8_t> residues(values.rowLength());
  for (const Ranking::Row& found : ranking.rows()) {
    const auto set = static_cast<std::size_t>(found.set);
    values.numbers(set, found.fix, residues.data());
    std::uint32_t pres = 0;
    for (std::size_t i = 0; i < draws.size(); ++i)
      pres += votes.pres[static_cast<std::size_t>(rings.cases()[i])][residues[i]];
    candidates.push_back({values.set(set), found.fix, found.count, static_cast<int>(pres), 0});
  }
  return candidates;
}

}  // namespace trv5
