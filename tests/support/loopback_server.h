#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <string_view>
#include <thread>

namespace trv5 {

/// A server on this machine's loopback for tests of fetching: answers each connection as it is told, one after the
/// other, until it goes away.
class LoopbackServer {
 public:
  /// What the server does with one request: the text up to the blank line. Runs in the server's thread.
  class Answer {
   public:
    explicit Answer(int socket, const std::atomic<bool>& ends) : m_socket(socket), m_ends(ends) {}
    /// False once nobody listens any more.
    bool send(std::string_view bytes) const;
    /// A whole answer of http.
    void http(std::string_view status, std::string_view body, std::string_view headers = {}) const;
    /// Waits; false when the server goes away meanwhile.
    bool pause(int milliseconds) const;

   private:
    int m_socket;
    const std::atomic<bool>& m_ends;
  };
  using Handler = std::function<void(const Answer& answer, const std::string& request)>;

  explicit LoopbackServer(Handler handler);
  ~LoopbackServer();
  LoopbackServer(const LoopbackServer&) = delete;
  LoopbackServer& operator=(const LoopbackServer&) = delete;

  /// "http://127.0.0.1:PORT".
  std::string address() const;

 private:
  void serve();

  Handler m_handler;
  int m_listener = -1, m_port = 0;
  std::atomic<bool> m_ends = false;
  std::thread m_thread;
};

/// A port of the loopback on which nothing listens.
int freePort();

}  // namespace trv5
