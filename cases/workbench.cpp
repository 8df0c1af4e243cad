#include "cases/workbench.h"

#include <string>

#include "cases/case_rows.h"
#include "cases/formula_rows.h"
#include "cases/hit_rows.h"

namespace trv5 {
namespace {

constexpr const char* kDeadToolTip = "Non ancora disponibile in questa versione";

}  // namespace

Workbench::Workbench(const Archive& draws, Shell& shell)
    : Form(shell, "Sommativi1", "TRV5", 290),
      archive(draws),
      hs1(*this, "hs1", 1, 1),
      LabelRifE(*this, "LabelRifE"),
      FgRG(*this, "FgRG", 1, kWheels),
      Label1(*this, "Label1", {0}),
      Label17(*this, "Label17", "Seleziona tutti", "Seleziona tutte le ruote di gioco"),
      Label18(*this, "Label18", "Seleziona tutti", "Deseleziona tutte le ruote di gioco"),
      ComboColpi(*this, "ComboColpi", Combo::Typing::Digits),
      SSTab1(*this, "SSTab1", {{1, "Selezioni"}, {0, "Elenco estrazioni"}}),
      ComboFiltro(*this, "ComboFiltro"),
      ComboPar(*this, "ComboPar"),
      ComboR1(*this, "ComboR1"),
      ComboNC(*this, "ComboNC", Combo::Typing::Digits),
      ComboQNu(*this, "ComboQNu"),
      Ch_ultima(*this, "Ch_ultima", "Forza ultima", "Con \"U\" prende anche l'ultima estrazione dell'archivio"),
      LblPN(*this, "LblPN", {1, 2, 3, 4, 5}),
      FgNu(*this, "FgNu", 9, 10),
      ComboValF(*this, "ComboValF"),
      TxtNumeri(*this, "TxtNumeri"),
      Ch_analisi2ruote(*this, "Ch_analisi2ruote", "Analisi su ruote"),
      ComboRetro(*this, "ComboRetro"),
      Label4(*this, "Label4", "Seleziona tutti", "Seleziona tutte le ruote di rilevazione"),
      Label19(*this, "Label19", "Seleziona tutti", "Deseleziona tutte le ruote di rilevazione"),
      FgRR(*this, "FgRR", 1, kWheels),
      ComboQNR1(*this, "ComboQNR1"),
      ComboQNR2(*this, "ComboQNR2"),
      ChDDS(*this, "ChDDS", "D-D-S rapporto 1:1"),
      Ch_ISO(*this, "Ch_ISO", "Isotopi"),
      FgEv(*this, "FgEv", kCaseHeading),
      Label5(*this, "Label5"),
      FgSSS(*this, "FgSSS", 2, 6),
      List1(*this, "List1"),
      ComboEle(*this, "ComboEle", Combo::Typing::Digits),
      Combo1R_1N(*this, "Combo1R_1N", Combo::Typing::Yes),
      Combo1R_2N(*this, "Combo1R_2N"),
      ComboFix(*this, "ComboFix"),
      ChFix1R(*this, "ChFix1R", "Utilizza Fix"),
      Ch_Scoperti(*this, "Ch_Scoperti", "Casi scoperti", "Cerca solo sui casi non ancora coperti"),
      ChVerifica(*this, "ChVerifica", "Verifica automatica", "Verifica la tabella a ogni previsione aggiunta"),
      FgF(*this, "FgF", rankingHeading()),
      Cmd_LaSorte(*this, "Cmd_LaSorte", {1, 2, 3, 6}),
      SSTab3(*this, "SSTab3",
             {{0, "Ambate"},
              {1, "Ambi"},
              {2, "Terni"},
              {3, "Riepilogo"},
              {4, "Lunghetta"},
              {5, "Previsioni in corso"},
              {6, "Numeri in gioco"},
              {7, "Raggruppamento"},
              {8, "Informazioni"},
              {9, "Configurazioni"}}),
      Fg11(*this, "Fg11", tableHeading()),
      Fg22(*this, "Fg22", tableHeading()),
      Fg33(*this, "Fg33", tableHeading()),
      Fg00(*this, "Fg00", tableHeading()),
      FgZ1(*this, "FgZ1", kHitHeading),
      FgZ2(*this, "FgZ2", kHitHeading),
      FgZ3(*this, "FgZ3", kHitHeading),
      FgZ0(*this, "FgZ0", kHitHeading),
      FgZZ(*this, "FgZZ", kSummaryHeading),
      Check3(*this, "Check3", "R", "Usa le ruote della riga"),
      ChA(*this, "ChA", "1", "Ambate"),
      ChB(*this, "ChB", "2", "Ambi"),
      ChC(*this, "ChC", "3", "Terni"),
      Ch1esito(*this, "Ch1esito", "Stop 1° esito"),
      ComboSorte(*this, "ComboSorte"),
      FgIC(*this, "FgIC", "N° Estr|S   |Colpo|1|2|3|4|5|6|7|8|9|10|Data ril       |Ruote"),
      Ch_FF(*this, "Ch_FF", {0, 1, 2, 3}),
      Fg15(*this, "Fg15", "||||||"),
      FgGioco(*this, "FgGioco", "T  |1|2|3|4|5|6|7|8|9|10"),
      SSTab4(*this, "SSTab4", {{0, "Elenco"}, {1, "Convergenze"}}),
      FgRagg(*this, "FgRagg", "  |Config|Config|Rilev|Data Rilev|S |Colpo|1|2|3|4|5|6|7|8|9|10|B|C|F|G|M|N|P|R|T|V|Z"),
      FgConv(*this, "FgConv", "Num|BA|CA|FI|GE|MI|NA|PA|RO|TO|VE|NZ"),
      Label7(*this, "Label7"),
      OptionRit(*this, "OptionRit", {0, 1, 2}),
      Ch_coperture(*this, "Ch_coperture", "Coperture"),
      ComboDelta(*this, "ComboDelta"),
      FgRit(*this, "FgRit", "N°  |BA|CA|FI|GE|MI|NA|PA|RO|TO|VE|NZ|Sel"),
      Txt_Denominazione(*this, "Txt_Denominazione"),
      FgPir1(*this, "FgPir1", "|Cod|Denominazione|Estraz"),
      Fg_Stat(*this, "Fg_Stat", 11, 2),
      Fg_Graf(*this, "Fg_Graf", 3, 3),
      FgZ100(*this, "FgZ100", kHitHeading),
      Fg99(*this, "Fg99", scratchHeading()),
      FgDett(*this, "FgDett", ""),
      FgS1(*this, "FgS1", ""),
      FgS2(*this, "FgS2", ""),
      FgS3(*this, "FgS3", ""),
      FgS4(*this, "FgS4", ""),
      FgS5(*this, "FgS5", ""),
      FgS6(*this, "FgS6", ""),
      FgSort(*this, "FgSort", "") {}

GridControl& Workbench::formulas(Table table) {
  const ByTable<GridControl*> grids = {&Fg11, &Fg22, &Fg33, &Fg00};
  return *grids[indexOf(table)];
}

GridControl& Workbench::hits(Table table) {
  const ByTable<GridControl*> grids = {&FgZ1, &FgZ2, &FgZ3, &FgZ0};
  return *grids[indexOf(table)];
}

void Workbench::addButtons(const WorkbenchButtons& group) {
  for (const WorkbenchButton& row : group.buttons) {
    Button& added = *m_buttons.emplace_back(std::make_unique<Button>(*this, row.name, row.caption, row.toolTip));
    if (row.run != nullptr) {
      added.onEvent([this, run = row.run] { run(*this); });
    } else {
      added.setEnabled(false);
      added.setToolTip(kDeadToolTip);
    }
  }
  if (group.tab >= 0) SSTab3.setTabEnabled(group.tab, group.buttons.front().run != nullptr);
}

}  // namespace trv5
