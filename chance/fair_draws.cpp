#include "chance/fair_draws.h"

#include <algorithm>
#include <map>
#include <numeric>

#include "method/drawn_numbers.h"

namespace trv5 {
namespace {

__extension__ using Wide = unsigned __int128;

// Draws without replacement take one number of n, one of n - 1 and so on: the digits of a random fraction in the mixed
// base n, n - 1, .., each by a multiplication (Brackett-Rozinsky, Lemire: Batched ranged random integer generation,
// 2024). What is left of the 64 bits tells whether the fraction is one of the few too many, which are drawn anew.
template <class Take>
[[gnu::always_inline]] inline void takeDigits(RandomStream& random, unsigned things, unsigned count, Take take) {
  std::uint64_t ways = 1;
  for (unsigned k = 0; k < count; ++k) ways *= things - k;
  for (;;) {
    std::uint64_t left = random.next();
    unsigned digits[kPositions];
    for (unsigned k = 0; k < count; ++k) {
      const Wide product = Wide{left} * (things - k);
      digits[k] = static_cast<unsigned>(product >> 64U);
      left = static_cast<std::uint64_t>(product);
    }
    if (left < ways && left < (0 - ways) % ways) continue;
    for (unsigned k = 0; k < count; ++k) take(k, digits[k]);
    return;
  }
}

constexpr unsigned kUrn = 90;

std::vector<std::uint8_t> fullUrn() {
  std::vector<std::uint8_t> urn(kUrn);
  std::iota(urn.begin(), urn.end(), std::uint8_t{1});
  return urn;
}

std::uint32_t placeOf(int draw, int wheel) {
  return static_cast<std::uint32_t>(draw * Archive::kDrawBytes + wheel * kPositions);
}

std::uint8_t drawnPositions(const std::uint8_t* numbers) {
  unsigned drawn = 0;
  for (unsigned k = 0; k < kPositions; ++k)
    if (numbers[k] != 0) drawn |= 1U << k;
  return static_cast<std::uint8_t>(drawn);
}

}  // namespace

void drawNumbers(RandomStream& random, std::span<std::uint8_t> urn, int count) {
  takeDigits(random, static_cast<unsigned>(urn.size()), static_cast<unsigned>(count),
             [&](unsigned k, unsigned digit) { std::swap(urn[k], urn[k + digit]); });
}

Redraw redrawAfter(const Archive& archive, const std::vector<int>& cases, int colpi, int lastDraw, WheelSet wheels) {
  constexpr std::uint8_t kWhole = (1U << kPositions) - 1U;
  std::vector<bool> wanted(Archive::kMaxDraws + 1);
  for (const int caseDraw : cases) {
    const ColpiWindow window = windowAfter(caseDraw, colpi, lastDraw);
    for (int draw = window.first; draw <= window.last; ++draw) wanted[static_cast<std::size_t>(draw)] = true;
  }
  Redraw redraw{.archive = &archive, .wheels = {}, .parts = {}, .urns = {fullUrn()}};
  for (int draw = 1; draw <= Archive::kMaxDraws; ++draw)
    for (int wheel = 0; wanted[static_cast<std::size_t>(draw)] && wheel < kWheels; ++wheel) {
      if (!holds(wheels, wheel)) continue;
      const std::uint8_t drawn = drawnPositions(archive.wheelOf(draw, wheel));
      if (drawn == kWhole)
        redraw.wheels.push_back({placeOf(draw, wheel)});
      else if (drawn != 0)
        redraw.parts.push_back({placeOf(draw, wheel), drawn, 0});
    }
  return redraw;
}

Redraw redrawBeside(const Archive& archive, const std::vector<KeptNumbers>& kept, WheelSet wheels) {
  std::map<int, NumberFlags> keptInDraw;
  for (const KeptNumbers& entry : kept) {
    if (entry.draw < 1 || entry.draw > Archive::kMaxDraws) continue;
    NumberFlags& flags = keptInDraw[entry.draw];
    for (std::size_t n = 1; n < flags.size(); ++n) flags[n] = flags[n] || entry.numbers[n];
  }
  Redraw redraw{.archive = &archive, .wheels = {}, .parts = {}, .urns = {}};
  for (const auto& [draw, flags] : keptInDraw) {
    std::vector<std::uint8_t> urn = fullUrn();
    std::erase_if(urn, [&flags = flags](std::uint8_t n) { return flags[n]; });
    bool used = false;
    for (int wheel = 0; wheel < kWheels; ++wheel) {
      if (!holds(wheels, wheel)) continue;
      const std::uint8_t* const numbers = archive.wheelOf(draw, wheel);
      unsigned positions = drawnPositions(numbers);
      const unsigned drawn = positions;
      for (unsigned k = 0; k < kPositions; ++k)
        if (flags[numbers[k]]) positions &= ~(1U << k);
      const auto count = static_cast<std::size_t>(__builtin_popcount(positions));
      if (positions == drawn || count == 0 || count > urn.size()) continue;
      redraw.parts.push_back(
          {placeOf(draw, wheel), static_cast<std::uint8_t>(positions), static_cast<std::uint32_t>(redraw.urns.size())});
      used = true;
    }
    if (used) redraw.urns.push_back(urn);
  }
  return redraw;
}

FairDraws::FairDraws(const Redraw& redraw) : m_redraw(redraw) {
  const std::uint8_t* const first = redraw.archive->wheelOf(0, 0);
  m_numbers.assign(first, first + std::ptrdiff_t{Archive::kMaxDraws + 1} * Archive::kDrawBytes);
}

Outcomes FairDraws::replica(std::uint64_t seed, std::uint64_t replica) {
  RandomStream random(seed, replica);
  std::uint8_t urn[kUrn];
  std::iota(urn, urn + kUrn, std::uint8_t{1});
  for (const Redraw::Wheel& wheel : m_redraw.wheels)
    takeDigits(random, kUrn, kPositions, [&](unsigned k, unsigned digit) {
      std::swap(urn[k], urn[k + digit]);
      m_numbers[wheel.at + k] = urn[k];
    });
  for (const Redraw::PartOfWheel& part : m_redraw.parts) {
    m_urn = m_redraw.urns[part.urn];
    drawNumbers(random, m_urn, __builtin_popcount(part.positions));
    auto next = m_urn.begin();
    for (unsigned k = 0; k < kPositions; ++k)
      if ((part.positions >> k & 1U) != 0) m_numbers[part.at + k] = *next++;
  }
  return {m_numbers.data(), 0};
}

}  // namespace trv5
