#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace trv5 {

/// What a program did.
struct ProgramRun {
  int status = -1;  ///< exit status; -1 when a signal ended it
  int signal = 0;   ///< that signal, else 0
  std::string output, errors;
};

/// How a program is run.
struct RunSetup {
  std::filesystem::path folder = {};                        ///< where it starts; empty = where the test runs
  std::optional<std::size_t> largestFile = {};              ///< bytes that it can write to one file
  std::optional<std::chrono::milliseconds> stopAfter = {};  ///< sends `stopSignal` at that moment unless it ended
  int stopSignal = 0;
};

/// Runs a program to its end, its standard input empty.
ProgramRun runProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                      const RunSetup& setup = {});

}  // namespace trv5
