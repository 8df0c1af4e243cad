#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "cases/workbench_state.h"
#include "core/archive.h"
#include "core/controls.h"
#include "method/detection.h"
#include "method/table.h"

namespace trv5 {

class Workbench;

/// A button of the workbench: what the user reads and what it does. Its name is the control's.
struct WorkbenchButton {
  const char* name;
  const char* caption;
  const char* toolTip;
  void (*run)(Workbench&);  ///< null: nothing yet, the button is disabled and says so
};

/// The buttons of one place on the screen.
struct WorkbenchButtons {
  const char* place;
  /// The tab of `SSTab3` that they make up, -1 for none: where the first of them does nothing yet, the user can't reach
  /// the tab.
  int tab;
  std::span<const WorkbenchButton> buttons;
};

/// What operations on the workbench have done elsewhere, in layers that they can't see.
struct WorkbenchHooks {
  /// "Estrae Terzine".
  std::function<void()> extractTriples = [] {};
  /// ELENCO of the saved configurations.
  std::function<void()> listConfigurations = [] {};
  /// The draws of a case in the mini list, the numbers that made it marked.
  std::function<void(const FoundElement& first, const std::optional<FoundElement>& second)> showDraws =
      [](const FoundElement&, const std::optional<FoundElement>&) {};
};

/// The workbench, where a method is built: all its controls and the state that its operations share. Operations are
/// functions on it; the layers connect them to its buttons.
class Workbench : public Form, public WorkbenchState {
 public:
  Workbench(const Archive& archive, Shell& shell);

  const Archive& archive;

  // Reference bar.
  Scroll hs1;
  Label LabelRifE;
  GridControl FgRG;            ///< wheels of play, one row
  ControlArray<Label> Label1;  ///< "Gioco": its click deselects all wheels of play
  Label Label17, Label18;
  Combo ComboColpi;

  // Selezioni.
  Tabs SSTab1;  ///< 1 Selezioni, 0 Elenco estrazioni
  Combo ComboFiltro, ComboPar, ComboR1, ComboNC, ComboQNu;
  Check Ch_ultima;
  ControlArray<Label> LblPN;  ///< positions 1..5
  GridControl FgNu;           ///< the 90 numbers, 9 rows of 10
  Combo ComboValF;
  Text TxtNumeri;
  Check Ch_analisi2ruote;
  Combo ComboRetro;
  Label Label4, Label19;
  GridControl FgRR;  ///< wheels of detection, one row
  Combo ComboQNR1, ComboQNR2;
  Check ChDDS, Ch_ISO;

  // Elenco estrazioni.
  GridControl FgEv;   ///< the cases
  Label Label5;       ///< span of draws covered by the cases
  GridControl FgSSS;  ///< totals of columns 17..22 of FgEv: hits, covered cases

  // Ricerca.
  LineList List1;
  Combo ComboEle, Combo1R_1N, Combo1R_2N, ComboFix;
  Check ChFix1R, Ch_Scoperti, ChVerifica;
  GridControl FgF;                   ///< the ranked candidates
  ControlArray<Button> Cmd_LaSorte;  ///< 1, 2, 3, 6

  // Forecasts.
  Tabs SSTab3;
  GridControl Fg11, Fg22, Fg33, Fg00;
  GridControl FgZ1, FgZ2, FgZ3, FgZ0, FgZZ;
  Check Check3, ChA, ChB, ChC, Ch1esito;
  Combo ComboSorte;
  GridControl FgIC;
  ControlArray<Check> Ch_FF;  ///< 0 lunghette, 1, 2, 3
  GridControl Fg15, FgGioco;
  Tabs SSTab4;  ///< 0 Elenco, 1 Convergenze
  GridControl FgRagg, FgConv;
  Label Label7;
  ControlArray<Check> OptionRit;  ///< 720, 360, 180
  Check Ch_coperture;
  Combo ComboDelta;
  GridControl FgRit;
  Text Txt_Denominazione;
  GridControl FgPir1;
  GridControl Fg_Stat, Fg_Graf;

  // Without a place on screen.
  GridControl FgZ100, Fg99, FgDett, FgS1, FgS2, FgS3, FgS4, FgS5, FgS6, FgSort;

  /// The formulas of a table, and the hits of its verification.
  GridControl& formulas(Table table);
  const GridControl& formulas(Table table) const { return const_cast<Workbench*>(this)->formulas(table); }
  GridControl& hits(Table table);
  const GridControl& hits(Table table) const { return const_cast<Workbench*>(this)->hits(table); }

  /// The button of that name; throws std::logic_error when there is none.
  Button& button(std::string_view name) const { return get<Button>(name); }

  void addButtons(const WorkbenchButtons& group);

  WorkbenchHooks hooks;

 private:
  std::vector<std::unique_ptr<Button>> m_buttons;
};

}  // namespace trv5
