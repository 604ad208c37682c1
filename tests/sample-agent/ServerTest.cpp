// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Server.h"

#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <boost/asio/post.hpp>

#include "sample-agent/RawClient.h"
#include "support/Patience.h"

namespace quillmark::sample {
namespace {

using namespace test;
using boost::asio::ip::tcp;
using std::chrono::milliseconds;

const std::string agentToken = "0123456789abcdef0123456789abcdef";

std::shared_ptr<const Snapshot> snapshotWith(std::string status) {
  return std::make_shared<const Snapshot>(Snapshot{std::move(status), "alerts", "network", "apps"});
}

std::string filler(std::size_t size) { return std::string(size, 'x'); }

/// A server on a free port, with its thread.
class RunningServer {
 public:
  explicit RunningServer(const ServerLimits& limits = {}, bool isReady = true)
      : acceptor_(context_, tcp::endpoint(boost::asio::ip::address_v4::loopback(), 0)),
        port_(acceptor_.local_endpoint().port()),
        server_(std::move(acceptor_), agentToken, limits) {
    if (isReady) {
      server_.publish(snapshotWith("first"));
    }
    thread_ = std::jthread([this] { context_.run(); });
  }
  ~RunningServer() {
    context_.stop();
    thread_.join();
  }

  void publish(const std::shared_ptr<const Snapshot>& snapshot) {
    boost::asio::post(context_, [this, snapshot] { server_.publish(snapshot); });
  }
  [[nodiscard]] std::uint16_t port() const { return port_; }

 private:
  boost::asio::io_context context_;
  boost::asio::executor_work_guard<boost::asio::io_context::executor_type> work_{
      context_.get_executor()};
  tcp::acceptor acceptor_;
  std::uint16_t port_;
  Server server_;
  std::jthread thread_;
};

std::string goodRequest() {
  RequestText request;
  request.token = agentToken;
  return request.text();
}

TEST(Server, AnswersFromTheSnapshot) {
  const RunningServer server;
  const auto answer = ask(server.port(), goodRequest());
  EXPECT_EQ(statusOf(answer), 200);
  EXPECT_EQ(bodyOf(answer), "first");
  EXPECT_NE(answer.find("\r\nContent-Type: application/json\r\n"), std::string::npos) << answer;
  EXPECT_NE(answer.find("\r\nContent-Length: 5\r\n"), std::string::npos) << answer;
  EXPECT_NE(answer.find("\r\nConnection: close\r\n"), std::string::npos) << answer;
  EXPECT_NE(answer.find("\r\nCache-Control: no-store\r\n"), std::string::npos) << answer;
}

TEST(Server, AnswersFromTheNewestSnapshot) {
  RunningServer server;
  EXPECT_EQ(bodyOf(ask(server.port(), goodRequest())), "first");
  server.publish(snapshotWith("second"));
  EXPECT_EQ(bodyOf(ask(server.port(), goodRequest())), "second");
}

TEST(Server, LetsClientsWaitForTheFirstSnapshot) {
  RunningServer server({}, false);
  const RawClient early(server.port());
  ASSERT_TRUE(early.isConnected());
  ASSERT_TRUE(early.send(goodRequest()));
  server.publish(snapshotWith("ready"));
  EXPECT_EQ(bodyOf(early.receiveAll().value_or("")), "ready");
}

TEST(Server, AnswersEachErrorWithItsStatus) {
  const RunningServer server;
  const auto status = [&](const RequestText& request) {
    return statusOf(ask(server.port(), request.text()));
  };
  RequestText good;
  good.token = agentToken;
  auto request = good;
  request.token = "wrong";
  EXPECT_EQ(status(request), 401);
  request = good;
  request.target = "/nothing";
  EXPECT_EQ(status(request), 404);
  request = good;
  request.method = "DELETE";
  EXPECT_EQ(status(request), 405);
  request = good;
  request.method = "UNHEARD-OF";
  EXPECT_EQ(status(request), 405);
  request = good;
  request.host = "evil.example:7823";
  EXPECT_EQ(status(request), 421);
  request = good;
  request.moreFields = "Host: 127.0.0.1:7823\r\n";
  EXPECT_EQ(status(request), 400) << "two hosts";
  request = good;
  request.moreFields = "X-Agent-Token: " + agentToken + "\r\n";
  EXPECT_EQ(status(request), 401) << "two tokens";
  request = good;
  request.moreFields = "Content-Length: 3\r\n";
  request.body = "abc";
  EXPECT_EQ(status(request), 413);
  request.moreFields = "Content-Length: 99999999999\r\n";
  EXPECT_EQ(status(request), 413);
  request.moreFields = "Transfer-Encoding: chunked\r\n";
  request.body = "3\r\nabc\r\n0\r\n\r\n";
  EXPECT_EQ(status(request), 413);
  request = good;
  request.moreFields = "Content-Length: 0\r\n";
  EXPECT_EQ(status(request), 200) << "a length of 0 means no body";
}

TEST(Server, SendsTheFieldsThatAnErrorRequires) {
  const RunningServer server;
  RequestText request;
  EXPECT_NE(ask(server.port(), request.text()).find("\r\nWWW-Authenticate: X-Agent-Token\r\n"),
            std::string::npos);
  request.token = agentToken;
  request.method = "POST";
  EXPECT_NE(ask(server.port(), request.text()).find("\r\nAllow: GET\r\n"), std::string::npos);
}

TEST(Server, SendsNoBodyToHead) {
  const RunningServer server;
  RequestText request;
  request.token = agentToken;
  request.method = "HEAD";
  const auto answer = ask(server.port(), request.text());
  EXPECT_EQ(statusOf(answer), 405);
  EXPECT_TRUE(answer.ends_with("\r\n\r\n")) << answer;
}

TEST(Server, AnswersBytesThatAreNoRequest) {
  const RunningServer server;
  EXPECT_EQ(statusOf(ask(server.port(), "what is this?\r\n\r\n")), 400);
  EXPECT_EQ(statusOf(ask(server.port(), std::string("\0\x16\x03\x01\r\n\r\n", 8))), 400);
  EXPECT_EQ(statusOf(ask(server.port(), "GET /api/status HTTP/1.1\r\nHost : x\r\n\r\n")), 400);
  EXPECT_EQ(statusOf(ask(server.port(), "GET /api/status HTTP/1.1\r\n\r\n")), 400) << "no host";
}

TEST(Server, RefusesAHeaderThatIsTooLarge) {
  const RunningServer server;
  RequestText request;
  request.token = agentToken;
  request.moreFields = "X-Filler: " + filler(7000) + "\r\n";
  EXPECT_EQ(statusOf(ask(server.port(), request.text())), 200);
  request.moreFields = "X-Filler: " + filler(9000) + "\r\n";
  EXPECT_EQ(statusOf(ask(server.port(), request.text())), 431);
  EXPECT_EQ(statusOf(ask(server.port(), "GET /" + filler(9000))), 431) << "a line without an end";
  std::string manyFields;
  for (int i = 0; i < 2000; ++i) {
    manyFields += "A: b\r\n";
  }
  request.moreFields = manyFields;
  EXPECT_EQ(statusOf(ask(server.port(), request.text())), 431);
}

TEST(Server, SendsALargeBodyCompletely) {
  RunningServer server;
  const std::string large = filler(20'000'000);
  server.publish(snapshotWith(large));
  EXPECT_TRUE(bodyOf(ask(server.port(), goodRequest())) == large);
}

TEST(Server, FinishesAnAnswerFromItsOwnSnapshot) {
  RunningServer server;
  const std::string large = filler(20'000'000);
  server.publish(snapshotWith(large));
  const RawClient slow(server.port());
  ASSERT_TRUE(slow.send(goodRequest()));
  // This answer shows that the server has already handled the slow client's request.
  EXPECT_EQ(bodyOf(ask(server.port(), goodRequest())).size(), large.size());
  server.publish(snapshotWith("second"));
  EXPECT_EQ(bodyOf(ask(server.port(), goodRequest())), "second");
  EXPECT_TRUE(bodyOf(slow.receiveAll().value_or("")) == large);
}

TEST(Server, ClosesAConnectionAtItsDeadline) {
  ServerLimits limits;
  limits.deadline = milliseconds(50);
  RunningServer server(limits);
  const RawClient silent(server.port());
  EXPECT_EQ(silent.receiveAll(), "");

  const RawClient slow(server.port());
  ASSERT_TRUE(slow.send("GET /api/status HTTP/1.1\r\n"));
  EXPECT_EQ(slow.receiveAll(), "");

  server.publish(snapshotWith(filler(50'000'000)));
  const RawClient sluggish(server.port());
  ASSERT_TRUE(sluggish.send(goodRequest()));
  EXPECT_LT(sluggish.receiveAll(milliseconds(10)).value_or("").size(), 50'000'000U);
}

TEST(Server, ReceivedBytesDoNotExtendTheDeadline) {
  ServerLimits limits;
  limits.deadline = milliseconds(200);
  const RunningServer server(limits);
  const RawClient trickling(server.port());
  const auto end = std::chrono::steady_clock::now() + quillmark::test::patience();
  while (trickling.send("x") && std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(milliseconds(20));
  }
  EXPECT_LT(std::chrono::steady_clock::now(), end);
}

TEST(Server, ClosesTheOldestConnectionForTheNewest) {
  ServerLimits limits;
  limits.connections = 4;
  limits.deadline = std::chrono::hours(1);
  const RunningServer server(limits);
  std::vector<std::unique_ptr<RawClient>> clients;
  clients.reserve(limits.connections);
  for (int i = 0; i < 4; ++i) {
    clients.push_back(std::make_unique<RawClient>(server.port()));
  }
  EXPECT_EQ(statusOf(ask(server.port(), goodRequest())), 200);
  EXPECT_EQ(clients[0]->receiveAll(), "") << "the oldest was closed";
  for (std::size_t i = 1; i < clients.size(); ++i) {
    ASSERT_TRUE(clients[i]->send(goodRequest()));
    EXPECT_EQ(statusOf(clients[i]->receiveAll().value_or("")), 200) << i;
  }
}

TEST(Server, ServesAtOnceDespiteManySlowConnections) {
  ServerLimits limits;
  limits.deadline = std::chrono::hours(1);
  const RunningServer server(limits);
  constexpr std::size_t slowCount = 400;
  std::vector<std::unique_ptr<RawClient>> slow;
  slow.reserve(slowCount);
  for (std::size_t i = 0; i < slowCount; ++i) {
    slow.push_back(std::make_unique<RawClient>(server.port()));
    ASSERT_TRUE(slow.back()->isConnected());
    slow.back()->send("GET /api/status HTTP/1.1\r\nHost:");
  }
  EXPECT_EQ(statusOf(ask(server.port(), goodRequest())), 200);
}

TEST(Server, DeliversAnErrorToAClientThatIsStillSending) {
  const RunningServer server;
  RequestText request;
  request.token = "wrong";
  request.moreFields = "Content-Length: 60000\r\n";
  request.body = filler(60'000);
  EXPECT_EQ(statusOf(ask(server.port(), request.text())), 401);
}

}  // namespace
}  // namespace quillmark::sample
