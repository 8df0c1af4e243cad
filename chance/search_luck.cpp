#include "chance/search_luck.h"

#include <algorithm>
#include <numeric>

namespace trv5 {

int LuckFigures::reached(int count) const {
  const auto from = std::min(static_cast<std::size_t>(std::max(count, 0)), replicasByBest.size());
  return std::accumulate(replicasByBest.begin() + static_cast<std::ptrdiff_t>(from), replicasByBest.end(), 0);
}

SearchLuck::SearchLuck(std::shared_ptr<const RepeatedSearch> search, std::uint64_t seed)
    : m_search(std::move(search)), m_seed(seed), m_own(m_search->run(*m_search->redraw().archive, m_search->keep())) {
  for (std::size_t i = 0; i < m_own.size(); ++i) {
    if (m_levels.empty() || m_levels.back().count != m_own[i].count)
      m_levels.push_back({m_own[i].count, static_cast<int>(i), 0});
    m_levels.back().rows = static_cast<int>(i) + 1;
  }
}

void SearchLuck::draw(int replicas, const Workers& workers) {
  if (replicas <= m_replicas) return;
  const std::size_t each = levels();
  m_best.resize(static_cast<std::size_t>(replicas) * each);
  const int first = m_replicas;
  m_replicas += doAll(replicas - first, workers, [&]() -> Work {
    return [this, first, each, draws = std::make_shared<FairDraws>(m_search->redraw())](int index) {
      const auto replica = static_cast<std::size_t>(first + index);
      bestOf(draws->replica(m_seed, replica), &m_best[replica * each]);
    };
  });
}

// The first row alone tells all levels, but where it is one of the rows before a level; then the ranking has to be so
// long that one that isn't must be in it.
void SearchLuck::bestOf(const Outcomes& outcomes, std::uint16_t* bestByLevel) const {
  std::vector<CountedRow> rows = m_search->run(outcomes, 1);
  const auto before = [&](const CountedRow& row, int rowsBefore) {
    const auto end = m_own.begin() + rowsBefore;
    return std::any_of(m_own.begin(), end, [&](const CountedRow& own) { return own.formula == row.formula; });
  };
  if (!rows.empty() && !m_levels.empty() && before(rows.front(), m_levels.back().rowsBefore))
    rows = m_search->run(outcomes, m_levels.back().rowsBefore + 1);
  for (std::size_t level = 0; level < levels(); ++level) {
    const int rowsBefore = m_levels.empty() ? 0 : m_levels[level].rowsBefore;
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const CountedRow& candidate) { return !before(candidate, rowsBefore); });
    bestByLevel[level] = static_cast<std::uint16_t>(row == rows.end() ? 0 : row->count);
  }
}

LuckFigures SearchLuck::figures() const {
  LuckFigures figures{.replicas = m_replicas, .replicasByBest = {}, .counts = {}};
  const std::size_t each = levels();
  const auto replicas = static_cast<std::size_t>(m_replicas);
  double sum = 0;
  for (std::size_t r = 0; r < replicas; ++r) {
    const std::size_t best = m_best[r * each];
    if (best >= figures.replicasByBest.size()) figures.replicasByBest.resize(best + 1);
    ++figures.replicasByBest[best];
    sum += static_cast<double>(best);
  }
  if (m_replicas > 0) figures.mean = sum / m_replicas;
  if (!m_levels.empty()) figures.best = m_levels.front().count;

  int most = 0;
  for (std::size_t level = 0; level < m_levels.size(); ++level) {
    LuckOfCount luck{.count = m_levels[level].count, .own = m_levels[level].rows, .bounds = {}};
    luck.reached = figures.reached(luck.count);
    for (std::size_t r = 0; r < replicas; ++r) luck.reachedByOthers += m_best[r * each + level] >= luck.count;
    most = std::max(most, luck.reachedByOthers);
    luck.p = (1.0 + most) / (1.0 + m_replicas);
    luck.bounds = clopperPearson(most, m_replicas);
    figures.counts.push_back(luck);
  }
  return figures;
}

}  // namespace trv5
