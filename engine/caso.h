#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cases/workbench.h"
#include "chance/formula_tally.h"
#include "core/program.h"
#include "engine/luck_texts.h"
#include "engine/ranked_search.h"

namespace trv5 {

/// "Merito del caso": what the best formula of a search covers on archives drawn by luck, count by count. It holds the
/// search that it was opened for, whatever becomes of the workbench.
class Caso : public Form {
 public:
  explicit Caso(Shell& shell);
  explicit Caso(Program& program);
  ~Caso() override;

  /// The search to look at, with its name and its archive; the first series is drawn at once.
  void study(const RankedSearch& search, std::string origin, std::string tried, const Archive& archive);
  /// The archive of the search has gone.
  void forget();

  /// What the bars show.
  struct Bars {
    std::vector<int> replicasByBest;  ///< by cases that the best row of a replica covers
    int best = 0;                     ///< of the own search; 0: there are no figures yet
    bool rare = false;
  };
  const Bars& bars() const { return m_bars; }
  /// Called after they have changed.
  std::function<void()> barsChanged;

  Label LblOrigine{*this, "LblOrigine"};  ///< of the search
  Label LblFrase{*this, "LblFrase"}, LblSerie{*this, "LblSerie"};
  GridControl Fg_Conti{*this, "Fg_Conti", "Almeno|Tue|Dal caso|Archivi"};
  Label LblColonne{*this, "LblColonne"}, LblFermi{*this, "LblFermi"};
  Combo ComboRepliche{*this, "ComboRepliche"};
  Text Txt_Seme{*this, "Txt_Seme", 18};
  Label LblConto{*this, "LblConto"};
  Button Cmd_Ferma{*this, "Cmd_Ferma", "Ferma", "Ferma i sorteggi: restano quelli fatti"};
  Button Cmd_Sorteggia{*this, "Cmd_Sorteggia", "Sorteggia", "Sorteggia gli archivi e ripete su ognuno la ricerca"};
  Button Stampa{*this, "Stampa_Fg_Conti", "Stampa"}, Copia{*this, "Copia_Fg_Conti", "Copia"};

 private:
  void Sorteggia();
  void Ferma();
  bool step();
  void end();
  void showFigures();
  void showSentences();
  void showTable(const LuckOfBest& luck);
  void showCount();
  int wanted() const;

  RankedSearch m_search;
  std::string m_tried;
  std::unique_ptr<FormulaTally> m_tally;
  Bars m_bars;
  std::shared_ptr<int> m_run = std::make_shared<int>(0);  // of the steps that may go on
  int m_target = 0;
  double m_seconds = 0;  // that the run has taken
  bool m_running = false;
};

/// "Quanto è merito del caso?": opens the window on the search of `FgF`, and works its line out where that is empty.
void MostraMeritoCaso(Workbench& w);

}  // namespace trv5
