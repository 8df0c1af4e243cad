#include "desk/workbench_buttons.h"

#include "cases/case_list.h"
#include "cases/case_map.h"
#include "cases/case_search.h"
#include "cases/selections.h"
#include "cases/workbench_history.h"
#include "configs/configurations.h"
#include "configs/draft.h"
#include "core/numbers.h"
#include "engine/ambata_buttons.h"
#include "engine/candidate_check.h"
#include "engine/caso.h"
#include "engine/colouring.h"
#include "engine/companion_buttons.h"
#include "engine/evaluation.h"
#include "engine/formula_tables.h"
#include "engine/forward_search.h"
#include "engine/lunghetta.h"
#include "engine/pure_buttons.h"
#include "engine/summary.h"
#include "engine/table_tools.h"
#include "engine/verification.h"
#include "engine/whole_ranking.h"
#include "followup/case_forecasts.h"
#include "followup/grouping.h"
#include "followup/information.h"
#include "followup/live_forecasts.h"

namespace trv5 {
namespace {

// The operation of a row: a function on the workbench, and what else it is given.
template <auto operation, auto... arguments>
void run(Workbench& w) {
  operation(w, arguments...);
}

// The same for an operation on one grid.
template <auto operation, auto grid>
void onGrid(Workbench& w) {
  operation(w.*grid);
}

constexpr const char* kOneWheel = "Ricerca migliore ruota";
constexpr const char* kTwoWheels = "Ricerca miglior 2 ruote";
constexpr const char* kThreeWheels = "Ricerca miglior 3 ruote";
constexpr const char* kPure = "Numeri puri";
constexpr const char* kCounts = "Riverifica le righe della ricerca";

// Name of the control, caption, tooltip, operation. The first button of a tab is its main one.

constexpr WorkbenchButton kReferenceBar[] = {
    {"Command42_0", "", "Aggiorna l'estrazione di riferimento", run<AggiornaEstrazioneRiferimento>},
    {"Command42_1", "Ricera per data", "Ricera per data", run<RicercaPerData>},
    {"Command42_2", "Ricerca per numero estrazione", "Ricerca per numero estrazione", run<RicercaPerIndice>},
    {"Command42_3", "Vai all'ultima estrazione", "Vai all'ultima estrazione", run<VaiUltimaEstrazione>},
    {"Command87", "RIELABORA TUTTO", "Ricava l'elenco e verifica tutte le tabelle", run<RielaboraTutto>},
    {"Command70", "Help in linea", "Help in linea", run<MostraAiuto>},
    {"Cmd_Annulla", "Annulla", "Niente da annullare", run<AnnullaOperazione>},
    {"Cmd_Ripeti", "Ripete", "Niente da ripetere", run<RipeteOperazione>},
};

constexpr WorkbenchButton kSelezioni[] = {
    {"Command14", "Setta estrazione mensìle", "", run<SettaEstrazioneMensile>},
    {"Command24", "DEC", "Seleziona i numeri della decina", [](Workbench& w) { SelezionaPerProprieta(w, TabDecina); }},
    {"Command25", "CAD", "Seleziona i numeri della cadenza",
     [](Workbench& w) { SelezionaPerProprieta(w, TabCadenza); }},
    {"Command26", "FIG", "Seleziona i numeri della figura", [](Workbench& w) { SelezionaPerProprieta(w, TabFigura); }},
    {"Command8", "Reset", "Deseleziona tutti i numeri", run<DeselezionaNumeri>},
    {"Command6", "OK", "Riporta i numeri selezionati", run<RiportaNumeri>},
    {"Command41", "Nuova configurazione (Reset)", "", run<NuovaConfigurazioneReset>},
    {"Command44", "RICAVA ELENCO ESTRAZIONI", "", run<RicavaElencoEstrazioni>},
};

constexpr WorkbenchButton kElencoEstrazioni[] = {
    {"Command12", "Visualizza estrazione", "", run<VisualizzaEstrazione>},
    {"Command103", "", "Mappa dei casi", run<MostraMappaCasi>},
    {"Command27", "Nuova configurazione", "Cancella i segni delle verifiche", run<CancellaSegniVerifica>},
};

constexpr WorkbenchButton kRicerca[] = {
    {"Command3", "Estrae Terzine", "Prepara le terzine di posizioni per 3N 1R", run<EstraeTerzine>},
    {"Cmd_Colora_fgf", "Colora grid", "", run<ColoraFgF>},
    {"Cmd_Avanti", "Prova in avanti", "Ripete l'ultima ricerca su tutti i casi dell'archivio, ogni volta come allora",
     run<ApreProvaAvanti>},
    {"Command22", "Verifica riga selezionata", "Verifica la riga della ricerca senza aggiungerla",
     run<verificaRigaRicerca>},
    {"Cmd_Caso", "Quanto è merito del caso?", "Quanto è merito del caso? Confronta la ricerca con archivi sorteggiati",
     run<MostraMeritoCaso>},
};

constexpr WorkbenchButton kRicercaPaginaAmbate[] = {
    {"Command20", "1N 1R", "1 numero 1 ruota", [](Workbench& w) { CercaAmbate(w, ambataSearch("Command20")); }},
    {"Command11", "1R", kOneWheel, [](Workbench& w) { CercaAmbate(w, ambataSearch("Command11")); }},
    {"Command13", "2R", kTwoWheels, [](Workbench& w) { CercaAmbate(w, ambataSearch("Command13")); }},
    {"Command15", "3R", kThreeWheels, [](Workbench& w) { CercaAmbate(w, ambataSearch("Command15")); }},
    {"Command23", "2N 1R", "2 numeri 1 ruota", [](Workbench& w) { CercaAmbate(w, ambataSearch("Command23")); }},
    {"Command17", "1R", kOneWheel, [](Workbench& w) { CercaAmbate(w, ambataSearch("Command17")); }},
    {"Command16", "2R", kTwoWheels, [](Workbench& w) { CercaAmbate(w, ambataSearch("Command16")); }},
    {"Command7", "3R", kThreeWheels, [](Workbench& w) { CercaAmbate(w, ambataSearch("Command7")); }},
    {"Command18", "3N 1R", "3 numeri 1 ruota", [](Workbench& w) { CercaAmbate(w, ambataSearch("Command18")); }},
    {"Command10", "2N 2R", "2 numeri (1 per ruota) 2 ruote",
     [](Workbench& w) { CercaAmbate(w, ambataSearch("Command10")); }},
    {"Command1", "1R", kOneWheel, [](Workbench& w) { CercaAmbate(w, ambataSearch("Command1")); }},
    {"Command2", "2R", kTwoWheels, [](Workbench& w) { CercaAmbate(w, ambataSearch("Command2")); }},
    {"Command77", "NUM", kPure, run<CercaNumeri, 0>},
    {"Command101", "1R", kOneWheel, run<CercaNumeri, 1>},
    {"Command100", "2R", kTwoWheels, run<CercaNumeri, 2>},
    {"Command99", "3R", kThreeWheels, run<CercaNumeri, 3>},
    {"Cmd_Totale", "TUTTE", "Tutte le ricerche insieme: ogni forma, alterazione, operazione e fix, su 1, 2 e 3 ruote",
     run<CercaTutte>},
};

constexpr WorkbenchButton kRicercaPaginaAmbi[] = {
    {"Command28", "1N 1R", "1 numero 1 ruota", [](Workbench& w) { CercaCompagni(w, companionSearch("Command28")); }},
    {"Command39", "2N 1R", "2 numeri 1 ruota", [](Workbench& w) { CercaCompagni(w, companionSearch("Command39")); }},
    {"Command37", "3N 1R", "3 numeri 1 ruota", [](Workbench& w) { CercaCompagni(w, companionSearch("Command37")); }},
    {"Command31", "2N 2R", "2 numeri (1 per ruota) 2 ruote",
     [](Workbench& w) { CercaCompagni(w, companionSearch("Command31")); }},
    {"Command105", "NUM", kPure, run<CercaNumeriCompagni, Table::Ambi>},
    {"Command64", "CC", kCounts, run<VerificaCandidati, Table::Ambi>},
};

constexpr WorkbenchButton kRicercaPaginaTerni[] = {
    {"Command46", "1N 1R", "1 numero 1 ruota", [](Workbench& w) { CercaCompagni(w, companionSearch("Command46")); }},
    {"Command43", "2N 1R", "2 numeri 1 ruota", [](Workbench& w) { CercaCompagni(w, companionSearch("Command43")); }},
    {"Command45", "3N 1R", "3 numeri 1 ruota", [](Workbench& w) { CercaCompagni(w, companionSearch("Command45")); }},
    {"Command40", "2N 2R", "2 numeri (1 per ruota) 2 ruote",
     [](Workbench& w) { CercaCompagni(w, companionSearch("Command40")); }},
    {"Command107", "NUM", kPure, run<CercaNumeriCompagni, Table::Terni>},
    {"Command73", "CC", kCounts, run<VerificaCandidati, Table::Terni>},
};

constexpr WorkbenchButton kRicercaPaginaLunghetta[] = {
    {"Command56", "1N 1R", "1 numero 1 ruota", [](Workbench& w) { CercaCompagni(w, companionSearch("Command56")); }},
    {"Command58", "2N 1R", "2 numeri 1 ruota", [](Workbench& w) { CercaCompagni(w, companionSearch("Command58")); }},
    {"Command57", "3N 1R", "3 numeri 1 ruota", [](Workbench& w) { CercaCompagni(w, companionSearch("Command57")); }},
    {"Command59", "2N 2R", "2 numeri (1 per ruota) 2 ruote",
     [](Workbench& w) { CercaCompagni(w, companionSearch("Command59")); }},
    {"Command108", "NUM", kPure, run<CercaNumeriCompagni, Table::Lunghetta>},
    {"Command84", "CC", kCounts, run<VerificaCandidati, Table::Lunghetta>},
};

constexpr WorkbenchButton kAmbate[] = {
    {"Command29", "Verifica tutte le righe", "", run<verificaTutte, Table::Ambate>},
    {"Command21", "Verifica riga selezionata", "", run<verificaRigaFormula>},
    {"Command90", "Verifica oltre limite", "Prosegue i casi in corso oltre l'estrazione di riferimento",
     run<verificaOltreLimite, Table::Ambate>},
    {"Command32", "Rimuove riga selezionata", "", run<RimuoveFormula, Table::Ambate>},
    {"Command19", "Nuova configurazione", "", run<SvuotaTabella, Table::Ambate>},
    {"Stampa_FgZ1", "Stampa", "", onGrid<StampaTabella, &Workbench::FgZ1>},
    {"Copia_FgZ1", "Copia tabella", "", onGrid<CopiaTabella, &Workbench::FgZ1>},
    {"Command75", "Pulisce celle esiti", "", onGrid<PulisceCelleEsiti, &Workbench::FgZ1>},
};

constexpr WorkbenchButton kAmbi[] = {
    {"Command34", "Verifica tutte le righe", "", run<verificaTutte, Table::Ambi>},
    {"Command5", "Verifica oltre limite", "Prosegue i casi in corso oltre l'estrazione di riferimento",
     run<verificaOltreLimite, Table::Ambi>},
    {"Rimuove_Fg22", "Rimuove riga selezionata", "", run<RimuoveFormula, Table::Ambi>},
    {"Nuova_Fg22", "Nuova configurazione", "", run<SvuotaTabella, Table::Ambi>},
    {"Stampa_FgZ2", "Stampa", "", onGrid<StampaTabella, &Workbench::FgZ2>},
    {"Copia_FgZ2", "Copia tabella", "", onGrid<CopiaTabella, &Workbench::FgZ2>},
    {"Pulisce_FgZ2", "Pulisce celle esiti", "", onGrid<PulisceCelleEsiti, &Workbench::FgZ2>},
};

constexpr WorkbenchButton kTerni[] = {
    {"Command48", "Verifica tutte le righe", "", run<verificaTutte, Table::Terni>},
    {"Command91", "Verifica oltre limite", "Prosegue i casi in corso oltre l'estrazione di riferimento",
     run<verificaOltreLimite, Table::Terni>},
    {"Rimuove_Fg33", "Rimuove riga selezionata", "", run<RimuoveFormula, Table::Terni>},
    {"Nuova_Fg33", "Nuova configurazione", "", run<SvuotaTabella, Table::Terni>},
    {"Stampa_FgZ3", "Stampa", "", onGrid<StampaTabella, &Workbench::FgZ3>},
    {"Copia_FgZ3", "Copia tabella", "", onGrid<CopiaTabella, &Workbench::FgZ3>},
    {"Pulisce_FgZ3", "Pulisce celle esiti", "", onGrid<PulisceCelleEsiti, &Workbench::FgZ3>},
};

constexpr WorkbenchButton kRiepilogo[] = {
    {"Command86", "RIEPILOGO", "", run<CreaRiepilogo>},
    {"Command96", "Stampa", "", onGrid<StampaTabella, &Workbench::FgZZ>},
    {"Command98", "Copia tabella", "", onGrid<CopiaTabella, &Workbench::FgZZ>},
    {"Command97", "Pulisce celle esiti", "", onGrid<PulisceCelleEsiti, &Workbench::FgZZ>},
};

constexpr WorkbenchButton kLunghetta[] = {
    {"Command51", "Verifica tutte le righe", "", run<verificaTutte, Table::Lunghetta>},
    {"Cmd_Elabora100", ">>", "Elabora i numeri in gioco caso per caso", run<Cmd_Elabora100>},
    {"Command30", "COPIA", "Raccoglie le formule di ambate, ambi e terni", run<CopiaFormule>},
    {"Command92", "Verifica oltre limite", "Prosegue i casi in corso oltre l'estrazione di riferimento",
     run<verificaOltreLimite, Table::Lunghetta>},
    {"Rimuove_Fg00", "Rimuove riga selezionata", "", run<RimuoveFormula, Table::Lunghetta>},
    {"Nuova_Fg00", "Nuova configurazione", "", run<SvuotaTabella, Table::Lunghetta>},
    {"Stampa_FgZ0", "Stampa", "", onGrid<StampaTabella, &Workbench::FgZ0>},
    {"Copia_FgZ0", "Copia tabella", "", onGrid<CopiaTabella, &Workbench::FgZ0>},
    {"Pulisce_FgZ0", "Pulisce celle esiti", "", onGrid<PulisceCelleEsiti, &Workbench::FgZ0>},
    {"Command85", "Visualizzazione estesa", "", run<MostraVistaEstesa>},
};

constexpr WorkbenchButton kPrevisioniInCorso[] = {
    {"Command35", "Elenco previsioni in corso", "Elenca le previsioni dei casi in corso", run<ElencaPrevisioniInCorso>},
    {"Command102", "Verifica oltre limite", "Mostra quali previsioni sono uscite oltre l'estrazione di riferimento",
     run<VerificaPrevisioniOltreLimite>},
    {"Command50", "1", "Filtra ambate", run<FiltraPrevisioni, '1'>},
    {"Command55", "2", "Filtra ambi", run<FiltraPrevisioni, '2'>},
    {"Command60", "3", "Filtra terni", run<FiltraPrevisioni, '3'>},
    {"Command61", "L", "Filtra lunghette", run<FiltraPrevisioni, 'L'>},
    {"Command62", "Filtra selezionati", "Mostra solo le sorti spuntate", run<FiltraPrevisioniSelezionate>},
    {"Command38", "Stampa", "", run<StampaPrevisioni>},
    {"Command93", "Copia tabella", "", onGrid<CopiaTabella, &Workbench::FgIC>},
};

constexpr WorkbenchButton kNumeriInGioco[] = {
    {"Command63", "Evidenzia se previsioni in corso", "Segna i casi ancora in corso", run<EvidenziaCasiInCorso>},
};

constexpr WorkbenchButton kRaggruppamento[] = {
    {"Command106", "Esegue procedura", "Riesegue tutte le configurazioni salvate e ne raccoglie le previsioni",
     run<EseguiProcedura>},
    {"Command109", "Stampa", "", onGrid<StampaTabella, &Workbench::FgRagg>},
    {"Command110", "Copia tabella", "", onGrid<CopiaTabella, &Workbench::FgRagg>},
    {"Command114", "AMBATE", "Conta le ambate per numero e ruota", run<ContaConvergenze, 1>},
    {"Command115", "AMBO", "Conta i numeri degli ambi per numero e ruota", run<ContaConvergenze, 2>},
    {"Command116", "TERNO", "Conta i numeri dei terni per numero e ruota", run<ContaConvergenze, 3>},
};

constexpr WorkbenchButton kInformazioni[] = {
    {"Command9", "RITARDI", "Da quante estrazioni manca ogni numero, ruota per ruota", run<CalcolaRitardi>},
    {"Command88", "PRESENZE", "Quante volte è uscito ogni numero nelle ultime estrazioni", run<CalcolaPresenze>},
    {"Command76", "PRESENZE NEI COLPI DI GIOCO", "Quante volte è uscito ogni numero nei colpi dei casi",
     run<CalcolaPresenzeNeiColpi>},
    {"Command111", "Ricerca su 2 ruote", "Segna i ritardi che distano Delta su 2 ruote", run<CercaRitardiVicini, 2>},
    {"Command112", "Ricerca su 3 ruote", "Segna i ritardi che distano Delta su 3 ruote", run<CercaRitardiVicini, 3>},
    {"Command113", "Ricerca su 4 ruote", "Segna i ritardi che distano Delta su 4 ruote", run<CercaRitardiVicini, 4>},
    {"Command104", "Filtra selezionati", "Mostra solo i numeri in gioco nel caso scelto", run<FiltraNumeriInGioco>},
    {"Command89", "Copia tabella", "", onGrid<CopiaTabella, &Workbench::FgRit>},
};

constexpr WorkbenchButton kConfigurazioni[] = {
    {"Command4", "Salva configurazione", "Salva tutto il metodo con la sua denominazione", run<SalvaConfigurazione>},
    {"Cmd_Elenco", "ELENCO", "Legge di nuovo l'elenco delle configurazioni", run<ElencaConfigurazioni>},
    {"Cmd_Riprendi", "Riprendi il lavoro", "Il lavoro che stava sul banco alla chiusura del programma",
     run<RiprendiLavoro>},
    {"Command54", "Cancella selezionata", "Cancella la configurazione selezionata", run<CancellaConfigurazione>},
};

constexpr WorkbenchButton kCalledByOtherButtonsAlone[] = {
    {"Command117", "Command117", "", run<MostraSfaldamenti>},
    {"Command94", "Verifica per CC", "", run<verificaPerCc, Table::Ambi>},
    {"Command95", "Verifica per CC", "", run<verificaPerCc, Table::Terni>},
    {"Command69", "Verifica per CC", "", run<verificaPerCc, Table::Lunghetta>},
};

}  // namespace

std::span<const WorkbenchButtons> workbenchButtons() {
  static constexpr WorkbenchButtons kPlaces[] = {
      {"Reference bar", -1, kReferenceBar},
      {"Selezioni", -1, kSelezioni},
      {"Elenco estrazioni", -1, kElencoEstrazioni},
      {"Ricerca", -1, kRicerca},
      {"Ricerca, pagina Ambate", -1, kRicercaPaginaAmbate},
      {"Ricerca, pagina Ambi", -1, kRicercaPaginaAmbi},
      {"Ricerca, pagina Terni", -1, kRicercaPaginaTerni},
      {"Ricerca, pagina Lunghetta", -1, kRicercaPaginaLunghetta},
      {"Ambate", 0, kAmbate},
      {"Ambi", 1, kAmbi},
      {"Terni", 2, kTerni},
      {"Riepilogo", 3, kRiepilogo},
      {"Lunghetta", 4, kLunghetta},
      {"Previsioni in corso", 5, kPrevisioniInCorso},
      {"Numeri in gioco", 6, kNumeriInGioco},
      {"Raggruppamento", 7, kRaggruppamento},
      {"Informazioni", 8, kInformazioni},
      {"Configurazioni", 9, kConfigurazioni},
      {"Da altri pulsanti", -1, kCalledByOtherButtonsAlone},
  };
  return kPlaces;
}

}  // namespace trv5
