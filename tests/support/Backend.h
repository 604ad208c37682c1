// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>

namespace quillmark::test {

/// A request as received, byte for byte.
struct ReceivedRequest {
  std::string text;  ///< request line and header, as sent

  [[nodiscard]] std::string target() const;
};

/// One connection, for its handler. The handler may send any bytes, in pieces, and
/// wait; the connection is closed when it returns.
class Connection {
 public:
  Connection(boost::asio::ip::tcp::socket& socket, const std::atomic<bool>& stopping)
      : socket_(socket), stopping_(stopping) {}

  /// False if the peer has closed the connection.
  bool send(std::string_view bytes);
  /// Waits for `time`, or until the backend stops.
  void pause(std::chrono::milliseconds time) const;
  /// Waits until the peer closes the connection or the backend stops.
  void staySilent();
  /// Makes the connection end with a reset, not an orderly close, when the handler
  /// returns.
  void reset();
  [[nodiscard]] bool resets() const { return resets_; }

 private:
  boost::asio::ip::tcp::socket& socket_;
  const std::atomic<bool>& stopping_;
  bool resets_ = false;
};

/// A complete 200 answer with this JSON body.
[[nodiscard]] std::string okAnswer(std::string_view body);
/// A complete answer; `status` ends its status line, such as "401 Unauthorized".
[[nodiscard]] std::string answer(std::string_view status, std::string_view body,
                                 std::string_view extraHeader = "");

/// A real server on 127.0.0.1 with one thread per connection, which passes each
/// request to a handler. Port 0 means any free port.
class Backend final {
 public:
  using Handler = std::function<void(const ReceivedRequest&, Connection&)>;

  static constexpr std::uint16_t agentPort = 7823;

  explicit Backend(Handler handler, std::uint16_t port = agentPort);
  /// Answers each target with its raw text, and all others with 404.
  explicit Backend(std::map<std::string, std::string> answers, std::uint16_t port = agentPort);
  ~Backend();
  Backend(const Backend&) = delete;
  Backend& operator=(const Backend&) = delete;

  [[nodiscard]] std::uint16_t port() const { return port_; }
  [[nodiscard]] std::vector<ReceivedRequest> requests() const;
  /// How many connections were opened, including those without a request.
  [[nodiscard]] int connections() const { return connectionCount_; }

 private:
  void acceptAll();
  void serve(boost::asio::ip::tcp::socket& socket);

  Handler handler_;
  boost::asio::io_context context_;
  boost::asio::ip::tcp::acceptor acceptor_;
  std::uint16_t port_ = 0;
  std::atomic<bool> stopping_ = false;
  std::atomic<int> connectionCount_ = 0;
  mutable std::mutex mutex_;
  std::vector<ReceivedRequest> requests_;
  std::list<boost::asio::ip::tcp::socket> sockets_;
  std::list<std::thread> connectionThreads_;
  std::thread acceptThread_;
};

}  // namespace quillmark::test
