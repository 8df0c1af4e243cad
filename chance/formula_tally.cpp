#include "chance/formula_tally.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace trv5 {
namespace {

// Without the counts at the end that no formula reaches; the first entry, of no case, is always there.
std::vector<std::int64_t> reachedOf(std::vector<std::int64_t> formulas) {
  while (!formulas.empty() && formulas.back() == 0) formulas.pop_back();
  if (formulas.empty()) formulas.resize(1);
  return formulas;
}

}  // namespace

FormulaTally::FormulaTally(std::shared_ptr<const RepeatedSearch> search, std::uint64_t seed, int least)
    : m_search(std::move(search)),
      m_seed(seed),
      m_least(least),
      m_own(reachedOf(m_search->tally(*m_search->redraw().archive, least))) {}

void FormulaTally::draw(int replicas, const Workers& workers) {
  if (replicas <= m_replicas) return;
  const int first = m_replicas;
  std::vector<std::vector<std::int64_t>> drawn(static_cast<std::size_t>(replicas - first));
  const int done = doAll(replicas - first, workers, [&]() -> Work {
    return [&, draws = std::make_shared<FairDraws>(m_search->redraw())](int index) {
      const auto replica = static_cast<std::uint64_t>(first + index);
      drawn[static_cast<std::size_t>(index)] = m_search->tally(draws->replica(m_seed, replica), m_least);
    };
  });
  for (int i = 0; i < done; ++i) add(reachedOf(std::move(drawn[static_cast<std::size_t>(i)])));
}

void FormulaTally::add(const std::vector<std::int64_t>& formulas) {
  ++m_replicas;
  if (formulas.size() > m_byLuck.size()) m_byLuck.resize(formulas.size());
  std::transform(formulas.begin(), formulas.end(), m_byLuck.begin(), m_byLuck.begin(), std::plus<>());
  const std::size_t best = formulas.size() - 1;
  if (best >= m_byBest.size()) m_byBest.resize(best + 1);
  ++m_byBest[best];
}

double FormulaTally::mean() const {
  double sum = 0;
  for (std::size_t best = 0; best < m_byBest.size(); ++best) sum += static_cast<double>(best) * m_byBest[best];
  return m_replicas > 0 ? sum / m_replicas : 0;
}

std::vector<TallyOfCount> FormulaTally::rows() const {
  const auto at = [](const std::vector<std::int64_t>& formulas, std::size_t count) {
    return count < formulas.size() ? formulas[count] : 0;
  };
  std::vector<TallyOfCount> rows;
  TallyOfCount row;
  std::int64_t sum = 0;
  for (std::size_t count = std::max(m_own.size(), m_byLuck.size()); count-- > static_cast<std::size_t>(m_least);) {
    row.count = static_cast<int>(count);
    row.own += at(m_own, count);
    sum += at(m_byLuck, count);
    row.byLuck = m_replicas > 0 ? static_cast<double>(sum) / m_replicas : 0;
    if (row.own > 0 || sum > 0) rows.push_back(row);
  }
  return rows;
}

std::vector<TallyOfCount> tallyLuck(const RepeatedSearch& search, std::uint64_t seed, int replicas, int least,
                                    const Workers& workers) {
  // The caller keeps the search.
  FormulaTally tally(std::shared_ptr<const RepeatedSearch>(std::shared_ptr<void>(), &search), seed, least);
  tally.draw(replicas, workers);
  if (tally.replicas() < replicas) return {};
  return tally.rows();
}

}  // namespace trv5
