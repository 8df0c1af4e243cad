#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>

namespace trv5 {

/// The ftp server of a package, pyftpdlib, on a folder of the test and a free port of the loopback. It takes a moment
/// until it listens.
class FtpServer {
 public:
  FtpServer(const std::string& python, const std::filesystem::path& folder);
  ~FtpServer();
  FtpServer(const FtpServer&) = delete;
  FtpServer& operator=(const FtpServer&) = delete;

  /// "ftp://127.0.0.1:PORT".
  std::string address() const { return "ftp://127.0.0.1:" + m_port; }

 private:
  std::string m_port;
  pid_t m_child = -1;
};

}  // namespace trv5
