// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <boost/asio/io_context.hpp>

#include "client/Exchanges.h"

namespace quillmark::test {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
namespace asio = boost::asio;
using Clock = std::chrono::steady_clock;

class HttpTime : public WithExecutor {};

constexpr HttpLimits shortTime{.time = 200ms};

TEST_F(HttpTime, IsAMinuteByDefault) { EXPECT_EQ(HttpLimits{}.time, 1min); }

TEST_F(HttpTime, EndsTheExchangeWhereverTheServerStopsSending) {
  const std::string header = "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n";
  const std::string chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
  for (const auto& said :
       {""s, "H"s, "HTTP/1.1 200 OK\r\n"s, "HTTP/1.1 200 OK\r\nContent-Le"s, header, header + "bod",
        chunked, chunked + "4", chunked + "4\r\nbo", chunked + "4\r\nbody\r\n0\r\n",
        "HTTP/1.1 200 OK\r\n\r\nbody"s, "HTTP/1.1 100 Continue\r\n\r\n"s}) {
    const auto start = Clock::now();
    EXPECT_EQ(exchangeForKept(said, shortTime), noBody) << said;
    EXPECT_GE(Clock::now() - start, shortTime.time) << said;
  }
}

// A server with a full queue neither accepts nor refuses a connection.
TEST_F(HttpTime, EndsAConnectionThatIsNotAccepted) {
  asio::io_context context;
  asio::ip::tcp::acceptor acceptor(context);
  acceptor.open(asio::ip::tcp::v4());
  acceptor.bind({asio::ip::address_v4::loopback(), 0});
  acceptor.listen(0);
  std::vector<asio::ip::tcp::socket> queue;
  for (int i = 0; i < 4; ++i) {
    queue.emplace_back(context).open(asio::ip::tcp::v4());
    // Starts at once, although no thread runs the context.
    queue.back().async_connect(acceptor.local_endpoint(), [](boost::system::error_code) {});
  }
  const auto start = Clock::now();
  EXPECT_EQ(exchangeWith(acceptor.local_endpoint().port(), shortTime), noBody);
  EXPECT_GE(Clock::now() - start, shortTime.time);
}

// Otherwise an agent that sends a byte now and then would hold the connection for ever.
TEST_F(HttpTime, IsNotProlongedByBytes) {
  for (const auto& said : {"HTTP/1.1 200 OK\r\nX: "s, "HTTP/1.1 200 OK\r\n\r\n"s}) {
    const auto result = resultWith(
        [&](Connection& connection) {
          for (bool isOpen = connection.send(said); isOpen; isOpen = connection.send("x")) {
            connection.pause(10ms);
          }
        },
        shortTime);
    ASSERT_TRUE(result.has_error());
    EXPECT_EQ(result.error(), HttpFailure::timedOut) << said;
  }
}

TEST_F(HttpTime, OfWaitingBlocksNoThread) {
  const Backend silent(
      [](const ReceivedRequest&, Connection& connection) { connection.staySilent(); }, 0);
  std::vector<std::future<Body>> waiting;
  for (int i = 0; i < 50; ++i) {
    waiting.push_back(startExchange(requestTo(silent.port())));
  }
  while (silent.requests().size() < waiting.size()) {
    std::this_thread::yield();
  }
  EXPECT_EQ(exchangeFor(okAnswer("body")), "body");
  for (auto& each : waiting) {
    EXPECT_EQ(each.wait_for(0s), std::future_status::timeout) << "still waiting";
  }
}

}  // namespace
}  // namespace quillmark::test
