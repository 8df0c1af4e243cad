#pragma once

#include <vector>

#include "maintenance/draw.h"

namespace trv5 {

/// Simulated draws on the true days of the Lotto: numbers from a generator of our own with a fixed seed, so that every
/// run on every machine gives the same ones.
std::vector<Draw> simulatedDraws();

}  // namespace trv5
