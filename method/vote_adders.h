#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <vector>

#include "method/flags.h"
#include "method/ranking.h"
#include "method/vote_rings.h"

// What the loops over votes are made of (vote_counter.h tells the idea); for their sources alone.

// One build of the loops for every processor of the kind and one for those with 32-byte integer registers; which one
// runs is settled when the program is loaded.
#if defined(__x86_64__) && defined(__gnu_linux__)
#define TRV5_FOR_EACH_PROCESSOR [[gnu::target_clones("default", "avx2")]]
#else
#define TRV5_FOR_EACH_PROCESSOR
#endif
// What the loops are made of has to be compiled with them.
#define TRV5_PART_OF_LOOP [[gnu::always_inline]] inline

namespace trv5::votes {

using Lanes = std::uint64_t __attribute__((vector_size(32)));
using HalfLanes = std::uint64_t __attribute__((vector_size(16)));
inline constexpr std::size_t kBytes = sizeof(Lanes);
inline constexpr std::size_t kWords = kBytes / 8;

// Planes of a counter: up to 31 for the counts, and above them the ones that an adder tree that begins at a high level
// may touch without leaving anything there.
inline constexpr std::size_t kMostPlanes = 36;

// Three rows of one weight make one of the same weight and one of the double. The third may be the `sum` itself: it
// comes in last, so that sums that follow each other wait for one operation only.
TRV5_PART_OF_LOOP void addRows(Lanes& twice, Lanes& sum, const Lanes& a, const Lanes& b, const Lanes& c) {
  const Lanes either = a ^ b;
  const Lanes both = a & b;
  twice = both | (either & c);
  sum = either ^ c;
}

TRV5_PART_OF_LOOP bool empty(const Lanes& bits) {
  return (bits[0] | bits[1] | bits[2] | bits[3]) == 0;
}

// The rows of two element sets, one in each half of the register; one wheel set.
struct TwoSets {
  const std::uint8_t* ring;
  const std::uint8_t *first, *second;  // by case, where the run begins within the ring

  TRV5_PART_OF_LOOP void load(Lanes& row, std::size_t i) const {
    HalfLanes low, high;
    std::memcpy(&low, ring + i * VoteRings::kNarrowRing + first[i], sizeof low);
    std::memcpy(&high, ring + i * VoteRings::kNarrowRing + second[i], sizeof high);
    row = __builtin_shufflevector(low, high, 0, 1, 2, 3);
  }
};

// A piece of the rows of one element set; several wheel sets.
struct PieceOfSet {
  const std::uint8_t* ring;
  const std::uint32_t* begin;  // by case, where the run begins within the level

  TRV5_PART_OF_LOOP void load(Lanes& row, std::size_t i) const { std::memcpy(&row, ring + begin[i], sizeof row); }
};

// Eight rows join the lowest three planes; what they carry beyond is left in `eights`.
template <class Rows>
TRV5_PART_OF_LOOP void addEight(const Rows& rows, std::size_t i, Lanes& p0, Lanes& p1, Lanes& p2, Lanes& eights) {
  Lanes a, b, twos, moreTwos, fours, moreFours;
  rows.load(a, i);
  rows.load(b, i + 1);
  addRows(twos, p0, a, b, p0);
  rows.load(a, i + 2);
  rows.load(b, i + 3);
  addRows(moreTwos, p0, a, b, p0);
  addRows(fours, p1, twos, moreTwos, p1);
  rows.load(a, i + 4);
  rows.load(b, i + 5);
  addRows(twos, p0, a, b, p0);
  rows.load(a, i + 6);
  rows.load(b, i + 7);
  addRows(moreTwos, p0, a, b, p0);
  addRows(moreFours, p1, twos, moreTwos, p1);
  addRows(eights, p2, fours, moreFours, p2);
}

TRV5_PART_OF_LOOP void ripple(Lanes* planes, std::size_t from, std::size_t count, Lanes& carry) {
  for (std::size_t j = from; j < count; ++j) {
    const Lanes next = planes[j] & carry;
    planes[j] ^= carry;
    carry = next;
  }
}

// Adds `cases` rows, an even number, to the counters whose lowest plane is planes[0]; at least four planes.
template <class Rows>
TRV5_PART_OF_LOOP void addLevel(const Rows& rows, std::size_t cases, Lanes* planes, std::size_t count) {
  Lanes p0 = planes[0], p1 = planes[1], p2 = planes[2], p3 = planes[3];
  std::size_t i = 0;
  for (; i + 16 <= cases; i += 16) {
    Lanes eights, moreEights, carry;
    addEight(rows, i, p0, p1, p2, eights);
    addEight(rows, i + 8, p0, p1, p2, moreEights);
    addRows(carry, p3, eights, moreEights, p3);
    ripple(planes, 4, count, carry);
  }
  if (i + 8 <= cases) {
    Lanes eights;
    addEight(rows, i, p0, p1, p2, eights);
    Lanes carry = p3 & eights;
    p3 ^= eights;
    ripple(planes, 4, count, carry);
    i += 8;
  }
  for (; i < cases; i += 2) {
    Lanes a, b, twos;
    rows.load(a, i);
    rows.load(b, i + 1);
    addRows(twos, p0, a, b, p0);
    const Lanes fours = p1 & twos;
    p1 ^= twos;
    const Lanes eights = p2 & fours;
    p2 ^= fours;
    Lanes carry = p3 & eights;
    p3 ^= eights;
    ripple(planes, 4, count, carry);
  }
  planes[0] = p0;
  planes[1] = p1;
  planes[2] = p2;
  planes[3] = p3;
}

// The counters of a register while they are summed up. They start so that those that reach the threshold reach the
// highest plane.
struct Counters {
  Lanes planes[kMostPlanes];
  Lanes cleared[kMostPlanes];  // what they start with
  std::size_t highest;         // plane
  int start = -1;

  explicit Counters(int mostVotes)
      : planes{},
        cleared{},
        highest(static_cast<std::size_t>(std::bit_width(static_cast<unsigned>(std::max(mostVotes, 1) - 1)))) {}

  TRV5_PART_OF_LOOP void clear(int threshold) {
    const int wanted = (1 << highest) - threshold;
    if (wanted != start) {
      start = wanted;
      for (std::size_t j = 0; j <= highest; ++j) cleared[j] = Lanes{} - static_cast<std::uint64_t>(start >> j & 1);
    }
    for (std::size_t j = 0; j <= highest; ++j) planes[j] = cleared[j];
  }

  // All levels of a ring, `levelOf(l)` giving the rows of level l.
  template <class Rows>
  TRV5_PART_OF_LOOP void add(const VoteRings& rings, Rows rows) {
    const std::uint8_t* ring = rows.ring;
    const std::uint8_t* lowest = rings.level(0);
    for (std::size_t level = 0; level < rings.levels(); ++level) {
      rows.ring = ring + (rings.level(level) - lowest);
      addLevel(rows, rings.casesOfLevel(level), &planes[level],
               std::max<std::size_t>(highest + 1 - std::min(level, highest), 4));
    }
  }

  // The counters that enter the ranking: those above the threshold, and of those at the threshold, where the lower
  // planes are empty, the ones that may still tie.
  TRV5_PART_OF_LOOP bool entering(const Lanes& allowed, const Lanes& tying, Lanes& bits) const {
    bits = planes[highest] & allowed;
    if (empty(bits)) return false;
    Lanes above = tying;
    for (std::size_t j = 0; j < highest; ++j) above |= planes[j];
    bits &= above;
    return !empty(bits);
  }

  // The count of one counter.
  int count(std::size_t word, int bit) const {
    int sum = 0;
    for (std::size_t j = 0; j <= highest; ++j) sum |= static_cast<int>(planes[j][word] >> bit & 1U) << j;
    return sum - start;
  }
};

inline int fixOf(std::size_t residue) {
  return residue == 0 ? 90 : static_cast<int>(residue);
}

// Bits for all counters of an element set, residue by residue as in a run; filled up to whole registers.
class RunBits {
 public:
  explicit RunBits(const VoteRings& rings)
      : m_residueBits(rings.narrow() ? 1 : rings.residueBytes() * 8),
        m_wheelSets(rings.wheelSets()),
        m_words((90 * m_residueBits / 64 + kWords) / kWords * kWords) {}

  std::size_t words() const { return m_words.size(); }
  std::uint64_t word(std::size_t at) const { return m_words[at]; }
  bool any() const {
    return std::any_of(m_words.begin(), m_words.end(), [](std::uint64_t word) { return word != 0; });
  }

  // The counters of the fixes flagged.
  void allow(const NumberFlags& fixes) {
    for (std::size_t r = 0; r < 90; ++r)
      if (fixes[static_cast<std::size_t>(fixOf(r))]) set(r, m_wheelSets);
  }

  // The counters of `allowed` that come before the last row, if the counts are equal.
  void tie(const RunBits& allowed, const Ranking::Row& last) {
    std::fill(m_words.begin(), m_words.end(), 0);
    const auto before = static_cast<std::size_t>(last.wheelSet);
    for (std::size_t r = 0; r < 90; ++r) set(r, std::min(fixOf(r) < last.fix ? before + 1 : before, m_wheelSets));
    for (std::size_t i = 0; i < m_words.size(); ++i) m_words[i] &= allowed.m_words[i];
  }

 private:
  // The first wheel sets of a residue.
  void set(std::size_t residue, std::size_t wheelSets) {
    for (std::size_t bit = residue * m_residueBits, left = wheelSets; left > 0;) {
      const std::size_t now = std::min(left, 64 - bit % 64);
      m_words[bit / 64] |= ~std::uint64_t{0} >> (64 - now) << bit % 64;
      bit += now;
      left -= now;
    }
  }

  std::size_t m_residueBits, m_wheelSets;
  std::vector<std::uint64_t> m_words;
};

// The copy of the ring in which residue V begins a byte, and that byte: the three lower bits of V and the five upper
// ones change places.
TRV5_PART_OF_LOOP void findRuns(std::uint8_t* run, std::size_t length) {
  for (std::size_t i = 0; i < length; ++i) run[i] = static_cast<std::uint8_t>(run[i] << 5 | run[i] >> 3);
}

TRV5_PART_OF_LOOP void lanesAt(const RunBits& bits, std::size_t word, Lanes& lanes) {
  lanes = Lanes{bits.word(word), bits.word(word + 1), bits.word(word + 2), bits.word(word + 3)};
}

}  // namespace trv5::votes
