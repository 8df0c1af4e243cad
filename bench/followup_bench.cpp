// What can be played today, on a full history: live forecasts, delays beside their plain walk, the run of all saved
// methods.
//
//   followup_bench [HISTORY]    as search_bench
#include <fmt/format.h>

#include <functional>
#include <string>

#include "bench_tools.h"
#include "configs/configuration_world.h"
#include "engine/evaluation.h"
#include "engine/result_forms.h"
#include "followup/delays.h"
#include "support/plain_followup.h"

namespace trv5 {
namespace {

// Milliseconds of the operation, with the goal, and of its plain run.
void report(const std::string& name, double seconds, double goal, double plain) {
  fmt::print("{:<52} {:>9.3f} ms   goal {:>6.0f} ms{}   plain {:>9.3f} ms, {:.1f} times\n", name, seconds * 1e3, goal,
             seconds * 1e3 < goal ? "" : "   MISSED", plain * 1e3, plain / seconds);
}

void benchPress(WorkbenchWorld& world, const std::string& name, const char* button, double goal,
                const std::function<void(PlainFollowup&)>& plainRun) {
  const double seconds = secondsOf([&] { world.press(button); }, 0.3);
  PlainFollowup plain(world.w);
  report(name, seconds, goal, secondsOf([&] { plainRun(plain); }, 0.3));
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

// A walk back through the draws for each number and wheel; the sum of the delays.
int walkedDelays(const Archive& archive, int reference) {
  int sum = 0;
  for (int number = 1; number <= 90; ++number)
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      bool found = false;
      for (int draw = reference; draw >= 1 && !found; --draw)
        for (int k = 1; k <= 5 && !found; ++k)
          if (archive.number(draw, wheel, k) == number) {
            sum += reference - draw;
            found = true;
          }
    }
  return sum;
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
  world.press("Command35");
  benchPress(world, fmt::format("Elenco previsioni in corso, 50 cases, {} rows", w.FgIC.dataRows()), "Command35", goal,
             [](PlainFollowup& p) { p.Command35(); });
}

void benchDelays(WorkbenchWorld& world) {
  benchPress(world, "RITARDI", "Command9", 1, [](PlainFollowup& p) { p.Command9(); });
  const Workbench& w = world.w;
  int found = 0;
  const double rule = secondsOf([&] { found += delays(w.archive, w.EstrazioneRiferimento - found % 2)[1][0]; }, 0.2);
  const double walks = secondsOf([&] { found += walkedDelays(w.archive, w.EstrazioneRiferimento - found % 2); }, 0.2);
  report("  without its grid", rule, 1, walks);
  benchPress(world, "PRESENZE of 720 draws", "Command88", 1, [](PlainFollowup& p) { p.Command88(); });
  benchPress(world, "Ricerca su 2 ruote", "Command111", 3, [](PlainFollowup& p) { p.search(2); });
  benchPress(world, "Ricerca su 3 ruote", "Command112", 3, [](PlainFollowup& p) { p.search(3); });
  benchPress(world, "Ricerca su 4 ruote", "Command113", 3, [](PlainFollowup& p) { p.search(4); });
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

// The same by hand: reload, last draw, RIELABORA TUTTO, Elenco previsioni in corso, one method after the other.
void runByHand(ConfigurationWorld& world) {
  Workbench& w = world.w();
  for (int row = 1; row < w.FgPir1.rows(); ++row) {
    w.FgPir1.doubleClickCell(row, 1);
    w.hs1.set(w.archive.UltimaEstrazione());
    world.press("Command87");
    world.press("Command35");
  }
}

// The run over this many saved methods of 20 cases of one of four numbers on a wheel, the newest of them open.
void benchProcedure(ConfigurationWorld& world, int count, double goal) {
  Workbench& w = world.w();
  for (const auto& [position, label] : w.LblPN)
    if (label->back() != Verde) label->click();
  w.Label18.click();
  for (const int wheel : {0, 4, 9}) w.FgRG.clickCell(0, wheel);
  for (int i = world.saved(); i < count; ++i) {
    w.hs1.set(w.archive.UltimaEstrazione());
    w.ComboFiltro.pick(1);
    w.ComboR1.pick(i % 10);
    w.ComboNC.pick(19);
    w.ComboColpi.pick(8);
    w.TxtNumeri.set(fmt::format("{:02}-{:02}-{:02}-{:02}", 1 + i % 20, 21 + i % 17, 41 + i % 19, 61 + i % 23));
    addFormulas(w, {2, 2, 2, 3});
    world.save(fmt::format("metodo {:03}", i));
  }
  world.press("Cmd_Elenco");
  const double seconds = secondsOf([&] { world.press("Command106"); }, 1);
  const double plain = secondsOf([&] { runByHand(world); }, 1);
  report(fmt::format("Esegue procedura, {} methods, {} cases each, {} rows", count, w.FgEv.dataRows(),
                     w.FgRagg.dataRows()),
         seconds, goal, plain);
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
  for (const int count : {100, 200, 400}) trv5::benchProcedure(saved, count, count * 10);
}
