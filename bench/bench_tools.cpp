#include "bench_tools.h"

#include <fmt/format.h>
#include <time.h>

#include <algorithm>
#include <filesystem>

#include "maintenance/formats/compressed_text.h"
#include "maintenance/formats/published_history.h"
#include "provision/demo_archive.h"

namespace trv5 {
namespace {

// Processor time of this thread.
double now() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

}  // namespace

double secondsOf(const std::function<void()>& call, double time, const std::function<void()>& before) {
  std::vector<double> taken;
  double sum = 0;
  while (taken.size() < 3 || sum < time) {
    if (before) before();
    const double start = now();
    call();
    taken.push_back(now() - start);
    sum += taken.back();
  }
  std::nth_element(taken.begin(), taken.begin() + static_cast<std::ptrdiff_t>(taken.size() / 2), taken.end());
  return taken[taken.size() / 2];
}

Archive archiveOfDraws(const std::vector<Draw>& draws) {
  std::vector<DrawRow> rows;
  for (const Draw& draw : draws) rows.push_back(rowOf(draw));
  Archive archive;
  archive.loadNumbers(rows);
  archive.countProgressives();
  archive.setModelFrom(1);
  return archive;
}

Archive archiveToMeasure(int argc, char** argv) {
  const std::filesystem::path beside = TRV5_HISTORY;
  const std::filesystem::path history = argc > 1 ? std::filesystem::path(argv[1]) : beside;
  const bool real = argc > 1 || std::filesystem::exists(beside);
  Archive archive = archiveOfDraws(real ? readPublishedHistory(readCompressedText(history)).draws : simulatedDraws());
  fmt::print("{} draws, {}\n", archive.NumEstrazioni(), real ? "the published history" : "simulated");
  return archive;
}

}  // namespace trv5
