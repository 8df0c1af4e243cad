#include "chance/formula_tally.h"

#include <algorithm>
#include <functional>
#include <mutex>

namespace trv5 {
namespace {

void addTo(std::vector<std::int64_t>& sum, const std::vector<std::int64_t>& formulas) {
  if (formulas.size() > sum.size()) sum.resize(formulas.size());
  std::transform(formulas.begin(), formulas.end(), sum.begin(), sum.begin(), std::plus<>());
}

}  // namespace

std::vector<TallyOfCount> tallyLuck(const RepeatedSearch& search, std::uint64_t seed, int replicas, int least,
                                    const Workers& workers) {
  std::vector<std::int64_t> own = search.tally(*search.redraw().archive, least), luck;
  std::mutex mutex;
  const int done = doAll(replicas, workers, [&]() -> Work {
    return [&, draws = std::make_shared<FairDraws>(search.redraw())](int replica) {
      const auto formulas = search.tally(draws->replica(seed, static_cast<std::uint64_t>(replica)), least);
      const std::scoped_lock lock(mutex);
      addTo(luck, formulas);
    };
  });
  if (done < replicas) return {};

  const std::size_t most = std::max(own.size(), luck.size());
  own.resize(most);
  luck.resize(most);
  std::vector<TallyOfCount> rows;
  TallyOfCount row;
  std::int64_t sum = 0;
  for (std::size_t count = most; count-- > static_cast<std::size_t>(least);) {
    row.count = static_cast<int>(count);
    row.own += own[count];
    sum += luck[count];
    row.byLuck = static_cast<double>(sum) / replicas;
    if (row.own > 0 || sum > 0) rows.push_back(row);
  }
  return rows;
}

}  // namespace trv5
