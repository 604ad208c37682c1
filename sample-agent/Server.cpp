// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Server.h"

#include <algorithm>
#include <map>
#include <utility>

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/scope_exit.hpp>

#include <sys/resource.h>

#include "AgentAddress.h"
#include "HttpConversation.h"
#include "RequestRule.h"

namespace quillmark::sample {
namespace {

namespace asio = boost::asio;
using asio::ip::tcp;
using ErrorCode = boost::system::error_code;

/// The open connections by number: the oldest is first.
using Connections = std::map<std::uint64_t, std::shared_ptr<tcp::socket>>;

/// How many connections leave descriptors for the scans and the server itself.
std::size_t connectionsWithinDescriptors() {
  constexpr rlim_t reserved = 16;
  rlimit limit{};
  getrlimit(RLIMIT_NOFILE, &limit);
  return limit.rlim_cur > reserved ? limit.rlim_cur - reserved : 1;
}

void closeSocket(tcp::socket& socket) {
  ErrorCode ignored;
  socket.close(ignored);
}

}  // namespace

struct Server::State {
  State(tcp::acceptor listener, std::string secret, ServerLimits serverLimits)
      : acceptor(std::move(listener)), token(std::move(secret)), limits(serverLimits) {
    limits.connections = std::min(limits.connections, connectionsWithinDescriptors());
  }

  tcp::acceptor acceptor;
  const std::string token;
  ServerLimits limits;
  std::shared_ptr<const AnswerBodies> bodies;
  Connections connections;
  std::uint64_t lastNumber = 0;

  static asio::awaitable<void> acceptClients(std::shared_ptr<State> state);
  static asio::awaitable<void> serve(std::shared_ptr<State> state,
                                     std::shared_ptr<tcp::socket> socket);

  /// Closes the oldest connections, because a client that sends its request or reads
  /// its answer slowly is the oldest.
  void makeRoom() {
    while (connections.size() >= limits.connections) {
      closeSocket(*connections.begin()->second);
      connections.erase(connections.begin());
    }
  }
};

asio::awaitable<void> Server::State::acceptClients(std::shared_ptr<State> state) {
  // Accepting usually fails because no descriptor is free. One is when a connection ends.
  constexpr auto pauseAfterError = std::chrono::milliseconds(100);
  const auto executor = state->acceptor.get_executor();
  asio::steady_timer pause(executor);
  ErrorCode error;
  // Named, because GCC 12 may destroy a temporary argument inside a co_await twice.
  auto completion = asio::redirect_error(asio::use_awaitable, error);
  while (state->acceptor.is_open()) {
    auto socket = co_await state->acceptor.async_accept(completion);
    if (error) {
      pause.expires_after(pauseAfterError);
      co_await pause.async_wait(completion);
      continue;
    }
    state->makeRoom();
    auto serving = serve(state, std::make_shared<tcp::socket>(std::move(socket)));
    asio::co_spawn(executor, std::move(serving), asio::detached);
  }
}

asio::awaitable<void> Server::State::serve(std::shared_ptr<State> state,
                                           std::shared_ptr<tcp::socket> socket) {
  const std::uint64_t number = ++state->lastNumber;
  state->connections.emplace(number, socket);
  BOOST_SCOPE_EXIT_ALL(&state, number) { state->connections.erase(number); };
  asio::steady_timer deadline(socket->get_executor(), state->limits.deadline);
  deadline.async_wait([socket](const ErrorCode& cancelled) {
    if (!cancelled) {
      closeSocket(*socket);
    }
  });

  // Keeps the bodies alive: the answer points into them until all of it is sent.
  const auto bodies = state->bodies;
  AnswerRule rule = [&](const Request& request) {
    return answerTo(request, state->token, *bodies);
  };
  auto conversation = serveRequest(*socket, state->limits.headerBytes, std::move(rule));
  co_await std::move(conversation);
}

Server::Server(tcp::acceptor acceptor, std::string token, ServerLimits limits)
    : state_(std::make_shared<State>(std::move(acceptor), std::move(token), limits)) {}

Server::~Server() {
  ErrorCode ignored;
  state_->acceptor.close(ignored);
}

void Server::publish(std::shared_ptr<const AnswerBodies> bodies) {
  const bool isFirst = state_->bodies == nullptr;
  state_->bodies = std::move(bodies);
  if (isFirst) {
    asio::co_spawn(state_->acceptor.get_executor(), State::acceptClients(state_), asio::detached);
  }
}

boost::system::result<tcp::acceptor> listenForClients(asio::io_context& context) {
  const tcp::endpoint address(asio::ip::make_address_v4(agentAddress), agentPort);
  tcp::acceptor acceptor(context);
  ErrorCode error;
  // Allows binding while connections of an earlier run are in TIME_WAIT; another
  // listener is still an error.
  if (acceptor.open(address.protocol(), error) ||
      acceptor.set_option(tcp::acceptor::reuse_address(true), error) ||
      acceptor.bind(address, error) ||
      acceptor.listen(tcp::acceptor::max_listen_connections, error)) {
    return error;
  }
  return acceptor;
}

}  // namespace quillmark::sample
