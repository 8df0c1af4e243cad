#include "method/vote_tally.h"

#include "method/vote_adders.h"

namespace trv5 {
namespace {

using namespace votes;

// Counters by their count: each plane, from the highest, parts them in two, down to those that can reach `least`.
struct Tally {
  const Counters& counters;
  int least;
  std::vector<std::int64_t>& formulas;  // by count

  void add(const Lanes& among, std::size_t planes, int count) {
    if (empty(among)) return;
    if (planes == 0) {
      for (std::size_t word = 0; word < kWords; ++word)
        formulas[static_cast<std::size_t>(count)] += std::popcount(among[word]);
      return;
    }
    const int half = 1 << (planes - 1);
    const Lanes with = among & counters.planes[planes - 1];
    add(with, planes - 1, count + half);
    if (count + half <= least) return;
    const Lanes without = among & ~counters.planes[planes - 1];
    add(without, planes - 1, count);
  }
};

TRV5_FOR_EACH_PROCESSOR
void tallyOneWheelSet(const VoteRings& rings, const FormulaValues& values, const RunBits& fixes, Counters& counters,
                      Tally& tally) {
  std::vector<std::uint8_t> first(values.rowLength()), second(values.rowLength());
  for (std::size_t set = 0; set < values.sets(); set += 2) {
    const bool pair = set + 1 < values.sets();
    values.values(set, first.data());
    values.values(pair ? set + 1 : set, second.data());
    findRuns(first.data(), first.size());
    findRuns(second.data(), second.size());
    counters.clear(1 << counters.highest);  // they start with nothing
    counters.add(rings, TwoSets{rings.level(0), first.data(), second.data()});
    const std::uint64_t low = fixes.word(0), high = fixes.word(1);
    tally.add(Lanes{low, high, pair ? low : 0, pair ? high : 0}, counters.highest + 1, 0);
  }
}

TRV5_FOR_EACH_PROCESSOR
void tallyWheelSets(const VoteRings& rings, const FormulaValues& values, const RunBits& fixes, Counters& counters,
                    Tally& tally) {
  std::vector<std::uint8_t> run(values.rowLength());
  std::vector<std::uint32_t> begin(values.rowLength());
  for (std::size_t set = 0; set < values.sets(); ++set) {
    values.values(set, run.data());
    for (std::size_t i = 0; i < begin.size(); ++i)
      begin[i] = static_cast<std::uint32_t>(i * rings.stride() + run[i] * rings.residueBytes());
    for (std::size_t word = 0; word < fixes.words(); word += kWords) {
      Lanes allowed;
      lanesAt(fixes, word, allowed);
      counters.clear(1 << counters.highest);
      counters.add(rings, PieceOfSet{rings.level(0) + word * 8, begin.data()});
      tally.add(allowed, counters.highest + 1, 0);
    }
  }
}

}  // namespace

std::vector<std::int64_t> tallyVotes(const VoteRings& rings, const FormulaValues& values, const NumberFlags& fixes,
                                     int least) {
  std::vector<std::int64_t> formulas(static_cast<std::size_t>(rings.mostVotes()) + 1);
  if (rings.levels() == 0) return formulas;
  RunBits allowed(rings);
  allowed.allow(fixes);
  Counters counters(rings.mostVotes());
  Tally tally{counters, least, formulas};
  if (rings.narrow())
    tallyOneWheelSet(rings, values, allowed, counters, tally);
  else
    tallyWheelSets(rings, values, allowed, counters, tally);
  std::fill(formulas.begin(), formulas.begin() + std::min<std::ptrdiff_t>(least, std::ssize(formulas)), 0);
  return formulas;
}

}  // namespace trv5
