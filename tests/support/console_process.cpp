#include "support/console_process.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace trv5 {

ConsoleProcess::ConsoleProcess(const std::filesystem::path& program, const std::filesystem::path& userData) {
  int to[2], from[2];
  if (pipe2(to, O_CLOEXEC) != 0 || pipe2(from, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  signal(SIGPIPE, SIG_IGN);  // a program that ended early is told by its missing answer
  m_child = fork();
  if (m_child < 0) throw std::runtime_error("no child process");
  if (m_child == 0) {
    dup2(to[0], STDIN_FILENO);
    dup2(from[1], STDOUT_FILENO);
    setenv("XDG_DATA_HOME", userData.c_str(), 1);
    execl(program.c_str(), program.c_str(), nullptr);
    _exit(127);
  }
  close(to[0]);
  close(from[1]);
  m_input = to[1];
  m_output = from[0];
}

ConsoleProcess::~ConsoleProcess() {
  finish();
}

void ConsoleProcess::send(const std::string& line) {
  const std::string bytes = line + "\n";
  std::size_t sent = 0;
  while (sent < bytes.size()) {
    const ssize_t count = write(m_input, bytes.data() + sent, bytes.size() - sent);
    if (count <= 0) throw std::runtime_error("the program ended before: " + line);
    sent += static_cast<std::size_t>(count);
  }
}

std::string ConsoleProcess::readLine() {
  for (;;) {
    if (const auto end = m_read.find('\n'); end != std::string::npos) {
      std::string line = m_read.substr(0, end);
      m_read.erase(0, end + 1);
      return line;
    }
    char bytes[65536];
    const ssize_t count = read(m_output, bytes, sizeof bytes);
    if (count <= 0) throw std::runtime_error("the program ended without an answer");
    m_read.append(bytes, static_cast<std::size_t>(count));
  }
}

nlohmann::json ConsoleProcess::sayText(const std::string& line) {
  send(line);
  return nlohmann::json::parse(readLine());
}

nlohmann::json ConsoleProcess::understood(const std::string& line) {
  nlohmann::json answer = sayText(line);
  if (!answer.at("ok").get<bool>()) throw std::runtime_error(line + ": " + answer.at("error").get<std::string>());
  return answer;
}

int ConsoleProcess::finish() {
  if (m_child < 0) return -1;
  close(m_input);
  close(m_output);
  int status = 0;
  const pid_t ended = waitpid(m_child, &status, 0);
  m_child = -1;
  return ended > 0 && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace trv5
