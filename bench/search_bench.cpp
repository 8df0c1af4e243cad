// The searches beside the plain transcription of their rules: the time of both, from the archive in memory to the
// ranked rows, and the ratio of the two from the same run.
//
//   search_bench [HISTORY]    HISTORY: the published history of draws, plain or packed; without it, that beside the
//                             checkout, and where there is none the simulated draws
#include <fmt/format.h>

#include <string>
#include <vector>

#include "bench_tools.h"
#include "method/search.h"
#include "provision/demo_archive.h"
#include "support/plain_search.h"
#include "support/search_fingerprint.h"

namespace trv5 {
namespace {

constexpr int kKeep = 100;
constexpr int kCases = 50;
constexpr WheelSet kEveryWheel = (1U << kWheels) - 1U;

bool g_allAgree = true;

template <class Plain, class Fast>
void compare(const std::string& name, Plain plain, Fast fast) {
  const bool agree = plain() == fast();
  g_allAgree = g_allAgree && agree;
  const double slow = secondsOf([&] { plain(); }, 0.3), quick = secondsOf([&] { fast(); }, 0.3);
  fmt::print("{:<44} {:>11.3f} {:>10.4f} {:>8.1f}{}\n", name, slow * 1e3, quick * 1e3, slow / quick,
             agree ? "" : "   THE RESULTS DIFFER");
}

PlainFormula formulaOf(Shape shape) {
  return {shape, 0, {}, 0, ascendingTriples()};
}

std::string shapeName(Shape shape) {
  constexpr const char* kNames[] = {"1N 1R", "2N 1R", "3N 1R", "2N 2R"};
  return kNames[static_cast<int>(shape)];
}

AmbataRequest ambataRequest(const Archive& archive, int colpi) {
  AmbataRequest request;
  request.archive = &archive;
  // A case about once in four weeks, up to the last draws.
  for (int i = 0; i < kCases; ++i) request.cases.push_back(archive.NumEstrazioni() - 12 - 14 * (kCases - 1 - i));
  request.colpi = colpi;
  request.lastDraw = archive.NumEstrazioni();
  request.allowedFix = everyFix();
  request.withFix = true;
  request.keep = kKeep;
  return request;
}

void benchAmbate(const Archive& archive) {
  for (const int colpi : {10, 20})
    for (const WheelSet wheels : {WheelSet{1}, kEveryWheel})
      for (const Shape shape : {Shape::OneNumber, Shape::TwoOneWheel, Shape::ThreeOneWheel, Shape::TwoTwoWheels}) {
        AmbataRequest request = ambataRequest(archive, colpi);
        request.wheelSets = {wheels};
        const PlainFormula formula = formulaOf(shape);
        request.formula = formulaInput(formula);
        compare(
            fmt::format("ambate {}, {} colpi, {}", shapeName(shape), colpi, wheels == 1 ? "1 wheel" : "11 wheels"),
            [&] { return plainSearchAmbate(formula, request); }, [&] { return searchAmbate(request); });
      }
}

void benchBestWheels(const Archive& archive) {
  const auto bench = [&](Shape shape, int wheels) {
    AmbataRequest request = ambataRequest(archive, 10);
    request.wheelSets = plainWheelSets(wheels);
    request.repeatsAtZeroGetLost = shape == Shape::OneNumber;
    const PlainFormula formula = formulaOf(shape);
    request.formula = formulaInput(formula);
    compare(
        fmt::format("best wheels {}, {}R, 10 colpi", shapeName(shape), wheels),
        [&] { return plainSearchAmbate(formula, request); }, [&] { return searchAmbate(request); });
  };
  for (const Shape shape : {Shape::OneNumber, Shape::TwoOneWheel})
    for (const int wheels : {1, 2, 3}) bench(shape, wheels);
  for (const int wheels : {1, 2}) bench(Shape::TwoTwoWheels, wheels);
}

void benchCompanions(const Archive& archive) {
  for (const auto& [wheels, ambate] :
       {std::pair{WheelSet{1}, std::vector<int>{17}}, std::pair{kEveryWheel, std::vector<int>{17, 34, 51, 68, 85}}})
    for (const Shape shape : {Shape::OneNumber, Shape::TwoOneWheel, Shape::ThreeOneWheel, Shape::TwoTwoWheels}) {
      CompanionRequest request;
      request.archive = &archive;
      request.rows = hitsOfAmbate(ambataRequest(archive, 10), ambate, wheels);
      request.wheels = wheels;
      request.allowedFix = everyFix();
      request.withFix = true;
      request.keep = kKeep;
      const PlainFormula formula = formulaOf(shape);
      request.formula = formulaInput(formula);
      compare(
          fmt::format("ambi {}, {}, {} hits", shapeName(shape), wheels == 1 ? "1 wheel" : "11 wheels",
                      request.rows.size()),
          [&] { return plainSearchCompanions(formula, request); }, [&] { return searchCompanions(request); });
    }
}

void benchPureNumbers(const Archive& archive) {
  const AmbataRequest request = ambataRequest(archive, 10);
  const auto bench = [&](const std::string& name, const std::vector<WheelSet>& sets) {
    compare(
        name, [&] { return plainCountNumbers(archive, request.cases, request.colpi, request.lastDraw, sets); },
        [&] { return countNumbers(archive, request.cases, request.colpi, request.lastDraw, sets); });
  };
  bench("pure numbers, 11 wheels", {kEveryWheel});
  for (const int wheels : {1, 2, 3}) bench(fmt::format("pure numbers, {}R", wheels), plainWheelSets(wheels));
}

}  // namespace
}  // namespace trv5

int main(int argc, char** argv) {
  using namespace trv5;
  const Archive archive = archiveToMeasure(argc, argv);
  fmt::print("{:<44} {:>11} {:>10} {:>8}\n", "50 cases, with fix, 100 rows", "plain (ms)", "engine", "ratio");
  benchAmbate(archive);
  benchBestWheels(archive);
  benchCompanions(archive);
  benchPureNumbers(archive);
  const std::uint64_t fingerprint = searchFingerprint(archiveOfDraws(simulatedDraws()));
  fmt::print("fingerprint of the demonstration archive {:016x}, {}\n", fingerprint,
             fingerprint == kDemonstrationFingerprint ? "as known" : "NOT AS KNOWN");
  return g_allAgree && fingerprint == kDemonstrationFingerprint ? 0 : 1;
}
