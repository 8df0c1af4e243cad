#include "provision/bounded_process.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

#include "core/errors.h"
#include "core/file_writer.h"

namespace trv5 {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kNoSuchProgram = 127;
constexpr std::size_t kMostErrors = 4096;

[[noreturn]] void cannotRun(const std::string& program, int error) {
  throw UserError(fmt::format("Il programma {} non può essere avviato: {}.", program, reasonOf(error)));
}

class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int number) : m_number(number) {}
  ~Descriptor() { close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int number() const { return m_number; }
  bool open() const { return m_number >= 0; }
  void take(int number) {
    close();
    m_number = number;
  }
  void close() {
    if (m_number >= 0) ::close(m_number);
    m_number = -1;
  }

 private:
  int m_number = -1;
};

struct Pipe {
  Descriptor reader, writer;
  bool make() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) return false;
    reader.take(ends[0]);
    writer.take(ends[1]);
    return true;
  }
};

void bound(int resource, std::size_t most) {
  const rlimit limit{most, most};
  ::setrlimit(static_cast<__rlimit_resource>(resource), &limit);
}

// In the new process: nothing here may allocate or throw.
[[noreturn]] void become(char* const* words, int output, int errors, const ProcessLimits& limits) {
  const int nothing = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
  ::dup2(nothing, STDIN_FILENO);
  ::dup2(output, STDOUT_FILENO);
  ::dup2(errors, STDERR_FILENO);
  bound(RLIMIT_AS, limits.memory);
  bound(RLIMIT_FSIZE, 0);
  bound(RLIMIT_CORE, 0);
  // Beside the clock of its starter, which may be stopped or killed.
  bound(RLIMIT_CPU, static_cast<std::size_t>(limits.time.count() / 1000 + 1));
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
  ::execvp(words[0], words);
  ::_exit(kNoSuchProgram);
}

// The process, ended and collected at the latest when this goes.
class Child {
 public:
  explicit Child(pid_t number) : m_number(number) {}
  ~Child() {
    if (m_number <= 0) return;
    ::kill(m_number, SIGKILL);
    collect();
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;
  int collect() {
    int status = 0;
    while (::waitpid(m_number, &status, 0) < 0 && errno == EINTR) {
    }
    m_number = -1;
    return status;
  }

 private:
  pid_t m_number;
};

// Adds what has arrived; false at the end of the pipe.
bool drain(const Descriptor& pipe, std::string& text, std::size_t most) {
  std::array<char, 65536> bytes;
  const ssize_t got = ::read(pipe.number(), bytes.data(), bytes.size());
  if (got < 0) return errno == EINTR || errno == EAGAIN;
  text.append(bytes.data(), std::min(static_cast<std::size_t>(got), most - std::min(most, text.size())));
  return got > 0;
}

// Reads both pipes to their end, or until a bound is reached.
ProcessEnd::Way readAll(Pipe& output, Pipe& errors, ProcessEnd& end, const ProcessLimits& limits) {
  const Clock::time_point deadline = Clock::now() + limits.time;
  while (output.reader.open() || errors.reader.open()) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    if (left <= 0) return ProcessEnd::Way::TooLate;
    std::array<pollfd, 2> waited = {pollfd{output.reader.number(), POLLIN, 0},
                                    pollfd{errors.reader.number(), POLLIN, 0}};
    if (::poll(waited.data(), waited.size(), static_cast<int>(left)) < 0 && errno != EINTR)
      return ProcessEnd::Way::TooLate;
    if (waited[0].revents != 0 && !drain(output.reader, end.output, limits.output + 1)) output.reader.close();
    if (waited[1].revents != 0 && !drain(errors.reader, end.errors, kMostErrors)) errors.reader.close();
    if (end.output.size() > limits.output) return ProcessEnd::Way::TooMuch;
  }
  return ProcessEnd::Way::Exited;
}

}  // namespace

ProcessEnd runBounded(const std::string& program, const std::vector<std::string>& arguments,
                      const ProcessLimits& limits) {
  std::vector<std::string> kept = {program};
  kept.insert(kept.end(), arguments.begin(), arguments.end());
  std::vector<char*> words;
  for (std::string& word : kept) words.push_back(word.data());
  words.push_back(nullptr);
  Pipe output, errors;
  if (!output.make() || !errors.make()) cannotRun(program, errno);
  const pid_t number = ::fork();
  if (number < 0) cannotRun(program, errno);
  if (number == 0) become(words.data(), output.writer.number(), errors.writer.number(), limits);
  output.writer.close();
  errors.writer.close();
  ProcessEnd end;
  Child child(number);
  end.way = readAll(output, errors, end, limits);
  if (end.way != ProcessEnd::Way::Exited) return end;
  const int status = child.collect();
  end.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  if (!WIFEXITED(status)) end.way = ProcessEnd::Way::BySignal;
  if (end.status == kNoSuchProgram) end.way = ProcessEnd::Way::Missing;
  return end;
}

}  // namespace trv5
