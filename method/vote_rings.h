#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/wheels.h"

namespace trv5 {

/// How many votes each residue 0..89 of a case has; 90 and 0 are one residue.
using ResidueWeights = std::array<std::uint32_t, 90>;

/// The wheels that drew each number 0..90 in the colpi after a case.
using WheelsByNumber = std::array<std::uint16_t, 91>;

/// The votes of the cases, laid out for the vote counter (vote_counter.h tells the idea).
///
/// The votes of a case are written in binary: level l holds bit l of the weight of each residue. A level of a case is a
/// ring of bits, residue by residue, laid down twice in a row so that a run of 90 residues is in one piece wherever it
/// begins. The cases are sorted by the number of levels they need, so that each level is about the first cases only;
/// cases without a vote are left out.
///
/// With one wheel set a residue is one bit, and a run would begin inside a byte. Such a ring is kept in eight copies,
/// each moved by one bit more, 32 bytes apart. With more wheel sets a residue is a row of bits, one for each wheel set,
/// filled up to whole bytes.
class VoteRings {
 public:
  /// Bytes of a ring of one wheel set with its copies.
  static constexpr std::size_t kNarrowRing = 256;
  /// A run may be read so far beyond its end.
  static constexpr std::size_t kReadAhead = 32;

  /// One wheel set.
  explicit VoteRings(const std::vector<ResidueWeights>& cases);
  /// Several wheel sets: a wheel set has a vote for a number drawn on one of its wheels, so that its residue 0 has two
  /// where both 0 and 90 were drawn.
  VoteRings(const std::vector<WheelsByNumber>& cases, const std::vector<WheelSet>& wheelSets);

  /// The cases that have votes, by their index in what was handed in: the order in which all else here counts them.
  const std::vector<int>& cases() const { return m_order; }
  /// No counter can come out higher.
  int mostVotes() const { return m_mostVotes; }
  bool narrow() const { return m_residueBytes == 0; }
  /// Bytes of a residue with several wheel sets; 0 with one.
  std::size_t residueBytes() const { return m_residueBytes; }
  std::size_t wheelSets() const { return m_wheelSets; }
  std::size_t levels() const { return m_casesOfLevel.size(); }
  /// Cases that have votes in the level, made even: the ring behind the last is empty then.
  std::size_t casesOfLevel(std::size_t level) const { return m_casesOfLevel[level]; }
  /// From one case to the next.
  std::size_t stride() const { return m_stride; }
  const std::uint8_t* level(std::size_t level) const { return &m_rings[level * m_levelBytes]; }

 private:
  void layOut(const std::vector<int>& levelsOfCase, std::size_t stride);
  std::uint8_t* ring(std::size_t level, std::size_t place) { return &m_rings[level * m_levelBytes + place * m_stride]; }

  std::vector<int> m_order;
  std::vector<std::size_t> m_casesOfLevel;
  std::vector<std::uint8_t> m_rings;  // by level, case, then as told above
  std::size_t m_stride = 0, m_levelBytes = 0;
  std::size_t m_residueBytes = 0, m_wheelSets = 1;
  int m_mostVotes = 0;
};

}  // namespace trv5
