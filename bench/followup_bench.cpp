// What can be played today, on a full history: live forecasts, delays beside their plain walk, the run of all saved
// methods.
//
//   followup_bench [HISTORY]    as search_bench
#include <fmt/format.h>

#include <string>

#include "bench_tools.h"
#include "configs/configuration_world.h"
#include "engine/evaluation.h"
#include "engine/result_forms.h"
#include "followup/delays.h"
#include "support/plain_followup.h"

namespace trv5 {
namespace {

double report(const std::string& name, double seconds, double goal) {
  fmt::print("{:<52} {:>9.3f} ms   goal {:>7.1f} ms{}\n", name, seconds * 1e3, goal,
             seconds * 1e3 < goal ? "" : "   MISSED");
  return seconds;
}

// So many formulas of 1N 1R in each table, all with numbers of their own.
void addFormulas(Workbench& w, const ByTable<int>& counts) {
  for (const TableTraits& table : kTables) {
    w.formulas(table.table).cutToHeading();
    for (int i = 0; i < counts[indexOf(table.table)]; ++i)
      WorkbenchWorld::addFormula(w.formulas(table.table),
                                 {.elements = {{(3 * table.code + i) % 10, 1 + i % 5}}, .fix = 7 * i + table.code});
  }
}

void benchForecasts(WorkbenchWorld& world, const ByTable<int>& counts, double goal) {
  Workbench& w = world.w;
  addFormulas(w, counts);
  std::vector<int> draws;
  for (int i = 0; i < kMostCases; ++i) draws.push_back(w.archive.UltimaEstrazione() - i);
  world.setCases(draws, 10);
  w.Colpi = kMostCases + 1;  // all of them open
  RicavaElementiReali(w);
  markOpenCases(w);
  const double seconds = secondsOf([&] { world.press("Command35"); }, 0.3);
  report(fmt::format("Elenco previsioni in corso, 50 cases, {} rows", w.FgIC.dataRows()), seconds, goal);
}

void benchDelays(WorkbenchWorld& world) {
  Workbench& w = world.w;
  const auto time = [&](const char* button) { return secondsOf([&] { world.press(button); }, 0.2); };
  const double quick = report("RITARDI", time("Command9"), 1);
  PlainFollowup plain(w);
  const double walked = secondsOf([&] { plain.Command9(); }, 0.2);
  fmt::print("  the plain walk {:.3f} ms: {:.1f} times\n", walked * 1e3, walked / quick);
  int last = w.archive.UltimaEstrazione();
  const double rule = secondsOf([&] { last += delays(w.archive, last)[1][0] < 0; }, 0.2);
  fmt::print("  the rule alone {:.3f} ms\n", rule * 1e3);
  report("PRESENZE of 720 draws", time("Command88"), 1);
  report("Ricerca su 2 ruote", time("Command111"), 3);
  report("Ricerca su 4 ruote", time("Command113"), 3);
}

std::vector<DrawRow> rowsOfArchive(const Archive& archive) {
  std::vector<DrawRow> rows;
  for (int draw = 1; draw <= archive.NumEstrazioni(); ++draw) {
    DrawRow row{.date = archive.DateEstrazioni(draw), .wheels = {}};
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      const std::uint8_t* const n = archive.wheelOf(draw, wheel);
      if (n[0] != 0) row.wheels[static_cast<std::size_t>(wheel)] = wheelText({n[0], n[1], n[2], n[3], n[4]});
    }
    rows.push_back(row);
  }
  return rows;
}

// The run over this many saved methods of 20 cases, of which the list holds the newest.
void benchProcedure(ConfigurationWorld& world, int count, double goal) {
  Workbench& w = world.w();
  w.ComboNC.pick(19);
  w.ComboPar.pick(1);
  w.Label17.click();
  for (int i = world.saved(); i < count; ++i) {
    addFormulas(w, {2, 2, 2, 3});
    w.ComboR1.pick(i % 10);
    world.save(fmt::format("metodo {:03}", i));
  }
  world.press("Cmd_Elenco");
  const double seconds = secondsOf([&] { world.press("Command106"); }, 0.5);
  report(fmt::format("Esegue procedura, {} configurations, {} rows", count, w.FgRagg.dataRows()), seconds, goal);
}

}  // namespace
}  // namespace trv5

int main(int argc, char** argv) {
  const trv5::Archive archive = trv5::archiveToMeasure(argc, argv);
  trv5::WorkbenchWorld world(archive);
  trv5::benchForecasts(world, {2, 2, 2, 3}, 10);
  trv5::benchForecasts(world, {5, 5, 5, 10}, 100);
  trv5::benchDelays(world);
  trv5::ConfigurationWorld saved(trv5::rowsOfArchive(archive));
  saved.shell.addScreen("Speciale", [&saved] { return std::make_unique<trv5::Speciale>(saved.shell); });
  for (const int count : {50, 100, 200}) trv5::benchProcedure(saved, count, count * 10);
}
