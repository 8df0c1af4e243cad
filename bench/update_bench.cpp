// The update of an archive and the files for other programs, on the simulated draws (7,370, as many as the history
// has), step by step. What they are to stay under: the check of 7,370 rows 40 ms, of the published history 300 ms, the
// writing of 7,370 new draws with the reload 400 ms, each file 30 ms.

#include <benchmark/benchmark.h>

#include "core/database_files.h"
#include "maintenance/formats/exchange_files.h"
#include "maintenance/formats/update_text.h"
#include "maintenance/update_check.h"
#include "maintenance/update_writer.h"
#include "provision/demo_archive.h"
#include "support/archive_builder.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

const std::vector<DrawRow>& draws() {
  static const std::vector<DrawRow> rows = [] {
    std::vector<DrawRow> made;
    for (const Draw& draw : simulatedDraws()) made.push_back(rowOf(draw));
    return made;
  }();
  return rows;
}

const std::string& updateText() {
  static const std::string text = [] {
    std::string lines;
    for (const DrawRow& row : draws()) {
      lines += row.date;
      for (const std::string& wheel : row.wheels) lines += " " + (wheel.empty() ? std::string(14, ' ') : wheel);
      lines += " pr\r\n";
    }
    return lines;
  }();
  return text;
}

void reading(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(readUpdateText(decodedText(updateText())));
}

void checking(benchmark::State& state) {
  const TempFolder folder;
  createArchive(folder / "a.mdb", draws(), Existing::Replace);
  const Database archive(folder / "a.mdb", FileKind::Archive);
  const std::vector<DrawRow> rows = readUpdateText(updateText());
  for (auto _ : state) benchmark::DoNotOptimize(checkUpdate(archive, rows, BlankCell::Text));
}

void writing(benchmark::State& state) {
  const TempFolder folder;
  const std::vector<UpdateOrder> orders(draws().size(), {.add = true});
  for (auto _ : state) {
    state.PauseTiming();
    createArchive(folder / "a.mdb", {}, Existing::Replace);
    Database archive(folder / "a.mdb", FileKind::Archive);
    state.ResumeTiming();
    benchmark::DoNotOptimize(writeUpdate(archive, draws(), orders, {"22/08/2026", "10:30:15"}, EmptyWheel::Text).added);
  }
}

template <std::string (*write)(const Archive&, const OnDraw&)>
void exchangeFile(benchmark::State& state) {
  const Archive archive = archiveOfRows(draws());
  const TempFolder folder;
  for (auto _ : state) writeFile(folder / "file", write(archive, {}));
}

BENCHMARK(reading)->Unit(benchmark::kMillisecond);
BENCHMARK(checking)->Unit(benchmark::kMillisecond);
BENCHMARK(writing)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(exchangeFile<datiIii>)->Name("datiIii")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(exchangeFile<ruotafast>)->Name("ruotafast")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(exchangeFile<nazionale>)->Name("nazionale")->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace trv5

BENCHMARK_MAIN();
