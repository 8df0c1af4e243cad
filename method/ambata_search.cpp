#include <cstddef>

#include "method/drawn_numbers.h"
#include "method/search.h"
#include "method/vote_counter.h"
#include "method/vote_tally.h"

namespace trv5 {
namespace {

NumberFlags fixesOf(const AmbataRequest& request) {
  if (request.withFix) return request.allowedFix;
  NumberFlags none{};
  none[90] = true;
  return none;
}

// How often each number was drawn after each case: on all wheels together, or wheel by wheel where wheel sets have to
// be put together. After the votes have been made of it, number 0 stands for 90 too.
class DrawnAfterCases {
 public:
  DrawnAfterCases(const AmbataRequest& request, const Outcomes& outcomes)
      : m_wheelByWheel(request.wheelSets.size() > 1), m_drawn(request.cases.size() * (m_wheelByWheel ? kWheels : 1)) {
    WheelSet wanted = 0;
    for (const WheelSet set : request.wheelSets) wanted |= set;
    for (std::size_t i = 0; i < request.cases.size(); ++i) {
      const ColpiWindow window = windowAfter(request.cases[i], request.colpi, request.lastDraw);
      if (!m_wheelByWheel) {
        addDrawn(outcomes, window, wanted, m_drawn[i]);
        continue;
      }
      for (int w = 0; w < kWheels; ++w)
        if (holds(wanted, w)) addDrawn(outcomes, window, 1U << w, wheel(i, w));
    }
  }

  // How many different numbers of each residue were drawn: 0 and 90 are two.
  VoteRings votes(const std::vector<WheelSet>& wheelSets) {
    VoteRings rings = m_wheelByWheel ? VoteRings(wheelsByNumber(), wheelSets) : VoteRings(weights());
    for (DrawnNumbers& drawn : m_drawn) drawn[0] += drawn[90];
    return rings;
  }

  // How often the numbers of `residues`, one for each case of the rings, were drawn on a wheel set.
  int presences(const VoteRings& rings, const std::vector<std::uint8_t>& residues, WheelSet set) const {
    std::uint32_t times = 0;
    const auto add = [&](std::size_t wheelsOfCase, std::size_t wheel) {
      const std::vector<int>& cases = rings.cases();
      for (std::size_t i = 0; i < cases.size(); ++i)
        times += m_drawn[static_cast<std::size_t>(cases[i]) * wheelsOfCase + wheel][residues[i]];
    };
    if (m_wheelByWheel) {
      for (int w = 0; w < kWheels; ++w)
        if (holds(set, w)) add(kWheels, static_cast<std::size_t>(w));
    } else {
      add(1, 0);
    }
    return static_cast<int>(times);
  }

 private:
  std::vector<ResidueWeights> weights() const {
    std::vector<ResidueWeights> weights(m_drawn.size());
    for (std::size_t i = 0; i < m_drawn.size(); ++i) {
      for (std::size_t n = 0; n < 90; ++n) weights[i][n] = m_drawn[i][n] != 0;
      weights[i][0] += m_drawn[i][90] != 0;
    }
    return weights;
  }

  std::vector<WheelsByNumber> wheelsByNumber() const {
    std::vector<WheelsByNumber> wheels(m_drawn.size() / kWheels);
    for (std::size_t i = 0; i < wheels.size(); ++i)
      for (int w = 0; w < kWheels; ++w) {
        const DrawnNumbers& drawn = wheel(i, w);
        for (std::size_t n = 0; n < drawn.size(); ++n)
          wheels[i][n] = static_cast<std::uint16_t>(wheels[i][n] | (drawn[n] != 0 ? 1 << w : 0));
      }
    return wheels;
  }

  DrawnNumbers& wheel(std::size_t index, int w) { return m_drawn[index * kWheels + static_cast<std::size_t>(w)]; }
  const DrawnNumbers& wheel(std::size_t index, int w) const {
    return m_drawn[index * kWheels + static_cast<std::size_t>(w)];
  }

  bool m_wheelByWheel;
  std::vector<DrawnNumbers> m_drawn;
};

}  // namespace

AmbataSearch::AmbataSearch(const AmbataRequest& request)
    : m_request(request),
      m_values(std::make_unique<const FormulaValues>(
          *request.archive, request.formula, request.cases,
          elementSets(request.formula.shape, SetOrder::WheelsFirst, request.formula.triples))) {}

AmbataSearch::~AmbataSearch() = default;

std::vector<Candidate> AmbataSearch::run(const Outcomes& outcomes, int keep) const {
  if (keep < 1 || m_request.wheelSets.empty()) return {};
  DrawnAfterCases drawn(m_request, outcomes);
  const VoteRings rings = drawn.votes(m_request.wheelSets);
  const FormulaValues values = m_values->of(rings.cases());
  Ranking ranking(keep);
  rankVotes(rings, values, fixesOf(m_request), ranking);

  std::vector<Candidate> candidates;
  std::vector<std::uint8_t> residues(values.rowLength());
  for (const Ranking::Row& found : ranking.rows()) {
    const auto set = static_cast<std::size_t>(found.set);
    Candidate candidate{values.set(set), found.fix, found.count, 0, found.wheelSet};
    if (m_request.repeatsAtZeroGetLost && found.fix == 90) {
      candidate.pres = found.count;
    } else {
      values.numbers(set, found.fix, residues.data());
      candidate.pres = drawn.presences(rings, residues, m_request.wheelSets[static_cast<std::size_t>(found.wheelSet)]);
    }
    candidates.push_back(candidate);
  }
  return candidates;
}

std::vector<std::int64_t> AmbataSearch::tally(const Outcomes& outcomes, int least) const {
  if (m_request.wheelSets.empty()) return {};
  const VoteRings rings = DrawnAfterCases(m_request, outcomes).votes(m_request.wheelSets);
  return tallyVotes(rings, m_values->of(rings.cases()), fixesOf(m_request), least);
}

std::vector<Candidate> searchAmbate(const AmbataRequest& request) {
  return AmbataSearch(request).run(*request.archive);
}

}  // namespace trv5
