#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cases/last_search.h"
#include "chance/forward_test.h"
#include "core/controls.h"
#include "core/notice.h"
#include "core/program.h"

namespace trv5 {

/// "Prova in avanti": walks the search run last on the workbench through all cases of its situation, from the oldest
/// on, and tells how the formula that it would have chosen each time fared, beside luck.
class ProvaAvanti : public Form {
 public:
  static constexpr int kHelpContext = 292;

  ProvaAvanti(const Archive& archive, Shell& shell);
  explicit ProvaAvanti(Program& program);

  /// The list of cases to learn from. Run once when the screen is made.
  void load();

  /// Takes over a search, nothing for none; the figures of another one go. `tested` runs when a walk, whole or stopped,
  /// has told something on the cases of its search. It may run long after this: it has to know whether it still can.
  void prepare(const std::optional<LastSearch>& search, std::function<void(const LastSearch&)> tested);

  /// How long it walks between two acts of the user.
  std::chrono::milliseconds slice{25};

  /// What is shown, the oldest test first; a walk under way shows nothing yet.
  const ForwardFigures& figures() const { return m_figures; }
  /// Years for the axis of the curve: the first test in each of some years, and its number from 1.
  struct YearTick {
    int test = 0;
    std::string year;
  };
  std::vector<YearTick> yearTicks() const;
  /// Sent when figures() has changed.
  Notice figuresChanged;

  Label LblRicerca{*this, "LblRicerca"};      ///< the search that is tested
  Label LblFrase{*this, "LblFrase"};          ///< what came out
  Label LblDettaglio{*this, "LblDettaglio"};  ///< how often luck does as well
  Label LblVisti{*this, "LblVisti"};          ///< that the cases are known from now on
  Label LblConto{*this, "LblConto"};          ///< how far the walk is
  GridControl Fg_Prove{*this, "Fg_Prove", "Data|Formula|Fix|Su 30|N°|Colpo|Ruote"};
  Combo ComboImpara{*this, "ComboImpara"};
  Button Stampa_Fg_Prove{*this, "Stampa_Fg_Prove", "Stampa"}, Copia_Fg_Prove{*this, "Copia_Fg_Prove", "Copia"};
  Button Cmd_Ferma{*this, "Cmd_Ferma", "Ferma", "Ferma la prova; resta quel che si sa finora"},
      Cmd_Prova{*this, "Cmd_Prova", "Prova", "Ripercorre tutti i casi dal più antico"};

 private:
  void start();
  bool step();
  void finish();
  void clearFigures();
  void forgetWalk();
  void writeTests();
  void writeSentence();
  void enable();

  const Archive& m_archive;
  std::optional<LastSearch> m_search;
  std::function<void(const LastSearch&)> m_tested;
  std::unique_ptr<ForwardWalk> m_walk;  // while one is under way
  int m_learnt = 30;                    // of the walk, and then of the figures
  ForwardFigures m_figures{.tests = {}, .share = {}};
  bool m_whole = true;                                     // the walk of the figures wasn't stopped
  int m_planned = 0;                                       // cases that it was to test
  std::shared_ptr<int> m_runs = std::make_shared<int>(0);  // tells the steps of a run that is over
};

}  // namespace trv5
