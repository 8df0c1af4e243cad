// A saved workbench comes back whole, whatever stood on it and whatever happened meanwhile.
#include <gtest/gtest.h>

#include "cases/case_search.h"
#include "configs/configuration_world.h"
#include "support/random_method.h"
#include "support/random_runs.h"
#include "support/random_search.h"
#include "support/workbench_snapshot.h"

namespace trv5 {
namespace {

// What the store keeps: columns 1 to 20 of the tables, and the controls of the fields.
std::string kept(const Workbench& w) {
  std::string text =
      std::to_string(w.EstrazioneRiferimento) + ' ' + w.TxtNumeri.text() + ' ' + w.Txt_Denominazione.text() + '\n';
  for (const Combo* combo : {&w.ComboNC, &w.ComboR1, &w.ComboPar, &w.ComboFiltro, &w.ComboQNu, &w.ComboColpi,
                             &w.ComboEle, &w.ComboRetro, &w.ComboQNR1, &w.ComboQNR2, &w.ComboSorte})
    text += std::to_string(combo->index()) + (combo->index() < 0 ? "" : ' ' + combo->text()) + '\n';
  text += w.ChDDS.checked() ? 'D' : '-';
  text += w.Ch_analisi2ruote.checked() ? 'A' : '-';
  text += w.Ch_ISO.checked() ? 'I' : '-';
  for (const auto& [position, label] : w.LblPN) text += label->back() == Verde ? '1' : '0';
  for (const GridControl* const wheels : {&w.FgRG, &w.FgRR})
    for (int wheel = 0; wheel < kWheels; ++wheel) text += wheels->back(0, wheel) == Verde ? '1' : '0';
  for (const Table table : {Table::Ambate, Table::Ambi, Table::Terni, Table::Lunghetta}) {
    const Grid& formulas = w.formulas(table);
    text += '\n' + std::to_string(formulas.rows());
    for (int row = 1; row < formulas.rows(); ++row)
      for (int column = 1; column <= 20; ++column) text += '|' + formulas.text(row, column);
  }
  return text;
}

// The unstored controls: a reload leaves them as the reset does.
std::string unstored(const Workbench& w) {
  std::string text = w.ComboFix.text() + '|' + w.Combo1R_1N.text() + '|' + w.Combo1R_2N.text() + '|' +
                     w.ComboValF.text() + '|' + w.ComboDelta.text();
  for (const Check* check :
       {&w.Ch_ultima, &w.ChFix1R, &w.Ch_Scoperti, &w.ChVerifica, &w.ChA, &w.ChB, &w.ChC, &w.Ch1esito, &w.Ch_coperture})
    text += check->checked() ? '1' : '0';
  for (int row = 0; row < w.FgNu.rows(); ++row)
    for (int column = 0; column < w.FgNu.columns(); ++column) text += w.FgNu.back(row, column) == Ciano ? 'c' : '.';
  return text + std::to_string(w.SSTab3.index());
}

// Reset, detection and verifications of what stands on the workbench, pressed one by one.
void runAgain(Workbench& w) {
  w.button("Command44").press();
  for (const auto& [table, button] : {std::pair{Table::Ambate, "Command29"},
                                      {Table::Ambi, "Command34"},
                                      {Table::Terni, "Command48"},
                                      {Table::Lunghetta, "Command51"}})
    if (w.formulas(table).hasData()) w.button(button).press();
}

TEST(ReloadRandom, BringsEveryStoredControlAndCellBackAndTheHitsOfAFreshRun) {
  std::mt19937 rng(2026);
  ConfigurationWorld world(randomRows(rng, 120));
  Workbench& w = world.w();
  const int runs = randomRuns(500);
  int verified = 0;  // grids of hits that held some
  // The detection may clear a text that is no value of its kind: what came back is looked at before it.
  std::string back;
  // What a fresh run starts from, the carried state included: it is stale on purpose, and verifications read it.
  WorkbenchState carried;
  ByTable<Grid> tables;
  w.button("Command44").onEvent([&] {
    back = kept(w);
    carried = w;
    for (const TableTraits& table : kTables) tables[indexOf(table.table)] = w.formulas(table.table);
    RicavaElencoEstrazioni(w);
  });
  for (int run = 0; run < runs; ++run) {
    SCOPED_TRACE("run " + std::to_string(run));
    randomWorkbench(w, rng);
    ASSERT_TRUE(world.save("metodo " + std::to_string(run)));
    const std::string saved = kept(w);
    if (below(rng, 2) == 0) world.press("Command44");
    world.press("Command41");
    randomWorkbench(w, rng);
    const std::size_t boxes = world.shell.shown.size();
    world.press("Cmd_Elenco");
    // What the reset clears is cleared, the other controls that aren't stored stay.
    w.ComboFix.select(0);
    const std::string others = unstored(w);
    w.FgPir1.doubleClickCell(world.rowOf("metodo " + std::to_string(run)), 1);
    for (std::size_t box = boxes; box < world.shell.shown.size(); ++box)
      ASSERT_NE(world.shell.shown[box].text, kNotReloaded) << world.shell.reasons.back();
    ASSERT_EQ(back, saved);
    ASSERT_EQ(unstored(w), others);
    const WorkbenchSnapshot reloaded(w);
    static_cast<WorkbenchState&>(w) = carried;
    for (const TableTraits& table : kTables) w.formulas(table.table).grid() = tables[indexOf(table.table)];
    runAgain(w);
    for (const char* grid : {"FgEv", "FgZ1", "FgZ2", "FgZ3", "FgZ0", "FgSSS", "Fg_Stat", "Fg_Graf", "Fg15"}) {
      const Grid& fresh = dynamic_cast<const Grid&>(*w.find(grid));
      ASSERT_EQ(difference(reloaded.grids.at(grid), fresh), "") << grid;
      verified += fresh.rows() > 1 && std::string_view(grid).starts_with("FgZ") ? 1 : 0;
    }
  }
  EXPECT_GT(verified * 4, runs) << "of the runs some hits are compared";
}

}  // namespace
}  // namespace trv5
