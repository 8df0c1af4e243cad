#include "support/run_program.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <stdexcept>

namespace trv5 {
namespace {

using Clock = std::chrono::steady_clock;

struct Pipe {
  int ends[2];
  Pipe() {
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  }
  ~Pipe() {
    closeEnd(0);
    closeEnd(1);
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  void closeEnd(int end) {
    if (ends[end] >= 0) close(ends[end]);
    ends[end] = -1;
  }
};

// Runs in the child between fork and exec, so only calls that are safe there.
[[noreturn]] void become(const char* program, char* const* arguments, const RunSetup& setup, int output, int errors) {
  const int nothing = open("/dev/null", O_RDONLY);
  dup2(nothing, STDIN_FILENO);
  dup2(output, STDOUT_FILENO);
  dup2(errors, STDERR_FILENO);
  if (!setup.folder.empty() && chdir(setup.folder.c_str()) != 0) _exit(126);
  if (setup.largestFile) {
    // A program that counts its coverage would leave cut counts: it finds no place for them, and says nothing.
    setenv("GCOV_PREFIX", "/proc", 1);
    setenv("GCOV_ERROR_FILE", "/dev/null", 1);
    const rlimit limit{*setup.largestFile, *setup.largestFile};
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) _exit(126);
  }
  execv(program, arguments);
  _exit(127);
}

// Reads both pipes to their ends, sends the stop in time.
void follow(pid_t child, Pipe& output, Pipe& errors, const RunSetup& setup, ProgramRun& run) {
  const auto begin = Clock::now();
  bool toStop = setup.stopAfter.has_value();
  std::array<pollfd, 2> open = {pollfd{output.ends[0], POLLIN, 0}, pollfd{errors.ends[0], POLLIN, 0}};
  while (open[0].fd >= 0 || open[1].fd >= 0) {
    int wait = -1;
    if (toStop) {
      const auto left = *setup.stopAfter - std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begin);
      wait = std::max(0, static_cast<int>(left.count()));
    }
    if (poll(open.data(), open.size(), wait) == 0) {
      kill(child, setup.stopSignal);
      toStop = false;
      continue;
    }
    for (std::size_t i = 0; i < open.size(); ++i) {
      if (open[i].fd < 0 || open[i].revents == 0) continue;
      char bytes[4096];
      const ssize_t count = read(open[i].fd, bytes, sizeof bytes);
      if (count > 0)
        (i == 0 ? run.output : run.errors).append(bytes, static_cast<std::size_t>(count));
      else
        open[i].fd = -1;
    }
  }
}

}  // namespace

ProgramRun runProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                      const RunSetup& setup) {
  std::vector<std::string> words = arguments;
  words.insert(words.begin(), program.string());
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);

  Pipe output, errors;
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no child process");
  if (child == 0) become(program.c_str(), pointers.data(), setup, output.ends[1], errors.ends[1]);
  output.closeEnd(1);
  errors.closeEnd(1);

  ProgramRun run;
  follow(child, output, errors, setup, run);
  int status = 0;
  if (waitpid(child, &status, 0) != child) throw std::runtime_error("the child process is lost");
  if (WIFEXITED(status)) run.status = WEXITSTATUS(status);
  if (WIFSIGNALED(status)) run.signal = WTERMSIG(status);
  return run;
}

}  // namespace trv5
