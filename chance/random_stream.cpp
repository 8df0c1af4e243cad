#include "chance/random_stream.h"

// One build for every processor of the kind and one for those with 32-byte integer registers, as in the vote counter.
#if defined(__x86_64__) && defined(__gnu_linux__)
#define TRV5_FOR_EACH_PROCESSOR [[gnu::target_clones("default", "avx2")]]
#else
#define TRV5_FOR_EACH_PROCESSOR
#endif

namespace trv5 {
namespace {

constexpr std::uint32_t kMultiplier0 = 0xD2511F53U, kMultiplier1 = 0xCD9E8D57U;
constexpr std::uint32_t kWeyl0 = 0x9E3779B9U, kWeyl1 = 0xBB67AE85U;
constexpr int kRounds = 10;

[[gnu::always_inline]] inline void round(std::uint32_t& c0, std::uint32_t& c1, std::uint32_t& c2, std::uint32_t& c3,
                                         std::uint32_t key0, std::uint32_t key1) {
  const std::uint64_t product0 = std::uint64_t{kMultiplier0} * c0, product1 = std::uint64_t{kMultiplier1} * c2;
  c0 = static_cast<std::uint32_t>(product1 >> 32U) ^ c1 ^ key0;
  c2 = static_cast<std::uint32_t>(product0 >> 32U) ^ c3 ^ key1;
  c1 = static_cast<std::uint32_t>(product1);
  c3 = static_cast<std::uint32_t>(product0);
}

// Blocks that follow each other, word by word; the loops are made for registers of eight words.
template <unsigned kBlocks>
struct Blocks {
  std::uint32_t c0[kBlocks], c1[kBlocks], c2[kBlocks], c3[kBlocks];
};

TRV5_FOR_EACH_PROCESSOR
void makeBlocks(Blocks<16>& b, std::uint32_t key0, std::uint32_t key1) {
  for (int r = 0; r < kRounds; ++r, key0 += kWeyl0, key1 += kWeyl1)
    for (unsigned i = 0; i < 16; ++i) round(b.c0[i], b.c1[i], b.c2[i], b.c3[i], key0, key1);
}

}  // namespace

std::array<std::uint32_t, 4> philox(std::array<std::uint32_t, 4> c, std::array<std::uint32_t, 2> key) {
  for (int r = 0; r < kRounds; ++r, key[0] += kWeyl0, key[1] += kWeyl1) round(c[0], c[1], c[2], c[3], key[0], key[1]);
  return c;
}

void RandomStream::refill() {
  static_assert(kBlocks == 16);
  Blocks<kBlocks> b;
  for (unsigned i = 0; i < kBlocks; ++i) {
    b.c0[i] = low(m_block + i);
    b.c1[i] = high(m_block + i);
    b.c2[i] = m_stream[0];
    b.c3[i] = m_stream[1];
  }
  m_block += kBlocks;
  makeBlocks(b, m_key[0], m_key[1]);
  for (unsigned i = 0; i < kBlocks; ++i) {
    m_words[2 * kBlocks - 1 - 2 * i] = std::uint64_t{b.c1[i]} << 32U | b.c0[i];
    m_words[2 * kBlocks - 2 - 2 * i] = std::uint64_t{b.c3[i]} << 32U | b.c2[i];
  }
  m_left = 2 * kBlocks;
}

}  // namespace trv5
