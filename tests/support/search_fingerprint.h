#pragma once

#include <cstdint>
#include <vector>

#include "method/search.h"

namespace trv5 {

/// One number for the results of all searches on an archive: shapes, alterations, operators, with and without fix, one
/// wheel and all, best wheels, companions of each kind, pure numbers.
std::uint64_t searchFingerprint(const Archive& archive);

/// That of the demonstration archive. A commit that changes it changes results, and says why.
inline constexpr std::uint64_t kDemonstrationFingerprint = 0x42FBF1527866AED9;

/// The hits of some ambate in the colpi after the cases on some wheels, as their verification lists them.
std::vector<CompanionRow> hitsOfAmbate(const AmbataRequest& played, const std::vector<int>& ambate, WheelSet wheels);

}  // namespace trv5
