#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cases/case_columns.h"
#include "cases/formula_rows.h"
#include "cases/hit_columns.h"
#include "cases/result_origins.h"
#include "cases/workbench_history.h"
#include "cases/workbench_state.h"
#include "core/archive.h"
#include "core/controls.h"
#include "core/database.h"
#include "method/detection.h"
#include "method/table.h"

namespace trv5 {

class SearchLuckLine;
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
  /// The main database, where the configurations are kept. Throws UserError while it isn't open.
  std::function<Database&()> mainDatabase = []() -> Database& {
    throw UserError("Il database principale non è aperto.");
  };
  /// The program's folder; empty for none.
  std::function<std::filesystem::path()> folder = [] { return std::filesystem::path(); };
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
  Scroll hs1{*this, "hs1", 1, 1};
  Label LabelRifE{*this, "LabelRifE"};
  Label LblUltima{*this, "LblUltima", "", "Vai all'ultima estrazione"};  ///< how far back the reference draw lies
  GridControl FgRG{*this, "FgRG", 1, kWheels};                           ///< wheels of play, one row
  ControlArray<Label> Label1{*this, "Label1", {0}};  ///< "Gioco": its click deselects all wheels of play
  Label Label17{*this, "Label17", "Seleziona tutti", "Seleziona tutte le ruote di gioco"},
      Label18{*this, "Label18", "Seleziona tutti", "Deseleziona tutte le ruote di gioco"};
  Combo ComboColpi{*this, "ComboColpi", Combo::Typing::Digits};

  // Selezioni.
  Tabs SSTab1{*this, "SSTab1", {{1, "Selezioni"}, {0, "Elenco estrazioni"}}};  ///< 1 Selezioni, 0 Elenco estrazioni
  Combo ComboFiltro{*this, "ComboFiltro"}, ComboPar{*this, "ComboPar"}, ComboR1{*this, "ComboR1"},
      ComboNC{*this, "ComboNC", Combo::Typing::Digits}, ComboQNu{*this, "ComboQNu"};
  Check Ch_ultima{*this, "Ch_ultima", "Forza ultima", "Con \"U\" prende anche l'ultima estrazione dell'archivio"};
  ControlArray<Label> LblPN{*this, "LblPN", {1, 2, 3, 4, 5}};  ///< positions 1..5
  GridControl FgNu{*this, "FgNu", 9, 10};                      ///< the 90 numbers, 9 rows of 10
  Combo ComboValF{*this, "ComboValF"};
  Text TxtNumeri{*this, "TxtNumeri"};
  Check Ch_analisi2ruote{*this, "Ch_analisi2ruote", "Analisi su ruote"};
  Combo ComboRetro{*this, "ComboRetro"};
  Label Label4{*this, "Label4", "Seleziona tutti", "Seleziona tutte le ruote di rilevazione"},
      Label19{*this, "Label19", "Seleziona tutti", "Deseleziona tutte le ruote di rilevazione"};
  GridControl FgRR{*this, "FgRR", 1, kWheels};  ///< wheels of detection, one row
  Combo ComboQNR1{*this, "ComboQNR1"}, ComboQNR2{*this, "ComboQNR2"};
  Check ChDDS{*this, "ChDDS", "D-D-S rapporto 1:1"}, Ch_ISO{*this, "Ch_ISO", "Isotopi"};

  // Elenco estrazioni.
  GridControl FgEv{*this, "FgEv", kCaseHeading};  ///< the cases
  Label LblVisti{*this, "LblVisti"};              ///< that a test forward has gone through them
  Label Label5{*this, "Label5"};                  ///< span of draws covered by the cases
  GridControl FgSSS{*this, "FgSSS", 2, 6};        ///< totals of columns 17..22 of FgEv: hits, covered cases

  // Ricerca.
  Label LblOrigine{*this, "LblOrigine"};  ///< the search that the ranking comes from
  LineList List1{*this, "List1"};
  Combo ComboEle{*this, "ComboEle", Combo::Typing::Digits}, Combo1R_1N{*this, "Combo1R_1N", Combo::Typing::Yes},
      Combo1R_2N{*this, "Combo1R_2N"}, ComboFix{*this, "ComboFix"},
      ComboOrdine{*this, "ComboOrdine"};  ///< of the search through everything: rarity, covered cases
  Check ChFix1R{*this, "ChFix1R", "Utilizza Fix"},
      Ch_Scoperti{*this, "Ch_Scoperti", "Casi scoperti", "Cerca solo sui casi non ancora coperti"},
      ChVerifica{*this, "ChVerifica", "Verifica automatica", "Verifica la tabella a ogni previsione aggiunta"};
  GridControl FgF{*this, "FgF", rankingHeading()};                       ///< the ranked candidates
  ControlArray<Button> Cmd_LaSorte{*this, "Cmd_LaSorte", {1, 2, 3, 6}};  ///< 1, 2, 3, 6
  Check Ch_Caso{*this, "Ch_Caso", "a ogni ricerca", "A ogni ricerca dice quanto è merito del caso"};
  /// How much of the ranking is luck, with the number of searches tried on these cases; the sentence by itself in a
  /// shorter form, and that number. No part of a state: figures of luck are worked out anew, never put back.
  Label LblCaso{*this, "LblCaso"}, LblCasoBreve{*this, "LblCasoBreve"}, LblRicerche{*this, "LblRicerche"};

  // Forecasts.
  Tabs SSTab3{*this,
              "SSTab3",
              {{0, "Ambate"},
               {1, "Ambi"},
               {2, "Terni"},
               {3, "Riepilogo"},
               {4, "Lunghetta"},
               {5, "Previsioni in corso"},
               {6, "Numeri in gioco"},
               {7, "Raggruppamento"},
               {8, "Informazioni"},
               {9, "Configurazioni"}}};
  GridControl Fg11{*this, "Fg11", tableHeading()}, Fg22{*this, "Fg22", tableHeading()},
      Fg33{*this, "Fg33", tableHeading()}, Fg00{*this, "Fg00", tableHeading()};
  GridControl FgZ1{*this, "FgZ1", kHitHeading}, FgZ2{*this, "FgZ2", kHitHeading}, FgZ3{*this, "FgZ3", kHitHeading},
      FgZ0{*this, "FgZ0", kHitHeading}, FgZZ{*this, "FgZZ", kSummaryHeading};
  Label LblRigaProvata{*this, "LblRigaProvata"};  ///< the row whose hits `FgZ1` shows, where it is one by itself
  Check Check3{*this, "Check3", "R", "Usa le ruote della riga"}, ChA{*this, "ChA", "1", "Ambate"},
      ChB{*this, "ChB", "2", "Ambi"}, ChC{*this, "ChC", "3", "Terni"}, Ch1esito{*this, "Ch1esito", "Stop 1° esito"};
  Combo ComboSorte{*this, "ComboSorte"};
  GridControl FgIC{*this, "FgIC", "N° Estr|S   |Colpo|1|2|3|4|5|6|7|8|9|10|Data ril       |Ruote"};
  ControlArray<Check> Ch_FF{*this, "Ch_FF", {0, 1, 2, 3}};  ///< 0 lunghette, 1, 2, 3
  GridControl Fg15{*this, "Fg15", "||||||"}, FgGioco{*this, "FgGioco", "T  |1|2|3|4|5|6|7|8|9|10"};
  Tabs SSTab4{*this, "SSTab4", {{0, "Elenco"}, {1, "Convergenze"}}};  ///< 0 Elenco, 1 Convergenze
  GridControl FgRagg{*this, "FgRagg",
                     "  |Config|Config|Rilev|Data Rilev|S |Colpo|1|2|3|4|5|6|7|8|9|10|B|C|F|G|M|N|P|R|T|V|Z"},
      FgConv{*this, "FgConv", "Num|BA|CA|FI|GE|MI|NA|PA|RO|TO|VE|NZ"};
  Label Label7{*this, "Label7"};
  ControlArray<Check> OptionRit{*this, "OptionRit", {0, 1, 2}};  ///< 720, 360, 180
  Check Ch_coperture{*this, "Ch_coperture", "Coperture"};
  Combo ComboDelta{*this, "ComboDelta"};
  GridControl FgRit{*this, "FgRit", "N°  |BA|CA|FI|GE|MI|NA|PA|RO|TO|VE|NZ|Sel"};
  Text Txt_Denominazione{*this, "Txt_Denominazione"}, Txt_FiltroConfig{*this, "Txt_FiltroConfig"};
  GridControl FgPir1{*this, "FgPir1", "|Cod|Denominazione|Estraz"};
  GridControl Fg_Stat{*this, "Fg_Stat", 11, 2}, Fg_Graf{*this, "Fg_Graf", 3, 3};
  Label LblAttesi{*this, "LblAttesi"};      ///< what luck alone covers of the table verified last
  Label LblBilancio{*this, "LblBilancio"};  ///< what playing it would have cost and paid

  // Without a place on screen.
  GridControl FgZ100{*this, "FgZ100", kHitHeading}, Fg99{*this, "Fg99", scratchHeading()}, FgDett{*this, "FgDett", ""},
      FgS1{*this, "FgS1", ""}, FgS2{*this, "FgS2", ""}, FgS3{*this, "FgS3", ""}, FgS4{*this, "FgS4", ""},
      FgS5{*this, "FgS5", ""}, FgS6{*this, "FgS6", ""}, FgSort{*this, "FgSort", ""};

  /// The formulas of a table, and the hits of its verification.
  GridControl& formulas(Table table);
  const GridControl& formulas(Table table) const { return const_cast<Workbench*>(this)->formulas(table); }
  GridControl& hits(Table table);
  const GridControl& hits(Table table) const { return const_cast<Workbench*>(this)->hits(table); }

  /// The button of that name; throws std::logic_error when there is none.
  Button& button(std::string_view name) const { return get<Button>(name); }

  void addButtons(const WorkbenchButtons& group);
  void addLabel(const std::string& name);

  WorkbenchHooks hooks;
  ResultOrigins origins;
  /// What a test forward has gone through, without reference draw and number of cases. Nothing takes it back.
  std::vector<Situation> seenSituations;

  /// Keeps alive what runs after every operation.
  std::shared_ptr<void> settled;
  /// Sets the searches beside luck; null for a workbench that doesn't.
  std::shared_ptr<SearchLuckLine> luck;

 private:
  std::vector<std::unique_ptr<Button>> m_buttons;
  std::vector<std::unique_ptr<Label>> m_labels;

 public:
  WorkbenchHistory history{*this};
};

}  // namespace trv5
