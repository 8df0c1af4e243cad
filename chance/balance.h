#pragma once

#include <array>
#include <vector>

#include "method/hits.h"
#include "method/table.h"

namespace trv5 {

/// What the game pays, as data of the program.
struct Payouts {
  /// Gross, in stakes of a combination, by its numbers 1..5 (law 311 of 2004, paragraph 491).
  std::array<double, 6> multiples = {0, 11.232, 250, 4500, 120000, 6000000};
  double withheld = 0.08;  ///< share of what is paid; since October 2017
};

/// How long a forecast is played.
enum class PlayedUntil { FirstHit, LastColpo };

/// A table as a player would have played it.
struct BalanceRequest {
  Table table = Table::Ambate;
  std::vector<int> caseDraws = {};
  std::vector<CaseNumbers> numbers = {};  ///< in play, by case
  PlayWindow window = {};
  int sorte = 1;                   ///< of a lunghetta
  std::vector<bool> leftOut = {};  ///< by case; empty for none
  double stake = 1;                ///< of a case in each draw
  PlayedUntil until = PlayedUntil::FirstHit;
  Payouts payouts = {};
};

struct Balance {
  double spent = 0;
  double paid = 0;  ///< gross
  double net = 0;   ///< paid less what is withheld
  /// The same on archives drawn by luck, on average, before the first draw.
  double expectedSpent = 0, expectedPaid = 0, expectedNet = 0;
};

/// What the table would have cost and brought. Each case is one forecast: in each draw of its colpi with a wheel of
/// play drawn it costs one stake, divided equally among the wheels of play that were drawn and, on each of them, among
/// the combinations: single numbers, ambi or terni of one number of each list, or the sets of `sorte` numbers of a
/// lunghetta. A combination is played once, however often the lists make it; a number 0 isn't played. A case without a
/// combination costs nothing.
Balance balanceOf(const Outcomes& outcomes, const BalanceRequest& request);

/// What comes back on average of each euro played on combinations of so many numbers, 1..5, before the withholding.
double returnOf(int numbers, const Payouts& payouts);

}  // namespace trv5
