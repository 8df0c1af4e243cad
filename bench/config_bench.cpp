// The saved configurations: a save, the list of two thousand, a reload with 50 cases and all four verifications.
//
//   config_bench [HISTORY]    as search_bench
#include <fmt/format.h>

#include <string>

#include "bench_tools.h"
#include "configs/configuration_store.h"
#include "configs/configurations.h"
#include "configs/workbench_configuration.h"
#include "core/database_files.h"
#include "support/temp_folder.h"
#include "support/workbench_world.h"

namespace trv5 {
namespace {

int report(const std::string& name, double seconds, double goal) {
  const bool met = seconds * 1e3 < goal;
  fmt::print("{:<44} {:>9.3f} ms   goal {:>7.2f} ms{}\n", name, seconds * 1e3, goal, met ? "" : "   MISSED");
  return met ? 0 : 1;
}

// "U" of the month has a case in each of the last fifty months.
void prepare(WorkbenchWorld& world) {
  Workbench& w = world.w;
  w.ComboFiltro.pick(0);
  w.ComboPar.pick(0);
  w.ComboNC.pick(49);
  w.Label17.click();
  for (const TableTraits& table : kTables)
    for (int i = 0; i < (table.table == Table::Lunghetta ? 10 : 5); ++i)
      WorkbenchWorld::addFormula(w.formulas(table.table), {.elements = {{i, 1 + i % 5}}, .fix = 7 + 8 * i});
}

int run(Archive archive) {
  const TempFolder folder;
  createMainDatabase(folder / "DbTRV5.mdb", {}, Existing::Refuse, "");
  Database database(folder / "DbTRV5.mdb", FileKind::Main, "");
  WorkbenchWorld world(std::move(archive));
  world.w.hooks.mainDatabase = [&database]() -> Database& { return database; };
  prepare(world);
  int missed = 0, count = 0;
  const double save = secondsOf(
      [&] {
        world.w.Txt_Denominazione.set(fmt::format("metodo {}", ++count));
        SalvaConfigurazione(world.w);
      },
      1);
  missed += report("save, 25 formulas, the disk's sync included", save, 30);
  {
    Database::Transaction many(database);
    database.execute(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000) INSERT INTO Elenco_Memo "
        "(Denominazione, Estrazione, Posizioni, RuoteGioco, Ruoterilevazione, Parametro) SELECT 'altro ' || i, 7000, "
        "'11111', '10000000000', '00000000000', '01-30-60-90' FROM n");
    many.commit();
  }
  missed += report("ELENCO of 2,000", secondsOf([&] { ElencaConfigurazioni(world.w); }, 0.5), 30);
  missed += report("reload, 50 cases, 4 verifications", secondsOf([&] { ricaricaChiave(world.w, 1); }, 0.5), 60);
  fmt::print("cases {}, hits {}\n", world.w.FgEv.dataRows(), world.w.FgZ1.dataRows());
  return missed;
}

}  // namespace
}  // namespace trv5

int main(int argc, char** argv) {
  return trv5::run(trv5::archiveToMeasure(argc, argv)) == 0 ? 0 : 1;
}
