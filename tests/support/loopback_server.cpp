#include "support/loopback_server.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <stdexcept>

namespace trv5 {
namespace {

constexpr int kBriefly = 20;  // milliseconds

// A socket on a free port of the loopback, and that port.
std::pair<int, int> boundSocket() {
  const int made = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  auto* const plain = reinterpret_cast<sockaddr*>(&address);
  if (made < 0 || bind(made, plain, size) != 0 || getsockname(made, plain, &size) != 0)
    throw std::runtime_error("no port of the loopback");
  return {made, ntohs(address.sin_port)};
}

bool canRead(int socket) {
  pollfd waiting{socket, POLLIN, 0};
  return poll(&waiting, 1, kBriefly) > 0;
}

}  // namespace

bool LoopbackServer::Answer::send(std::string_view bytes) const {
  while (!bytes.empty() && !m_ends) {
    pollfd waiting{m_socket, POLLOUT, 0};
    if (poll(&waiting, 1, kBriefly) == 0) continue;
    const ssize_t sent = ::send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return !m_ends;
}

void LoopbackServer::Answer::http(std::string_view status, std::string_view body, std::string_view headers) const {
  send("HTTP/1.1 " + std::string(status) + "\r\nConnection: close\r\nContent-Length: " + std::to_string(body.size()) +
       "\r\n" + std::string(headers) + "\r\n" + std::string(body));
}

bool LoopbackServer::Answer::pause(int milliseconds) const {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
  while (!m_ends && std::chrono::steady_clock::now() < end) std::this_thread::sleep_for(std::chrono::milliseconds(2));
  return !m_ends;
}

LoopbackServer::LoopbackServer(Handler handler) : m_handler(std::move(handler)) {
  std::tie(m_listener, m_port) = boundSocket();
  if (listen(m_listener, 8) != 0) throw std::runtime_error("the loopback doesn't listen");
  m_thread = std::thread([this] { serve(); });
}

LoopbackServer::~LoopbackServer() {
  m_ends = true;
  m_thread.join();
  close(m_listener);
}

std::string LoopbackServer::address() const {
  return "http://127.0.0.1:" + std::to_string(m_port);
}

void LoopbackServer::serve() {
  while (!m_ends) {
    if (!canRead(m_listener)) continue;
    const int connection = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0) continue;
    std::string request;
    char piece[4096];
    while (!m_ends && request.find("\r\n\r\n") == std::string::npos) {
      if (!canRead(connection)) continue;
      const ssize_t got = recv(connection, piece, sizeof piece, 0);
      if (got <= 0) break;
      request.append(piece, static_cast<std::size_t>(got));
    }
    if (request.find("\r\n\r\n") != std::string::npos) m_handler(Answer(connection, m_ends), request);
    shutdown(connection, SHUT_RDWR);
    close(connection);
  }
}

int freePort() {
  const auto [made, port] = boundSocket();
  close(made);
  return port;
}

}  // namespace trv5
