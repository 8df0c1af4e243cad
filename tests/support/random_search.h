#pragma once

#include <random>
#include <vector>

#include "method/search.h"
#include "support/plain_search.h"

namespace trv5 {

/// Small archives with what searches stumble over: wheels not drawn, many 90s, few different numbers, the same number
/// twice on a wheel.
Archive randomSearchArchive(std::mt19937& rng);

/// Any alteration or a constant, any operator, the ascending triples or any.
PlainFormula randomFormula(std::mt19937& rng, Shape shape);

/// A request without formula: any cases, also the last draw, colpi beyond the reference draw, any fixes, any length of
/// the ranking; the wheel sets are left empty.
AmbataRequest randomAmbataRequest(std::mt19937& rng, const Archive& archive);

/// A request without formula, with hits of one to five numbers in play, and with numbers that didn't hit.
CompanionRequest randomCompanionRequest(std::mt19937& rng, const Archive& archive);

WheelSet randomWheelSet(std::mt19937& rng);
int below(std::mt19937& rng, int limit);

}  // namespace trv5
