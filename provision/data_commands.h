#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace trv5 {

/// Runs one command of `trv5-data`, the arguments being those behind the program's name: makes the file that it asks
/// for, whole or not at all. Returns the program's exit status: 0 when done, 1 when not, the reason then on `errors`.
int runDataCommand(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors);

}  // namespace trv5
