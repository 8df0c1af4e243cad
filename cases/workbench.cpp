#include "cases/workbench.h"

#include <string>

#include "cases/case_rows.h"
#include "cases/formula_rows.h"
#include "cases/hit_rows.h"

namespace trv5 {
namespace {

struct ButtonRow {
  const char* name;
  const char* caption;
  const char* toolTip;
};

constexpr const char* kOneWheel = "Ricerca migliore ruota";
constexpr const char* kTwoWheels = "Ricerca miglior 2 ruote";
constexpr const char* kThreeWheels = "Ricerca miglior 3 ruote";
constexpr const char* kPure = "Numeri puri";
constexpr const char* kCounts = "Riverifica le righe della ricerca";

// Every button of the workbench; where a button does something, the layer that knows how connects it.
constexpr ButtonRow kButtons[] = {
    // Reference bar.
    {"Command42_0", "", "Aggiorna l'estrazione di riferimento"},
    {"Command42_1", "Ricera per data", "Ricera per data"},
    {"Command42_2", "Ricerca per numero estrazione", "Ricerca per numero estrazione"},
    {"Command42_3", "Vai all'ultima estrazione", "Vai all'ultima estrazione"},
    {"Command87", "RIELABORA TUTTO", "Ricava l'elenco e verifica tutte le tabelle"},
    {"Command70", "Help in linea", "Help in linea"},
    // Selezioni.
    {"Command14", "Setta estrazione mensìle", ""},
    {"Command24", "DEC", "Seleziona i numeri della decina"},
    {"Command25", "CAD", "Seleziona i numeri della cadenza"},
    {"Command26", "FIG", "Seleziona i numeri della figura"},
    {"Command8", "Reset", "Deseleziona tutti i numeri"},
    {"Command6", "OK", "Riporta i numeri selezionati"},
    {"Command41", "Nuova configurazione (Reset)", ""},
    {"Command44", "RICAVA ELENCO ESTRAZIONI", ""},
    // Elenco estrazioni.
    {"Command12", "Visualizza estrazione", ""},
    {"Command103", "", "Mappa dei casi"},
    {"Command27", "Nuova configurazione", "Cancella i segni delle verifiche"},
    // Ricerca.
    {"Command3", "Estrae Terzine", "Prepara le terzine di posizioni per 3N 1R"},
    {"Cmd_Colora_fgf", "Colora grid", ""},
    {"Command20", "1N 1R", "1 numero 1 ruota"},
    {"Command11", "1R", kOneWheel},
    {"Command13", "2R", kTwoWheels},
    {"Command15", "3R", kThreeWheels},
    {"Command23", "2N 1R", "2 numeri 1 ruota"},
    {"Command17", "1R", kOneWheel},
    {"Command16", "2R", kTwoWheels},
    {"Command7", "3R", kThreeWheels},
    {"Command18", "3N 1R", "3 numeri 1 ruota"},
    {"Command10", "2N 2R", "2 numeri (1 per ruota) 2 ruote"},
    {"Command1", "1R", kOneWheel},
    {"Command2", "2R", kTwoWheels},
    {"Command77", "NUM", kPure},
    {"Command101", "1R", kOneWheel},
    {"Command100", "2R", kTwoWheels},
    {"Command99", "3R", kThreeWheels},
    {"Command28", "1N 1R", "1 numero 1 ruota"},
    {"Command39", "2N 1R", "2 numeri 1 ruota"},
    {"Command37", "3N 1R", "3 numeri 1 ruota"},
    {"Command31", "2N 2R", "2 numeri (1 per ruota) 2 ruote"},
    {"Command105", "NUM", kPure},
    {"Command64", "CC", kCounts},
    {"Command46", "1N 1R", "1 numero 1 ruota"},
    {"Command43", "2N 1R", "2 numeri 1 ruota"},
    {"Command45", "3N 1R", "3 numeri 1 ruota"},
    {"Command40", "2N 2R", "2 numeri (1 per ruota) 2 ruote"},
    {"Command107", "NUM", kPure},
    {"Command73", "CC", kCounts},
    {"Command56", "1N 1R", "1 numero 1 ruota"},
    {"Command58", "2N 1R", "2 numeri 1 ruota"},
    {"Command57", "3N 1R", "3 numeri 1 ruota"},
    {"Command59", "2N 2R", "2 numeri (1 per ruota) 2 ruote"},
    {"Command108", "NUM", kPure},
    {"Command84", "CC", kCounts},
    {"Command22", "Verifica riga selezionata", "Verifica la riga della ricerca senza aggiungerla"},
    // Ambate.
    {"Command29", "Verifica tutte le righe", ""},
    {"Command21", "Verifica riga selezionata", ""},
    {"Command90", "Verifica oltre limite", "Prosegue i casi in corso oltre l'estrazione di riferimento"},
    {"Command32", "Rimuove riga selezionata", ""},
    {"Command19", "Nuova configurazione", ""},
    {"Stampa_FgZ1", "Stampa", ""},
    {"Copia_FgZ1", "Copia tabella", ""},
    {"Command75", "Pulisce celle esiti", ""},
    // Ambi.
    {"Command34", "Verifica tutte le righe", ""},
    {"Command5", "Verifica oltre limite", "Prosegue i casi in corso oltre l'estrazione di riferimento"},
    {"Rimuove_Fg22", "Rimuove riga selezionata", ""},
    {"Nuova_Fg22", "Nuova configurazione", ""},
    {"Stampa_FgZ2", "Stampa", ""},
    {"Copia_FgZ2", "Copia tabella", ""},
    {"Pulisce_FgZ2", "Pulisce celle esiti", ""},
    // Terni.
    {"Command48", "Verifica tutte le righe", ""},
    {"Command91", "Verifica oltre limite", "Prosegue i casi in corso oltre l'estrazione di riferimento"},
    {"Rimuove_Fg33", "Rimuove riga selezionata", ""},
    {"Nuova_Fg33", "Nuova configurazione", ""},
    {"Stampa_FgZ3", "Stampa", ""},
    {"Copia_FgZ3", "Copia tabella", ""},
    {"Pulisce_FgZ3", "Pulisce celle esiti", ""},
    // Riepilogo.
    {"Command86", "RIEPILOGO", ""},
    {"Command96", "Stampa", ""},
    {"Command98", "Copia tabella", ""},
    {"Command97", "Pulisce celle esiti", ""},
    // Lunghetta.
    {"Cmd_Elabora100", ">>", "Elabora i numeri in gioco caso per caso"},
    {"Command30", "COPIA", "Raccoglie le formule di ambate, ambi e terni"},
    {"Command51", "Verifica tutte le righe", ""},
    {"Command92", "Verifica oltre limite", "Prosegue i casi in corso oltre l'estrazione di riferimento"},
    {"Rimuove_Fg00", "Rimuove riga selezionata", ""},
    {"Nuova_Fg00", "Nuova configurazione", ""},
    {"Stampa_FgZ0", "Stampa", ""},
    {"Copia_FgZ0", "Copia tabella", ""},
    {"Pulisce_FgZ0", "Pulisce celle esiti", ""},
    {"Command85", "Visualizzazione estesa", ""},
    // Previsioni in corso.
    {"Command35", "Elenco previsioni in corso", ""},
    {"Command102", "Verifica oltre limite", ""},
    {"Command50", "1", "Filtra ambate"},
    {"Command55", "2", "Filtra ambi"},
    {"Command60", "3", "Filtra terni"},
    {"Command61", "L", "Filtra lunghette"},
    {"Command62", "Filtra selezionati", ""},
    {"Command38", "Stampa", ""},
    {"Command93", "Copia tabella", ""},
    // Numeri in gioco.
    {"Command63", "Evidenzia se previsioni in corso", ""},
    // Raggruppamento.
    {"Command106", "Esegue procedura", ""},
    {"Command109", "Stampa", ""},
    {"Command110", "Copia tabella", ""},
    {"Command114", "AMBATE", ""},
    {"Command115", "AMBO", ""},
    {"Command116", "TERNO", ""},
    // Informazioni.
    {"Command9", "RITARDI", ""},
    {"Command88", "PRESENZE", ""},
    {"Command76", "PRESENZE NEI COLPI DI GIOCO", ""},
    {"Command111", "Ricerca su 2 ruote", ""},
    {"Command112", "Ricerca su 3 ruote", ""},
    {"Command113", "Ricerca su 4 ruote", ""},
    {"Command104", "Filtra selezionati", ""},
    {"Command89", "Copia tabella", ""},
    // Configurazioni.
    {"Command4", "Salva configurazione", ""},
    {"Cmd_Elenco", "ELENCO", ""},
    {"Command54", "Cancella selezionata", ""},
    // Called by other buttons alone.
    {"Command117", "Command117", ""},
    {"Command94", "Verifica per CC", ""},
    {"Command95", "Verifica per CC", ""},
    {"Command69", "Verifica per CC", ""},
};

constexpr const char* kDeadToolTip = "Non ancora disponibile in questa versione";

// The button without which a tab of SSTab3 has nothing to offer.
constexpr std::pair<int, const char*> kMainButtonOfTab[] = {
    {0, "Command29"}, {1, "Command34"}, {2, "Command48"},  {3, "Command86"}, {4, "Command51"},
    {5, "Command35"}, {6, "Command63"}, {7, "Command106"}, {8, "Command9"},  {9, "Command4"}};

}  // namespace

Workbench::Workbench(const Archive& draws, Shell& shell)
    : Form(shell, "Sommativi1", "TRV5", 290),
      archive(draws),
      hs1(*this, "hs1", 1, 1),
      LabelRifE(*this, "LabelRifE"),
      FgRG(*this, "FgRG", 1, kWheels),
      Label1(*this, "Label1", {0, 1}),
      Label17(*this, "Label17", "Seleziona tutti", "Seleziona tutte le ruote di gioco"),
      Label18(*this, "Label18", "Seleziona tutti", "Deseleziona tutte le ruote di gioco"),
      ComboColpi(*this, "ComboColpi", Combo::Typing::Yes),
      SSTab1(*this, "SSTab1", {{1, "Selezioni"}, {0, "Elenco estrazioni"}}),
      ComboFiltro(*this, "ComboFiltro"),
      ComboPar(*this, "ComboPar"),
      ComboR1(*this, "ComboR1"),
      ComboNC(*this, "ComboNC", Combo::Typing::Yes),
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
      ComboEle(*this, "ComboEle", Combo::Typing::Yes),
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
      FgSort(*this, "FgSort", "") {
  for (const ButtonRow& row : kButtons)
    m_buttons.push_back(std::make_unique<Button>(*this, row.name, row.caption, row.toolTip));
}

GridControl& Workbench::formulas(Table table) {
  const ByTable<GridControl*> grids = {&Fg11, &Fg22, &Fg33, &Fg00};
  return *grids[indexOf(table)];
}

GridControl& Workbench::hits(Table table) {
  const ByTable<GridControl*> grids = {&FgZ1, &FgZ2, &FgZ3, &FgZ0};
  return *grids[indexOf(table)];
}

void Workbench::disableDeadButtons() {
  for (const std::unique_ptr<Button>& b : m_buttons) {
    if (b->hasEvent()) continue;
    b->setEnabled(false);
    b->setToolTip(kDeadToolTip);
  }
  for (const auto& [tab, name] : kMainButtonOfTab) SSTab3.setTabEnabled(tab, button(name).hasEvent());
}

}  // namespace trv5
