// How long `trv5-data storico` takes on the whole history, gzip: as a whole, which is to stay under 0.7 s, and by its
// steps. The text is that of the simulated draws, as long as the real one.

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <zlib.h>

#include <sstream>

#include "core/database_files.h"
#include "maintenance/formats/compressed_text.h"
#include "maintenance/formats/published_history.h"
#include "provision/data_commands.h"
#include "provision/demo_archive.h"
#include "support/temp_folder.h"

namespace trv5 {
namespace {

const std::string& historyText() {
  static const std::string text = [] {
    constexpr std::array<std::string_view, kWheels> kCodes = {"BA", "CA", "FI", "GE", "MI", "NA",
                                                              "PA", "RM", "TO", "VE", "RN"};
    std::string lines;
    for (const Draw& draw : simulatedDraws()) {
      const std::chrono::year_month_day date(draw.day);
      for (int wheel = 0; wheel < kWheels; ++wheel) {
        if (!draw.drawn(wheel)) continue;
        const auto& n = draw.numbers[static_cast<std::size_t>(wheel)];
        lines +=
            fmt::format("{:04}/{:02}/{:02}\t{}\t{}\t{}\t{}\t{}\t{}\r\n", int(date.year()), unsigned(date.month()),
                        unsigned(date.day()), kCodes[static_cast<std::size_t>(wheel)], n[0], n[1], n[2], n[3], n[4]);
      }
    }
    return lines;
  }();
  return text;
}

std::filesystem::path packedHistory(const TempFolder& folder) {
  const std::filesystem::path path = folder / "storico.txt.gz";
  const gzFile file = gzopen(path.c_str(), "wb");
  gzwrite(file, historyText().data(), static_cast<unsigned>(historyText().size()));
  gzclose(file);
  return path;
}

void wholeCommand(benchmark::State& state) {
  const TempFolder folder;
  const std::vector<std::string> arguments = {"storico", packedHistory(folder).string(),
                                              (folder / "archivio.mdb").string(), "--sostituisci"};
  for (auto _ : state) {
    std::ostringstream output, errors;
    if (runDataCommand(arguments, output, errors) != 0) state.SkipWithError(errors.str().c_str());
  }
}

void unpacking(benchmark::State& state) {
  const TempFolder folder;
  const std::filesystem::path path = packedHistory(folder);
  for (auto _ : state) benchmark::DoNotOptimize(readCompressedText(path));
}

void reading(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(readPublishedHistory(historyText()));
}

void writing(benchmark::State& state) {
  const TempFolder folder;
  std::vector<DrawRow> rows;
  for (const Draw& draw : simulatedDraws()) rows.push_back(rowOf(draw));
  for (auto _ : state) createArchive(folder / "archivio.mdb", rows, Existing::Replace);
}

BENCHMARK(wholeCommand)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(unpacking)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(reading)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(writing)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace trv5

BENCHMARK_MAIN();
