#include "method/vote_counter.h"

#include "method/vote_adders.h"

namespace trv5 {
namespace {

using namespace votes;

// Which counters can enter the ranking as it stands.
struct Entrance {
  RunBits allowed, tying;
  int age = -1;

  Entrance(const VoteRings& rings, const NumberFlags& fixes) : allowed(rings), tying(rings) { allowed.allow(fixes); }

  // False when none can any more, because the last row has the highest count there is.
  bool open(const Ranking& ranking, int mostVotes) {
    if (age != ranking.age()) {
      age = ranking.age();
      tying.tie(allowed, ranking.last());
    }
    return ranking.threshold() < mostVotes || tying.any();
  }
};

void offerTwoSets(const Counters& counters, const Lanes& entering, std::size_t set, Ranking& ranking) {
  for (std::size_t word = 0; word < kWords; ++word)
    for (std::uint64_t bits = entering[word]; bits != 0; bits &= bits - 1) {
      const int bit = std::countr_zero(bits);
      const int fix = fixOf(word % 2 * 64 + static_cast<std::size_t>(bit));
      ranking.offer({counters.count(word, bit), 0, fix, static_cast<int>(set + word / 2)});
    }
}

TRV5_FOR_EACH_PROCESSOR
void rankOneWheelSet(const VoteRings& rings, const FormulaValues& values, const NumberFlags& fixes, Ranking& ranking) {
  Entrance entrance(rings, fixes);
  std::vector<std::uint8_t> first(values.rowLength()), second(values.rowLength());
  Counters counters(rings.mostVotes());
  for (std::size_t set = 0; set < values.sets() && entrance.open(ranking, rings.mostVotes()); set += 2) {
    const bool pair = set + 1 < values.sets();
    values.values(set, first.data());
    values.values(pair ? set + 1 : set, second.data());
    findRuns(first.data(), first.size());
    findRuns(second.data(), second.size());
    counters.clear(ranking.threshold());
    counters.add(rings, TwoSets{rings.level(0), first.data(), second.data()});
    const std::uint64_t low = entrance.allowed.word(0), high = entrance.allowed.word(1);
    const std::uint64_t lowTying = entrance.tying.word(0), highTying = entrance.tying.word(1);
    const Lanes allowed = {low, high, pair ? low : 0, pair ? high : 0};
    const Lanes tying = {lowTying, highTying, lowTying, highTying};
    Lanes entering;
    if (counters.entering(allowed, tying, entering)) offerTwoSets(counters, entering, set, ranking);
  }
}

void offerPiece(const Counters& counters, const Lanes& entering, std::size_t firstWord, std::size_t residueBits,
                std::size_t set, Ranking& ranking) {
  for (std::size_t word = 0; word < kWords; ++word)
    for (std::uint64_t bits = entering[word]; bits != 0; bits &= bits - 1) {
      const int bit = std::countr_zero(bits);
      const std::size_t at = (firstWord + word) * 64 + static_cast<std::size_t>(bit);
      const int wheelSet = static_cast<int>(at % residueBits);
      ranking.offer({counters.count(word, bit), wheelSet, fixOf(at / residueBits), static_cast<int>(set)});
    }
}
TRV5_FOR_EACH_PROCESSOR
void rankWheelSets(const VoteRings& rings, const FormulaValues& values, const NumberFlags& fixes, Ranking& ranking) {
  Entrance entrance(rings, fixes);
  const auto residueBytes = static_cast<std::uint32_t>(rings.residueBytes());
  std::vector<std::uint8_t> run(values.rowLength());
  std::vector<std::uint32_t> ringOfCase(values.rowLength()), begin(values.rowLength());
  for (std::size_t i = 0; i < ringOfCase.size(); ++i) ringOfCase[i] = static_cast<std::uint32_t>(i * rings.stride());
  Counters counters(rings.mostVotes());
  for (std::size_t set = 0; set < values.sets(); ++set) {
    values.values(set, run.data());
    for (std::size_t i = 0; i < begin.size(); ++i) begin[i] = ringOfCase[i] + run[i] * residueBytes;
    for (std::size_t word = 0; word < entrance.allowed.words(); word += kWords) {
      if (!entrance.open(ranking, rings.mostVotes())) return;
      Lanes allowed, tying, entering;
      lanesAt(entrance.allowed, word, allowed);
      if (empty(allowed)) continue;
      counters.clear(ranking.threshold());
      counters.add(rings, PieceOfSet{rings.level(0) + word * 8, begin.data()});
      lanesAt(entrance.tying, word, tying);
      if (counters.entering(allowed, tying, entering))
        offerPiece(counters, entering, word, std::size_t{residueBytes} * 8, set, ranking);
    }
  }
}

}  // namespace

void rankVotes(const VoteRings& rings, const FormulaValues& values, const NumberFlags& fixes, Ranking& ranking) {
  if (rings.levels() == 0) return;
  if (rings.narrow())
    rankOneWheelSet(rings, values, fixes, ranking);
  else
    rankWheelSets(rings, values, fixes, ranking);
}

}  // namespace trv5
