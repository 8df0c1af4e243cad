#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "cases/workbench.h"
#include "chance/repeated_search.h"

namespace trv5 {

/// What fills `FgF`, to be set beside luck.
struct RankedSearch {
  /// The search, to be run on other outcomes; null where nobody can say how luck does in it. It holds values alone but
  /// for the archive.
  std::function<std::shared_ptr<const RepeatedSearch>()> repeat = {};
  bool numbers = false;                    ///< its rows are numbers, not formulas
  bool ownWheels = false;                  ///< it tries sets of wheels, whatever the wheels of play
  std::optional<Table> companionsOf = {};  ///< it starts from the hits of the table below this one
  std::string heldFixed = {};              ///< what luck leaves as it is, for the user
};

/// The searches of ambate: `wheelsOfSet` as in RankingSearch.
RankedSearch rankedAmbate(const Workbench& w, const AmbataRequest& request, int wheelsOfSet);

/// The pure numbers of the ambate on the wheels of play.
RankedSearch rankedNumbers(const Workbench& w, const std::vector<int>& cases);

/// The searches of companions, before their rows are verified: `FgF` holds them, and the tables are those that they
/// will be verified against.
RankedSearch rankedCompanions(const Workbench& w, const CompanionRequest& request, Table table);

}  // namespace trv5
