// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/system/result.hpp>

#include "AnswerBodies.h"

namespace quillmark::sample {

/// Limits for each client and for all clients together.
struct ServerLimits {
  std::uint32_t headerBytes = 8 * 1024;
  std::size_t connections = 64;  ///< beyond this the oldest is closed; fewer if descriptors are few
  std::chrono::steady_clock::duration deadline = std::chrono::seconds(10);  ///< of a connection
};

/// A socket that listens on the agent's address; an error if, say, it is in use.
[[nodiscard]] boost::system::result<boost::asio::ip::tcp::acceptor> listenForClients(
    boost::asio::io_context& context);

/// Answers HTTP requests with the last published bodies, one request per
/// connection. Clients that connect before the first ones wait for them. For use
/// on the one thread that runs the acceptor's context.
class Server final {
 public:
  Server(boost::asio::ip::tcp::acceptor acceptor, std::string token, ServerLimits limits = {});
  ~Server();  ///< accepts no more clients; open connections are still served
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

  /// From now on requests are answered with `bodies`.
  void publish(std::shared_ptr<const AnswerBodies> bodies);

 private:
  struct State;
  std::shared_ptr<State> state_;
};

}  // namespace quillmark::sample
