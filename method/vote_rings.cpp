#include "method/vote_rings.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace trv5 {
namespace {

static_assert(std::endian::native == std::endian::little, "rings are written word by word and read byte by byte");

constexpr std::size_t kResidues = 90;
constexpr std::size_t kFilledResidues = 96;

// 64 residues of a level as bits; `ones` holds a byte 0 or 1 for each. The product gathers the lowest bits of eight
// bytes in its highest byte.
std::uint64_t bitsOf(const std::uint8_t* ones, std::size_t count) {
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < count; i += 8) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, ones + i, 8);
    bits |= eight * 0x0102040810204080U >> 56U << i;
  }
  return bits;
}

// The 90 bits of a level twice in a row, and the same moved by one to seven bits.
void writeNarrowRing(const ResidueWeights& weights, std::size_t level, std::uint8_t* out) {
  std::array<std::uint8_t, kFilledResidues> ones{};
  for (std::size_t r = 0; r < kResidues; ++r) ones[r] = static_cast<std::uint8_t>(weights[r] >> level & 1U);
  const std::uint64_t low = bitsOf(ones.data(), 64);
  const std::uint64_t high = bitsOf(ones.data() + 64, kFilledResidues - 64);  // 26 bits
  std::uint64_t word0 = low, word1 = high | low << 26U, word2 = low >> 38U | high << 26U;
  for (std::size_t copy = 0; copy < 8; ++copy, out += VoteRings::kNarrowRing / 8) {
    std::memcpy(out, &word0, 8);
    std::memcpy(out + 8, &word1, 8);
    std::memcpy(out + 16, &word2, 8);
    word0 = word0 >> 1U | word1 << 63U;
    word1 = word1 >> 1U | word2 << 63U;
    word2 >>= 1U;
  }
}

// For each set of wheels, as a mask, the row of bits of the wheel sets that have one of these wheels.
class RowsOfMasks {
 public:
  explicit RowsOfMasks(const std::vector<WheelSet>& wheelSets)
      : m_words((wheelSets.size() + 63) / 64), m_rows((std::size_t{1} << kWheels) * m_words) {
    for (std::size_t s = 0; s < wheelSets.size(); ++s)
      for (int w = 0; w < kWheels; ++w)
        if (holds(wheelSets[s], w)) m_rows[(std::size_t{1} << w) * m_words + s / 64] |= std::uint64_t{1} << s % 64;
    for (std::size_t mask = 1; mask < std::size_t{1} << kWheels; ++mask) {
      const std::size_t others = mask & (mask - 1);
      for (std::size_t i = 0; i < m_words; ++i)
        m_rows[mask * m_words + i] = m_rows[others * m_words + i] | m_rows[(mask ^ others) * m_words + i];
    }
  }

  std::size_t words() const { return m_words; }
  const std::uint64_t* row(std::size_t mask) const { return &m_rows[mask * m_words]; }

 private:
  std::size_t m_words;
  std::vector<std::uint64_t> m_rows;
};

}  // namespace

void VoteRings::layOut(const std::vector<int>& levelsOfCase, std::size_t stride) {
  for (std::size_t i = 0; i < levelsOfCase.size(); ++i)
    if (levelsOfCase[i] > 0) m_order.push_back(static_cast<int>(i));
  const auto levelsAt = [&](int i) { return levelsOfCase[static_cast<std::size_t>(i)]; };
  std::stable_sort(m_order.begin(), m_order.end(), [&](int a, int b) { return levelsAt(a) > levelsAt(b); });

  const int levels = m_order.empty() ? 0 : levelsAt(m_order.front());
  for (int level = 0; level < levels; ++level) {
    const auto needIt = std::count_if(m_order.begin(), m_order.end(), [&](int i) { return levelsAt(i) > level; });
    m_casesOfLevel.push_back(static_cast<std::size_t>(needIt + needIt % 2));
  }
  m_stride = stride;
  m_levelBytes = (m_order.size() + 1) * stride;
  m_rings.resize(static_cast<std::size_t>(levels) * m_levelBytes);
}

VoteRings::VoteRings(const std::vector<ResidueWeights>& cases) {
  std::vector<int> levelsOfCase;
  levelsOfCase.reserve(cases.size());
  for (const ResidueWeights& weights : cases) {
    std::uint32_t most = 0;
    for (const std::uint32_t weight : weights) most = std::max(most, weight);
    levelsOfCase.push_back(static_cast<int>(std::bit_width(most)));
    m_mostVotes += static_cast<int>(most);
  }
  layOut(levelsOfCase, kNarrowRing);
  for (std::size_t place = 0; place < m_order.size(); ++place) {
    const auto index = static_cast<std::size_t>(m_order[place]);
    for (std::size_t level = 0; level < static_cast<std::size_t>(levelsOfCase[index]); ++level)
      writeNarrowRing(cases[index], level, ring(level, place));
  }
}

VoteRings::VoteRings(const std::vector<WheelsByNumber>& cases, const std::vector<WheelSet>& wheelSets)
    : m_residueBytes((wheelSets.size() + 7) / 8), m_wheelSets(wheelSets.size()) {
  const RowsOfMasks rows(wheelSets);
  const std::size_t words = rows.words();
  std::vector<int> levelsOfCase;
  levelsOfCase.reserve(cases.size());
  for (const WheelsByNumber& wheels : cases) {
    unsigned any = 0;
    for (const std::uint16_t mask : wheels) any |= mask;
    const std::uint64_t *nought = rows.row(wheels[0]), *ninety = rows.row(wheels[90]);
    bool both = false;
    for (std::size_t i = 0; i < words; ++i) both = both || (nought[i] & ninety[i]) != 0;
    levelsOfCase.push_back(any == 0 ? 0 : both ? 2 : 1);
    m_mostVotes += levelsOfCase.back();
  }

  const std::size_t run = kResidues * m_residueBytes;
  layOut(levelsOfCase, (2 * run + kReadAhead + 63) / 64 * 64);
  std::vector<std::uint64_t> row(words);
  for (std::size_t place = 0; place < m_order.size(); ++place) {
    const auto index = static_cast<std::size_t>(m_order[place]);
    const WheelsByNumber& wheels = cases[index];
    const std::uint64_t *nought = rows.row(wheels[0]), *ninety = rows.row(wheels[90]);
    // Whole words are written, and what stands beyond a row is written again with the next one.
    std::uint8_t* out = ring(0, place);
    const bool both = levelsOfCase[index] == 2;
    for (std::size_t i = 0; i < words; ++i) row[i] = both ? nought[i] ^ ninety[i] : nought[i] | ninety[i];
    std::memcpy(out, row.data(), words * 8);
    for (std::size_t r = 1; r < kResidues; ++r) std::memcpy(out + r * m_residueBytes, rows.row(wheels[r]), words * 8);
    std::memcpy(out + run, out, run);
    if (both) {
      for (std::size_t i = 0; i < words; ++i) row[i] = nought[i] & ninety[i];
      std::memcpy(ring(1, place), row.data(), m_residueBytes);
      std::memcpy(ring(1, place) + run, row.data(), m_residueBytes);
    }
  }
}

}  // namespace trv5
