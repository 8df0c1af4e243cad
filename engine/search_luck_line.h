#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "cases/workbench.h"
#include "chance/search_luck.h"
#include "engine/ranked_search.h"

namespace trv5 {

/// `LblCaso`: how much of the ranking in `FgF` is luck, worked out after the table has been shown, as long as both the
/// ranking and what it was made from stand as the search left them. Nothing of it is part of a state of the workbench.
class SearchLuckLine final : public std::enable_shared_from_this<SearchLuckLine> {
 public:
  static constexpr int kReplicas = 999;

  explicit SearchLuckLine(Workbench& w) : m_w(w) {}

  /// The search fills `FgF` just now; it counts as tried on these cases.
  void note(RankedSearch search);
  /// After each operation: shows what still holds, and begins what is wanted.
  void settle();
  /// Works the line out also where nobody wants that after each search.
  void demand();

  /// The search that the line speaks of; null where that isn't what stands on the workbench any more, or where luck has
  /// nothing to say.
  const RankedSearch* search() const;
  /// Why there is none; empty where there is one.
  std::string whyNone() const;
  /// Searches tried on the cases listed now.
  int tried() const;
  /// What luck makes of a row of `FgF`; empty while there are no figures.
  std::string ofRow(int row) const;

 private:
  struct Seen {
    RankedSearch search;
    Origin origin;
    std::uint64_t archive = 0;  // the load of the archive
    std::string ranking, hits;  // all texts of the grids
    std::vector<bool> covered;  // with "Casi scoperti": the marks of the cases that were left out
  };
  bool fresh() const;
  bool step(int run);
  void begin();
  void show(bool holds);

  Workbench& m_w;
  std::optional<Seen> m_seen;
  std::unique_ptr<SearchLuck> m_luck;  // while it is drawn
  std::optional<LuckFigures> m_figures;
  bool m_demanded = false;
  int m_run = 0;  // of the steps that may go on
  bool m_running = false;
  std::map<std::vector<int>, std::set<std::string>> m_tried;  // searches by the cases that they were tried on
};

/// The search fills `FgF` just now.
void noteSearch(Workbench& w, RankedSearch search);

/// The seed of the archives that are drawn where the user chooses none: the day of the last draw, "20260821".
std::uint64_t usualSeed(const Archive& archive);

/// The tooltip of a cell of `FgF`: in the column CC what luck makes of the row.
std::string rankingCellText(const Workbench& w, int row, int column);

/// Gives the workbench its line of luck and keeps it true after every operation.
void connectLuck(Workbench& w);

}  // namespace trv5
