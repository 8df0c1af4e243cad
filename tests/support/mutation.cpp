#include "support/mutation.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "support/damage.h"

namespace trv5 {
namespace {

std::size_t below(std::mt19937& rng, std::size_t bound) {
  return bound == 0 ? 0 : static_cast<std::size_t>(rng()) % bound;
}

// A piece of `bytes`, mostly short.
std::string_view pieceOf(std::string_view bytes, std::mt19937& rng) {
  const std::size_t at = below(rng, bytes.size());
  return bytes.substr(at, 1 + below(rng, rng() % 4 == 0 ? bytes.size() : 16));
}

// What readers take for an end, a number at its edge, the beginning of something else.
constexpr std::array<std::string_view, 24> kEdges = {
    "0",  "00",   "90",   "91", "-1", "99999999999999999999", "2147483648", "\r", "\n", "\r\n", "\t",   "\"",
    "\\", "\xFF", "\xC3", " ",  "-",  "\xEF\xBB\xBF",         "\xFF\xFE",   "[",  "]",  ",",    "null", "31/02/2000"};

void replaceNumber(std::string& bytes, std::mt19937& rng) {
  const std::size_t at = bytes.find_first_of("0123456789", below(rng, bytes.size()));
  if (at == std::string::npos) return;
  const std::size_t end = std::min(bytes.find_first_not_of("0123456789", at), bytes.size());
  bytes.replace(at, end - at, std::to_string(rng() % (rng() % 2 == 0 ? 100 : 4000000000U)));
}

void changeOnce(std::string& bytes, const std::vector<std::string>& seeds, std::mt19937& rng) {
  const std::size_t at = below(rng, bytes.size() + 1);
  switch (rng() % 9) {
    case 0:
      if (at < bytes.size()) bytes[at] ^= static_cast<char>(1U << rng() % 8);
      break;
    case 1:
      if (at < bytes.size()) bytes[at] = static_cast<char>(rng());
      break;
    case 2:
      bytes.erase(at, 1 + below(rng, rng() % 4 == 0 ? bytes.size() : 8));
      break;
    case 3:
      bytes.insert(at, std::string(pieceOf(bytes, rng)));
      break;
    case 4:
      bytes.insert(at, std::string(pieceOf(seeds[below(rng, seeds.size())], rng)));
      break;
    case 5:
      bytes.insert(at, std::string(kEdges[below(rng, kEdges.size())]));
      break;
    case 6:
      if (rng() % 4 == 0) bytes.resize(at);
      break;
    case 7:
      replaceNumber(bytes, rng);
      break;
    default: {
      const std::string piece(pieceOf(seeds[below(rng, seeds.size())], rng));
      bytes.replace(at, std::min(piece.size(), bytes.size() - at), piece);
    }
  }
}

}  // namespace

std::string mutated(const std::vector<std::string>& seeds, std::mt19937& rng) {
  std::string bytes = seeds[below(rng, seeds.size())];
  constexpr std::size_t kPage = 4096, kLongest = 1U << 20;
  if (bytes.size() > 2 * kPage && rng() % 8 == 0)
    return damaged(std::move(bytes), static_cast<int>(rng() % kDamages), rng);
  for (unsigned change = 1 + static_cast<unsigned>(rng() % (rng() % 3 == 0 ? 30 : 4)); change > 0; --change)
    changeOnce(bytes, seeds, rng);
  if (bytes.size() > kLongest) bytes.resize(kLongest);
  return bytes;
}

}  // namespace trv5
