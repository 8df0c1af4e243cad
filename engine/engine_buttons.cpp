#include "engine/engine_buttons.h"

#include "engine/ambata_buttons.h"
#include "engine/candidate_check.h"
#include "engine/colouring.h"
#include "engine/companion_buttons.h"
#include "engine/evaluation.h"
#include "engine/formula_tables.h"
#include "engine/lunghetta.h"
#include "engine/pure_buttons.h"
#include "engine/summary.h"
#include "engine/table_tools.h"
#include "engine/verification.h"

namespace trv5 {
namespace {

// What the four tables of formulas have in common, by the names of their buttons.
struct TableButtons {
  Table table;
  const char *all, *beyondLimit, *remove, *clear;
  const char* forCc;  // the verification behind CC; null where there is none
};

constexpr TableButtons kTableButtons[] = {
    {Table::Ambate, "Command29", "Command90", "Command32", "Command19", nullptr},
    {Table::Ambi, "Command34", "Command5", "Rimuove_Fg22", "Nuova_Fg22", "Command94"},
    {Table::Terni, "Command48", "Command91", "Rimuove_Fg33", "Nuova_Fg33", "Command95"},
    {Table::Lunghetta, "Command51", "Command92", "Rimuove_Fg00", "Nuova_Fg00", "Command69"}};

constexpr std::pair<const char*, Table> kCcButtons[] = {
    {"Command64", Table::Ambi}, {"Command73", Table::Terni}, {"Command84", Table::Lunghetta}};

// The utilities of a result grid.
struct GridButtons {
  GridControl Workbench::*grid;
  const char *print, *copy, *clean;
};

constexpr GridButtons kGridButtons[] = {{&Workbench::FgZ1, "Stampa_FgZ1", "Copia_FgZ1", "Command75"},
                                        {&Workbench::FgZ2, "Stampa_FgZ2", "Copia_FgZ2", "Pulisce_FgZ2"},
                                        {&Workbench::FgZ3, "Stampa_FgZ3", "Copia_FgZ3", "Pulisce_FgZ3"},
                                        {&Workbench::FgZ0, "Stampa_FgZ0", "Copia_FgZ0", "Pulisce_FgZ0"},
                                        {&Workbench::FgZZ, "Command96", "Command98", "Command97"}};

void connectTables(Workbench& w) {
  for (const TableButtons& row : kTableButtons) {
    w.button(row.all).onEvent([&w, &row] { verificaTutte(w, row.table); });
    w.button(row.beyondLimit).onEvent([&w, &row] { verificaOltreLimite(w, row.table); });
    w.button(row.remove).onEvent([&w, &row] { RimuoveFormula(w, row.table); });
    w.button(row.clear).onEvent([&w, &row] { SvuotaTabella(w, row.table); });
    if (row.forCc != nullptr) w.button(row.forCc).onEvent([&w, &row] { verificaPerCc(w, row.table); });
  }
  for (const auto& [name, table] : kCcButtons)
    w.button(name).onEvent([&w, table = table] { VerificaCandidati(w, table); });
  for (const GridButtons& row : kGridButtons) {
    GridControl& grid = w.*row.grid;
    w.button(row.print).onEvent([&grid] { StampaTabella(grid); });
    w.button(row.copy).onEvent([&grid] { CopiaTabella(grid); });
    w.button(row.clean).onEvent([&grid] { PulisceCelleEsiti(grid); });
  }
  for (const TableTraits& table : kTables)
    w.Cmd_LaSorte[table.code].onEvent([&w, &table] { AggiungePrevisione(w, table.table); });
  w.FgF.onCellDoubleClick([&w](int, int) {
    for (const auto& [sorte, button] : w.Cmd_LaSorte)
      if (button->enabled()) button->press();
  });
}

}  // namespace

void connectEngine(Workbench& w) {
  for (const AmbataButton& button : kAmbataButtons)
    w.button(button.name).onEvent([&w, &button] { CercaAmbate(w, button); });
  for (const CompanionButton& button : kCompanionButtons)
    w.button(button.name).onEvent([&w, &button] { CercaCompagni(w, button); });
  for (const PureButton& button : kPureButtons)
    w.button(button.name).onEvent([&w, &button] { CercaNumeri(w, button); });
  for (const PureCompanionButton& button : kPureCompanionButtons)
    w.button(button.name).onEvent([&w, &button] { CercaNumeriCompagni(w, button); });
  connectTables(w);
  w.button("Command3").onEvent([&w] { EstraeTerzine(w); });
  w.button("Cmd_Colora_fgf").onEvent([&w] { ColoraFgF(w); });
  w.button("Command21").onEvent([&w] { verificaRigaFormula(w); });
  w.button("Command22").onEvent([&w] { verificaRigaRicerca(w); });
  w.button("Cmd_Elabora100").onEvent([&w] { Cmd_Elabora100(w); });
  w.button("Command30").onEvent([&w] { CopiaFormule(w); });
  w.button("Command85").onEvent([&w] { MostraVistaEstesa(w); });
  w.button("Command86").onEvent([&w] { CreaRiepilogo(w); });
  w.button("Command87").onEvent([&w] { RielaboraTutto(w); });
}

}  // namespace trv5
