#pragma once

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "support/archive_builder.h"
#include "support/print_candidate.h"
#include "support/random_runs.h"
#include "support/random_search.h"

namespace trv5 {

/// Runs `compare(rng, archive, setting)` for settings of a seed; they share an archive, which is what costs time.
template <class Compare>
void compareOnSeed(unsigned seed, int settings, Compare compare) {
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 rng(seed);
  const Archive archive = randomSearchArchive(rng);
  for (int setting = 0; setting < settings; ++setting) {
    SCOPED_TRACE("setting " + std::to_string(setting));
    compare(rng, archive, setting);
    if (testing::Test::HasFatalFailure()) return;
  }
}

/// The same for so many seeds, up to the first that fails.
template <class Compare>
void compareOnSeeds(unsigned firstSeed, int seeds, int settings, Compare compare) {
  for (unsigned seed = firstSeed; seed < firstSeed + static_cast<unsigned>(randomRuns(seeds)); ++seed) {
    compareOnSeed(seed, settings, compare);
    if (testing::Test::HasFatalFailure()) return;
  }
}

/// The case of the examples, draw 1: 10 at the first place of BA.
inline const WheelNumbers kCase = {{"BA", {10, 11, 12, 13, 14}}};

/// A request of one number with every fix and a list that keeps all candidates.
template <class Request>
Request requestOn(const Archive& archive) {
  Request request;
  request.archive = &archive;
  request.formula = formulaInput({});
  request.allowedFix = everyFix();
  request.withFix = true;
  request.keep = 5000;
  return request;
}

/// That for the ambate after the case, three colpi long.
inline AmbataRequest oneCase(const Archive& archive, std::vector<WheelSet> wheelSets) {
  auto request = requestOn<AmbataRequest>(archive);
  request.cases = {1};
  request.colpi = 3;
  request.lastDraw = archive.NumEstrazioni();
  request.wheelSets = std::move(wheelSets);
  return request;
}

/// The rows of BA's first number with a fix.
inline std::vector<Candidate> rowsOf(const std::vector<Candidate>& ranking, int fix) {
  std::vector<Candidate> rows;
  for (const Candidate& row : ranking)
    if (row.elements == ElementSet{{0, 0, 0}, {1, 0, 0}} && row.fix == fix) rows.push_back(row);
  return rows;
}

/// The first of them; an empty one where there is none.
inline Candidate rowOf(const std::vector<Candidate>& ranking, int fix) {
  const std::vector<Candidate> rows = rowsOf(ranking, fix);
  return rows.empty() ? Candidate{} : rows.front();
}

}  // namespace trv5
