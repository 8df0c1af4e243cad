#pragma once

#include <random>
#include <string>
#include <vector>

namespace trv5 {

/// Lines of a user who walks over all screens, the start of the program first.
const std::vector<std::string>& walkedLines();

/// One of the lines, changed as a program that writes lines goes wrong: another type in a place, a name that nothing
/// has, a number beyond all bounds, too few or too many arguments, brackets without end, a text without end, bytes that
/// are no text. The same state of `rng` gives the same line. It names no file outside the folder where the test runs.
std::string wrongLine(const std::vector<std::string>& lines, const std::string& line, std::mt19937& rng);

}  // namespace trv5
