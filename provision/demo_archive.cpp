#include "provision/demo_archive.h"

#include <numeric>

#include "maintenance/draw_days.h"

namespace trv5 {
namespace {

// The SplitMix64 sequence: a Weyl counter, scrambled. The standard library's distributions differ between libraries.
class Generator {
 public:
  explicit Generator(std::uint64_t seed) : m_state(seed) {}

  /// 0..bound - 1, all equally likely but for a bias below 2^-32.
  unsigned below(unsigned bound) { return static_cast<unsigned>((next() >> 32) * bound >> 32); }

 private:
  std::uint64_t next() {
    std::uint64_t z = m_state += 0x9E3779B97F4A7C15U;
    z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9U;
    z = (z ^ z >> 27) * 0x94D049BB133111EBU;
    return z ^ z >> 31;
  }

  std::uint64_t m_state;
};

constexpr std::uint64_t kSeed = 90;

}  // namespace

std::vector<Draw> simulatedDraws() {
  Generator random(kSeed);
  std::array<std::uint8_t, 90> urn;
  std::iota(urn.begin(), urn.end(), std::uint8_t{1});

  std::vector<Draw> draws;
  for (const Day day : drawDays()) {
    Draw& draw = draws.emplace_back(Draw{day, {}});
    const WheelSet wheels = wheelsDrawnOn(day);
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      if (!holds(wheels, wheel)) continue;
      // Each number leaves the urn by a swap with one of those behind it, so that none comes twice. The urn is never
      // put back in order: any order of it is as good.
      for (unsigned i = 0; i < kPositions; ++i) {
        std::swap(urn[i], urn[i + random.below(90 - i)]);
        draw.numbers[static_cast<std::size_t>(wheel)][i] = urn[i];
      }
    }
  }
  return draws;
}

}  // namespace trv5
