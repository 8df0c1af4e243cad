#pragma once

#include <sys/types.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>

namespace trv5 {

/// The program driven by lines, as a child process: each line is sent and its answer read before the next.
class ConsoleProcess {
 public:
  /// `userData`: the folder of the user's data, so that a test never meets that of who runs it.
  ConsoleProcess(const std::filesystem::path& program, const std::filesystem::path& userData);
  ~ConsoleProcess();
  ConsoleProcess(const ConsoleProcess&) = delete;
  ConsoleProcess& operator=(const ConsoleProcess&) = delete;

  /// The answer to a line; throws std::runtime_error when the program has ended.
  template <class... Words>
  nlohmann::json say(const Words&... words) {
    return sayText(nlohmann::json::array({words...}).dump());
  }
  nlohmann::json sayText(const std::string& line);
  /// The same for a line that must be understood; throws std::runtime_error with the error told.
  template <class... Words>
  nlohmann::json does(const Words&... words) {
    return understood(nlohmann::json::array({words...}).dump());
  }
  /// Sends a line that has no answer.
  void send(const std::string& line);
  /// Ends the input and gives the exit status; -1 when a signal ended the program.
  int finish();

 private:
  nlohmann::json understood(const std::string& line);
  std::string readLine();

  pid_t m_child = -1;
  int m_input = -1, m_output = -1;
  std::string m_read;  // beyond the last line taken
};

}  // namespace trv5
