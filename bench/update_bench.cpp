// The update of an archive and the files for other programs, step by step, on the published history where it lies
// beside the checkout, else on as many simulated draws (7,370). What they are to stay under: the check of 7,370 rows
// 40 ms, of the published history 300 ms, the writing of 7,370 new draws with the reload 400 ms, each file 30 ms.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>

#include "core/database_files.h"
#include "maintenance/archivio_world.h"
#include "maintenance/formats/exchange_files.h"
#include "maintenance/formats/history_file.h"
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
    const bool real = std::filesystem::exists(TRV5_HISTORY);
    for (const Draw& draw : real ? readHistoryFile(TRV5_HISTORY) : simulatedDraws()) made.push_back(rowOf(draw));
    return made;
  }();
  return rows;
}

const std::string& historyText() {
  static const std::string text = [] {
    constexpr std::array<const char*, kWheels> kCodes = {"BA", "CA", "FI", "GE", "MI", "NA",
                                                         "PA", "RM", "TO", "VE", "RN"};
    std::string lines;
    for (const DrawRow& row : draws())
      for (std::size_t wheel = 0; wheel < kWheels; ++wheel) {
        if (row.wheels[wheel].empty()) continue;
        std::string numbers = row.wheels[wheel];
        std::replace(numbers.begin(), numbers.end(), '-', '\t');
        lines += row.date.substr(6) + "/" + row.date.substr(3, 2) + "/" + row.date.substr(0, 2) + "\t" + kCodes[wheel] +
                 "\t" + numbers + "\n";
      }
    return lines;
  }();
  return text;
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

// AGGIORNA DA FILE and AGGIORNAMENTO as a user presses them, each with its grid; the second reads the archive again.
void wholeUpdate(benchmark::State& state) {
  ArchivioWorld world;
  Archivio* archivio = nullptr;
  for (auto _ : state) {
    state.PauseTiming();
    writeBytes(world.folder / "agg.txt", updateText());
    archivio = &world.openOn({drawOf("01/01/1939", {})});
    world.shell.answerFile(world.folder / "agg.txt");
    archivio->Command21.press();
    state.ResumeTiming();
    archivio->Command28.press();
  }
  state.counters["draws"] = world.program->archive.NumEstrazioni();
}

void wholeCheck(benchmark::State& state) {
  ArchivioWorld world;
  Archivio& archivio = world.openOn(draws());
  writeBytes(world.folder / "agg.txt", updateText());
  for (auto _ : state) {
    world.shell.answerFile(world.folder / "agg.txt");
    archivio.Command21.press();
  }
  state.counters["rows"] = archivio.FgImporta.dataRows();
}

void historyComparison(benchmark::State& state) {
  ArchivioWorld world;
  Archivio& archivio = world.openOn(draws());
  writeBytes(world.folder / "storico.txt", historyText());
  for (auto _ : state) {
    world.shell.answerFile(world.folder / "storico.txt");
    archivio.Cmd_Storico.press();
  }
  state.counters["lines"] = static_cast<double>(archivio.List4.lines().size());
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
BENCHMARK(wholeCheck)->Unit(benchmark::kMillisecond);
BENCHMARK(historyComparison)->Unit(benchmark::kMillisecond);
BENCHMARK(wholeUpdate)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(writing)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(exchangeFile<datiIii>)->Name("datiIii")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(exchangeFile<ruotafast>)->Name("ruotafast")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(exchangeFile<nazionale>)->Name("nazionale")->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace trv5

BENCHMARK_MAIN();
