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

class HttpSilence : public WithExecutor {};

constexpr HttpLimits shortSilence{.silence = 200ms};

TEST_F(HttpSilence, MayLastAMinuteUnlessToldOtherwise) { EXPECT_EQ(HttpLimits{}.silence, 1min); }

TEST_F(HttpSilence, EndsTheExchangeWhereverItBegins) {
  const std::string header = "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n";
  const std::string chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
  for (const auto& said :
       {""s, "H"s, "HTTP/1.1 200 OK\r\n"s, "HTTP/1.1 200 OK\r\nContent-Le"s, header, header + "bod",
        chunked, chunked + "4", chunked + "4\r\nbo", chunked + "4\r\nbody\r\n0\r\n",
        "HTTP/1.1 200 OK\r\n\r\nbody"s, "HTTP/1.1 100 Continue\r\n\r\n"s}) {
    const auto start = Clock::now();
    EXPECT_EQ(exchangeForKept(said, shortSilence), noBody) << said;
    EXPECT_GE(Clock::now() - start, shortSilence.silence) << said;
  }
}

// A server with a full queue lets nobody in, and says nothing about it.
TEST_F(HttpSilence, EndsAConnectionThatIsNotMade) {
  asio::io_context context;
  asio::ip::tcp::acceptor acceptor(context);
  acceptor.open(asio::ip::tcp::v4());
  acceptor.bind({asio::ip::address_v4::loopback(), 0});
  acceptor.listen(0);
  std::vector<asio::ip::tcp::socket> queue;
  for (int i = 0; i < 4; ++i) {
    queue.emplace_back(context).open(asio::ip::tcp::v4());
    // Under way at once, though nobody waits for it.
    queue.back().async_connect(acceptor.local_endpoint(), [](boost::system::error_code) {});
  }
  const auto start = Clock::now();
  EXPECT_EQ(exchangeWith(acceptor.local_endpoint().port(), shortSilence), noBody);
  EXPECT_GE(Clock::now() - start, shortSilence.silence);
}

// The limit is one of silence, not of the whole: a slow server may take longer.
TEST_F(HttpSilence, IsBrokenByEveryByte) {
  constexpr HttpLimits limits{.silence = 2s};
  constexpr auto pause = 100ms;
  const std::string answer = okAnswer("body");
  const std::size_t pauses = 25;
  static_assert(pauses * pause > limits.silence);
  ASSERT_GT(answer.size(), pauses);

  const auto body = exchangeWith(
      [&](Connection& connection) {
        connection.send(answer.substr(0, answer.size() - pauses));
        for (const char byte : answer.substr(answer.size() - pauses)) {
          connection.pause(pause);
          connection.send({&byte, 1});
        }
      },
      limits);
  EXPECT_EQ(body, "body");
}

TEST_F(HttpSilence, TakesNoThread) {
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
