#pragma once

#include <algorithm>
#include <random>
#include <string>

namespace trv5 {

/// The bytes of a database file as a bad disk or a bad copy leaves them. `kind` 0..3: some bits turned, a range of
/// zeroes, cut off, two pages of 4096 bytes swapped.
inline constexpr int kDamages = 4;
inline std::string damaged(std::string bytes, int kind, std::mt19937& rng) {
  constexpr std::size_t kPage = 4096;
  const auto below = [&](std::size_t bound) { return static_cast<std::size_t>(rng()) % bound; };
  switch (kind) {
    case 0:
      for (std::size_t flips = 1 + below(8); flips > 0; --flips)
        bytes[below(bytes.size())] ^= static_cast<char>(1U << below(8));
      break;
    case 1: {
      const std::size_t at = below(bytes.size());
      std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), std::min(1 + below(8192), bytes.size() - at), '\0');
      break;
    }
    case 2:
      bytes.resize(below(bytes.size()));
      break;
    default: {
      const std::size_t pages = bytes.size() / kPage, a = below(pages), b = below(pages);
      std::swap_ranges(bytes.begin() + static_cast<std::ptrdiff_t>(a * kPage),
                       bytes.begin() + static_cast<std::ptrdiff_t>((a + 1) * kPage),
                       bytes.begin() + static_cast<std::ptrdiff_t>(b * kPage));
    }
  }
  return bytes;
}

}  // namespace trv5
