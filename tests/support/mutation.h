#pragma once

#include <random>
#include <string>
#include <vector>

namespace trv5 {

/// One of the seeds, changed in some places as bytes get changed by accident or on purpose: bits turned, pieces taken
/// out, put twice, exchanged with those of another seed, numbers and bytes replaced by ones at the edges, the end cut
/// off. The same seeds and the same state of `rng` give the same bytes.
std::string mutated(const std::vector<std::string>& seeds, std::mt19937& rng);

}  // namespace trv5
