#include <benchmark/benchmark.h>

#include <map>
#include <random>

#include "core/archive_load.h"
#include "support/program_world.h"

// The start of the program and the load of the archive, on random archives of as many draws as the history has
// (7,370) and as an archive can hold (9,999). Run a release build; the argument is the number of draws.

namespace {

using namespace trv5;

// One installation for each size: making it isn't what is measured.
ProgramWorld& worldOf(int draws) {
  static std::map<int, ProgramWorld> worlds;
  const auto [it, made] = worlds.try_emplace(draws);
  if (made) {
    std::mt19937 rng(1);
    it->second.makeBoth(randomRows(rng, draws));
  }
  return it->second;
}

void start(benchmark::State& state) {
  ProgramWorld& world = worldOf(7370);
  for (auto _ : state) benchmark::DoNotOptimize(&world.start());
}

// The click on PROCEDI up to the shell with its list and status block.
void procedi(benchmark::State& state) {
  ProgramWorld& world = worldOf(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    Inizio& inizio = world.start();
    state.ResumeTiming();
    inizio.Command2.press();
  }
  state.counters["draws"] = world.program->archive.NumEstrazioni();
}

// The load without its screens.
void load(benchmark::State& state) {
  ProgramWorld& world = worldOf(static_cast<int>(state.range(0)));
  world.start();
  for (auto _ : state) benchmark::DoNotOptimize(loadArchive(*world.program));
}

void reload(benchmark::State& state) {
  ProgramWorld& world = worldOf(static_cast<int>(state.range(0)));
  world.startAndProceed();
  for (auto _ : state) benchmark::DoNotOptimize(CaricaArchivioExNovo(*world.program));
}

void openDatabase(benchmark::State& state) {
  ProgramWorld& world = worldOf(7370);
  for (auto _ : state) Database(world.folder / "DbTRV5.mdb", FileKind::Main);
}

BENCHMARK(openDatabase)->Unit(benchmark::kMillisecond);
BENCHMARK(start)->Unit(benchmark::kMillisecond);
BENCHMARK(load)->Arg(7370)->Arg(9999)->Unit(benchmark::kMillisecond);
BENCHMARK(procedi)->Arg(7370)->Arg(9999)->Unit(benchmark::kMillisecond);
BENCHMARK(reload)->Arg(7370)->Arg(9999)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
