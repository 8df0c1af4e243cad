#pragma once

#include <array>
#include <cstdint>

namespace trv5 {

/// One block of the generator Philox4x32 with ten rounds (Salmon, Moraes, Dror, Shaw: Parallel random numbers, as easy
/// as 1, 2, 3; 2011): four words that hang on nothing but counter and key.
std::array<std::uint32_t, 4> philox(std::array<std::uint32_t, 4> counter, std::array<std::uint32_t, 2> key);

/// The random bits of one stream of a seed: the seed is the key, the stream the upper half of the counter. No two
/// streams have a block in common, and none hangs on what another gave.
class RandomStream {
 public:
  RandomStream(std::uint64_t seed, std::uint64_t stream)
      : m_key{low(seed), high(seed)}, m_stream{low(stream), high(stream)} {}

  /// 64 random bits.
  std::uint64_t next() {
    if (m_left == 0) refill();
    return m_words[--m_left];
  }

 private:
  static constexpr std::uint32_t low(std::uint64_t value) { return static_cast<std::uint32_t>(value); }
  static constexpr std::uint32_t high(std::uint64_t value) { return static_cast<std::uint32_t>(value >> 32U); }
  static constexpr unsigned kBlocks = 16;  // made in one go, so that the compiler can make several at once

  void refill();

  std::array<std::uint32_t, 2> m_key, m_stream;
  std::uint64_t m_block = 0;
  std::array<std::uint64_t, 2 * kBlocks> m_words;  // the last is given first
  unsigned m_left = 0;
};

}  // namespace trv5
