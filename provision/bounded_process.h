#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace trv5 {

/// The bounds of a program of others that is given a file of unknown origin.
struct ProcessLimits {
  std::chrono::milliseconds time{30'000};
  std::size_t memory = std::size_t{1} << 30;   ///< address space, bytes
  std::size_t output = std::size_t{64} << 20;  ///< bytes it may print
};

/// How a bounded program ended.
struct ProcessEnd {
  enum class Way {
    Exited,   ///< by itself, with `status`
    Missing,  ///< there is no such program
    TooLate,  ///< stopped when its time was over
    TooMuch,  ///< stopped when it had printed more than it may
    BySignal  ///< ended by a signal, a crash or the bound of its memory
  };
  Way way = Way::Exited;
  int status = 0;
  std::string output, errors;  ///< what it printed; of its errors the first 4 KiB
};

/// Runs a program, found along PATH, with these arguments to its end, its standard input empty. It can write no file
/// and leaves no core. Throws UserError when no process can be made.
ProcessEnd runBounded(const std::string& program, const std::vector<std::string>& arguments,
                      const ProcessLimits& limits = {});

}  // namespace trv5
