#include "support/ftp_server.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <csignal>
#include <stdexcept>
#include <vector>

#include "support/loopback_server.h"

extern char** environ;

namespace trv5 {

FtpServer::FtpServer(const std::string& python, const std::filesystem::path& folder)
    : m_port(std::to_string(freePort())) {
  std::string arguments[] = {python, "-m", "pyftpdlib", "-i", "127.0.0.1", "-p", m_port, "-d", folder.string()};
  std::vector<char*> pointers;
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  posix_spawn_file_actions_t quiet;
  posix_spawn_file_actions_init(&quiet);
  posix_spawn_file_actions_addopen(&quiet, 2, "/dev/null", O_WRONLY, 0);
  const int failed = posix_spawn(&m_child, python.c_str(), &quiet, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&quiet);
  if (failed != 0) throw std::runtime_error("no ftp server");
}

FtpServer::~FtpServer() {
  kill(m_child, SIGTERM);
  waitpid(m_child, nullptr, 0);
}

}  // namespace trv5
