#include "chance/balance.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "chance/expected_cover.h"
#include "chance/hypergeometric.h"
#include "method/drawn_numbers.h"

namespace trv5 {
namespace {

// Up to three numbers, ascending behind zeros.
using Combination = std::array<std::uint8_t, 3>;

// The combinations of one number of each list, all different, each once.
std::vector<Combination> combinationsOf(const CaseNumbers& numbers, int lists) {
  std::set<Combination> sets = {Combination{}};
  for (std::size_t l = 0; l < static_cast<std::size_t>(lists); ++l) {
    std::set<Combination> longer;
    for (const Combination& set : sets)
      for (const std::uint8_t n : numbers[l]) {
        if (n == 0 || std::find(set.begin(), set.end(), n) != set.end()) continue;
        Combination more = set;
        more.front() = n;
        std::sort(more.begin(), more.end());
        longer.insert(more);
      }
    sets = std::move(longer);
  }
  return {sets.begin(), sets.end()};
}

// What a case plays: how many combinations, of how many numbers, and how many of them a wheel holds.
class Forecast {
 public:
  Forecast(const BalanceRequest& request, const CaseNumbers& numbers)
      : m_table(request.table), m_size(sizeOf(request)), m_list(numbers[indexOf(request.table)]) {
    const int lists = traitsOf(request.table).joinedTables;
    if (lists == 0) {
      m_count = combinations(m_list.size() - (m_list.flags()[0] ? 1 : 0), m_size);
    } else {
      m_combinations = combinationsOf(numbers, lists);
      m_count = static_cast<double>(m_combinations.size());
    }
    m_chance = chanceOnWheel(request.table, numbers, m_size);
  }

  static int sizeOf(const BalanceRequest& request) {
    const int joined = traitsOf(request.table).joinedTables;
    return joined == 0 ? std::clamp(request.sorte, 1, kPositions) : joined;
  }

  bool plays() const { return m_count > 0; }
  double count() const { return m_count; }
  /// The chance of a wheel to hold at least one.
  double chance() const { return m_chance; }

  double hits(const std::uint8_t* drawn) const {
    const auto stands = [&](std::uint8_t n) { return std::find(drawn, drawn + kPositions, n) != drawn + kPositions; };
    if (traitsOf(m_table).joinedTables == 0)
      return combinations(static_cast<int>(std::count_if(m_list.begin(), m_list.end(),
                                                         [&](std::uint8_t n) { return n != 0 && stands(n); })),
                          m_size);
    return static_cast<double>(
        std::count_if(m_combinations.begin(), m_combinations.end(), [&](const Combination& combination) {
          return std::all_of(combination.begin(), combination.end(),
                             [&](std::uint8_t n) { return n == 0 || stands(n); });
        }));
  }

 private:
  Table m_table;
  int m_size;
  NumberList m_list;
  std::vector<Combination> m_combinations;  // none for a lunghetta, whose sets needn't be written out
  double m_count = 0, m_chance = 0;
};

void playCase(const Outcomes& outcomes, const BalanceRequest& request, int caseDraw, const Forecast& forecast,
              Balance& balance) {
  const int size = Forecast::sizeOf(request);
  const double multiple = request.payouts.multiples[static_cast<std::size_t>(size)];
  const ColpiWindow window = windowAfter(caseDraw, request.window.colpi, request.window.lastDraw);
  bool open = true;
  double stillOpen = 1;  // the chance of luck to have hit nothing so far
  for (int draw = window.first; draw <= window.last; ++draw) {
    int wheels = 0;
    double hits = 0;
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      if (!holds(request.window.wheels, wheel) || !wasDrawn(outcomes, draw, wheel)) continue;
      ++wheels;
      hits += forecast.hits(outcomes.wheelOf(draw, wheel));
    }
    if (wheels == 0) continue;
    balance.expectedSpent += stillOpen * request.stake;
    balance.expectedPaid += stillOpen * request.stake * returnOf(size, request.payouts);
    if (open) {
      balance.spent += request.stake;
      balance.paid += request.stake / wheels / forecast.count() * hits * multiple;
    }
    if (request.until == PlayedUntil::LastColpo) continue;
    open = open && hits == 0;
    stillOpen *= 1 - chanceOfDraws(forecast.chance(), wheels);
  }
}

}  // namespace

double returnOf(int numbers, const Payouts& payouts) {
  return payouts.multiples[static_cast<std::size_t>(numbers)] * chanceOfSet(numbers);
}

Balance balanceOf(const Outcomes& outcomes, const BalanceRequest& request) {
  Balance balance;
  for (std::size_t i = 0; i < request.caseDraws.size(); ++i) {
    if (i < request.leftOut.size() && request.leftOut[i]) continue;
    const Forecast forecast(request, request.numbers[i]);
    if (forecast.plays()) playCase(outcomes, request, request.caseDraws[i], forecast, balance);
  }
  balance.net = balance.paid * (1 - request.payouts.withheld);
  balance.expectedNet = balance.expectedPaid * (1 - request.payouts.withheld);
  return balance;
}

}  // namespace trv5
