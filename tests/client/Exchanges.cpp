// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/Exchanges.h"

#include <utility>

#include "client/Completion.h"

namespace quillmark::test {

using namespace std::chrono_literals;

namespace {

boost::asio::awaitable<Body> bodyOf(HttpRequest request, HttpLimits limits) {
  auto exchanged = exchange(std::move(request), limits);
  auto answer = co_await std::move(exchanged);
  if (!answer) {
    co_return noBody;
  }
  co_return std::move(answer->body);
}

}  // namespace

HttpRequest requestTo(std::uint16_t port, std::string target) {
  return {.server = {boost::asio::ip::address_v4::loopback(), port},
          .host = "127.0.0.1:" + std::to_string(port),
          .method = "GET",
          .target = std::move(target),
          .token = "secret"};
}

std::future<Body> startExchange(HttpRequest request, HttpLimits limits) {
  return started(bodyOf(std::move(request), limits));
}

HttpResult resultWith(const std::function<void(Connection&)>& behaviour, HttpLimits limits) {
  const Backend backend(
      [&](const ReceivedRequest&, Connection& connection) { behaviour(connection); }, 0);
  return completed(exchange(requestTo(backend.port()), limits));
}

Body exchangeWith(std::uint16_t port, HttpLimits limits) {
  return startExchange(requestTo(port), limits).get();
}

Body exchangeWith(const std::function<void(Connection&)>& behaviour, HttpLimits limits) {
  const Backend backend(
      [&](const ReceivedRequest&, Connection& connection) { behaviour(connection); }, 0);
  return exchangeWith(backend.port(), limits);
}

Body exchangeFor(std::string answer, HttpLimits limits) {
  return exchangeWith([&](Connection& connection) { connection.send(answer); }, limits);
}

Body exchangeForKept(std::string answer, HttpLimits limits) {
  return exchangeWith(
      [&](Connection& connection) {
        connection.send(answer);
        connection.staySilent();
      },
      limits);
}

std::vector<Body> exchangesCutAtEveryByte(const std::string& answer,
                                          const std::function<void(Connection&)>& end) {
  const Backend backend(
      [&](const ReceivedRequest& request, Connection& connection) {
        const auto cut = std::stoul(request.target().substr(1));
        connection.send(std::string_view(answer).substr(0, cut));
        // So that the client most likely reads it before the connection ends.
        connection.pause(50ms);
        end(connection);
      },
      0);
  std::vector<std::future<Body>> exchanges;
  for (std::size_t cut = 0; cut < answer.size(); ++cut) {
    exchanges.push_back(startExchange(requestTo(backend.port(), '/' + std::to_string(cut))));
  }
  std::vector<Body> bodies;
  for (auto& each : exchanges) {
    bodies.push_back(each.get());
  }
  return bodies;
}

int connectionsSoFar(const Backend& backend) {
  EXPECT_NE(exchangeWith(backend.port()), noBody);
  return backend.connections() - 1;
}

}  // namespace quillmark::test
