#pragma once

#include <optional>
#include <string_view>

#include "cases/workbench.h"
#include "method/search.h"

namespace trv5 {

/// A search as the origin of its ranking.
struct RankingSearch {
  Table table = Table::Ambate;
  std::optional<Shape> shape = {};  ///< nothing: pure numbers
  int wheelsOfSet = 0;              ///< 0: plays on `RuoteGioco`; else tries every set of so many wheels
  std::optional<int> cases = {};    ///< that it counted on; nothing: those of the hits that it starts from
};

/// Notes what fills `FgF`: "Ambate · 2N 1R · N1+N2 · 20 casi · FI".
void noteRanking(Workbench& w, const RankingSearch& search);

/// Keeps a search of ambate for the test forward, after its ranking has been noted: as far as the cases come from a
/// situation, which tells the others.
void noteLastSearch(Workbench& w, const AmbataRequest& request, int wheelsOfSet);

/// What noteRanking does for a search through everything: "Ambate · TUTTE · Rarità · 20 casi · da 1 a 3 ruote".
void noteWholeRanking(Workbench& w, int cases);

}  // namespace trv5
