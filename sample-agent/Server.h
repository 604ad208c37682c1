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

#include "Snapshot.h"

namespace quillmark::sample {

/// What clients may cost, each and all together.
struct ServerLimits {
  std::uint32_t headerBytes = 8 * 1024;
  std::size_t connections = 64;  ///< beyond it the oldest is closed for the newest
  std::chrono::steady_clock::duration deadline = std::chrono::seconds(10);  ///< of a connection
};

/// A socket that listens on the agent's address; the error when it is taken.
[[nodiscard]] boost::system::result<boost::asio::ip::tcp::acceptor> listenForClients(
    boost::asio::io_context& context);

/// Answers HTTP requests from the last published snapshot, one request to a
/// connection. Clients that come before the first snapshot wait for it. All of
/// it belongs to the one thread that runs the acceptor's context.
class Server final {
 public:
  Server(boost::asio::ip::tcp::acceptor acceptor, std::string token, ServerLimits limits = {});
  ~Server();  ///< takes no more clients; those that are there are served to the end
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

  /// From now on requests are answered from `snapshot`.
  void publish(std::shared_ptr<const Snapshot> snapshot);

 private:
  struct State;
  std::shared_ptr<State> state_;
};

}  // namespace quillmark::sample
