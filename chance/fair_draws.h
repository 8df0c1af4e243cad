#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "chance/random_stream.h"
#include "core/archive.h"
#include "method/outcomes.h"
#include "method/search.h"

namespace trv5 {

/// Which numbers of an archive are drawn anew: whole wheels, or what else stands on a wheel beside numbers that stay.
struct Redraw {
  struct Wheel {
    std::uint32_t at = 0;  ///< of its first number, counted from draw 0 of the archive
  };
  struct PartOfWheel {
    std::uint32_t at = 0;
    std::uint8_t positions = 0;  ///< bit p - 1: the number at position p is drawn anew
    std::uint32_t urn = 0;       ///< what it is drawn from
  };
  const Archive* archive = nullptr;
  std::vector<Wheel> wheels;                    ///< all five numbers out of 90
  std::vector<PartOfWheel> parts;               ///< as many numbers as there are positions
  std::vector<std::vector<std::uint8_t>> urns;  ///< of the parts: the numbers that may come
};

/// All wheels of a set that were drawn in the colpi after the cases; a draw in the colpi of several cases is drawn
/// once.
Redraw redrawAfter(const Archive& archive, const std::vector<int>& cases, int colpi, int lastDraw, WheelSet wheels);

/// Numbers of a draw that stay where they stand and don't come anywhere else in it.
struct KeptNumbers {
  int draw = 0;
  NumberFlags numbers{};
};

/// The wheels that hold a number kept in their draw: what stands beside it is drawn anew, out of the numbers that
/// aren't kept. Several entries of one draw are one.
Redraw redrawBeside(const Archive& archive, const std::vector<KeptNumbers>& kept, WheelSet wheels);

/// An archive with new outcomes: each replica of a seed is a stream of its own, so that it comes out the same whoever
/// draws it and in whatever order.
class FairDraws {
 public:
  /// The redraw must outlive it.
  explicit FairDraws(const Redraw& redraw);
  explicit FairDraws(const Redraw&&) = delete;

  /// The archive with the numbers of a replica in place; valid until the next one.
  Outcomes replica(std::uint64_t seed, std::uint64_t replica);

 private:
  const Redraw& m_redraw;
  std::vector<std::uint8_t> m_numbers;  // the whole archive from draw 0 on
  std::vector<std::uint8_t> m_urn;      // in any order
};

/// Puts `count` different numbers of the urn at its front, each set and order of them as likely as any other. The rest
/// of the urn stays an urn. `count` is 1..5 and not more than the urn holds.
void drawNumbers(RandomStream& random, std::span<std::uint8_t> urn, int count);

}  // namespace trv5
