#include "desk/equip_workbench.h"

#include "cases/case_list.h"
#include "cases/result_states.h"
#include "cases/selections.h"
#include "configs/configurations.h"
#include "configs/draft.h"
#include "desk/undo_offer.h"
#include "desk/workbench_buttons.h"
#include "engine/evaluation.h"
#include "engine/formula_tables.h"
#include "engine/search_luck_line.h"
#include "followup/case_forecasts.h"
#include "followup/grouping.h"
#include "followup/information.h"
#include "maintenance/mini_list.h"

namespace trv5 {
namespace {

MarkedDraw markedDraw(const FoundElement& element) {
  return {element.draw, element.wheel, element.marks};
}

void showInMiniList(Workbench& w, const FoundElement& first, const std::optional<FoundElement>& second) {
  auto& list = dynamic_cast<MiniList&>(w.shell().show("Estrazioni_minielenco"));
  MostraElementi(list, markedDraw(first), second ? std::optional(markedDraw(*second)) : std::nullopt);
}

void fillHooks(Workbench& w) {
  w.hooks.extractTriples = [&w] { ammetteTerzine(w); };
  w.hooks.showDraws = [&w](const FoundElement& first, const std::optional<FoundElement>& second) {
    showInMiniList(w, first, second);
  };
}

// Clicks on the case list and on the candidates, and the buttons that take one of these over.
void connectLists(Workbench& w) {
  w.FgEv.onCellClick([&w](int row, int) { MostraCaso(w, row); });
  for (const TableTraits& table : kTables)
    w.Cmd_LaSorte[table.code].onEvent([&w, &table] { AggiungePrevisione(w, table.table); });
  w.FgF.onCellDoubleClick([&w](int, int) {
    for (const auto& [code, button] : w.Cmd_LaSorte)
      if (button->enabled()) button->press();
  });
  w.Fg15.onCellClick([&w](int row, int) { MostraPrevisioniDelCaso(w, row); });
  w.Fg15.onHeadingClick([&w] { MostraPrevisioniDelCaso(w, 0); });
  w.FgRagg.onCellClick([&w](int row, int) { MostraNomeConfigurazione(w, row); });
  w.FgPir1.onCellDoubleClick([&w](int row, int) { RicaricaConfigurazione(w, row); });
  w.Txt_FiltroConfig.onEvent([&w] { FiltraConfigurazioni(w); });
}

}  // namespace

void equipWorkbench(Workbench& w) {
  for (const WorkbenchButtons& group : workbenchButtons()) w.addButtons(group);
  fillHooks(w);
  connectSelections(w);
  connectLists(w);
  connectInformation(w);
  connectUndo(w);
  connectResultStates(w);
  connectLuck(w);
}

void connectDatabase(Workbench& w, const Program& program) {
  w.hooks.mainDatabase = [&program]() -> Database& { return program.mainDatabase(); };
  w.hooks.folder = [&program] { return program.folder; };
  w.hooks.listConfigurations = [&w] {
    w.button("Cmd_Elenco").press();
    offerDraft(w);
  };
}

std::unique_ptr<Workbench> makeWorkbench(Program& program) {
  auto w = std::make_unique<Workbench>(program.archive, program.shell);
  equipWorkbench(*w);
  connectDatabase(*w, program);
  w->keep(program.archiveReloaded.subscribe([&bench = *w, stamp = program.archive.loadStamp()]() mutable {
    SegueArchivio(bench);
    // What stood before can't be taken back any more, and the buttons say so at once.
    if (stamp != bench.archive.loadStamp()) bench.history.start();
    stamp = bench.archive.loadStamp();
  }));
  return w;
}

}  // namespace trv5
