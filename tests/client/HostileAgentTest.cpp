// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <boost/asio/io_context.hpp>

#include "client/Completion.h"
#include "client/HostileAnswers.h"
#include "client/IPCClient.h"
#include "client/WithTokenFiles.h"
#include "support/Backend.h"
#include "support/Bodies.h"

namespace quillmark::test {
namespace {

namespace asio = boost::asio;
using asio::ip::tcp;

constexpr auto theRequest =
    "GET /api/status HTTP/1.1\r\nHost: 127.0.0.1:7823\r\nX-Agent-Token: token\r\n"
    "Connection: close\r\n\r\n";

/// A server to which a client could be redirected; connections stay in its queue.
class Elsewhere {
 public:
  explicit Elsewhere(const char* address)
      : acceptor_(context_, tcp::endpoint(asio::ip::make_address(address), 0)) {
    acceptor_.non_blocking(true);
  }

  [[nodiscard]] std::string url() const {
    const auto place = acceptor_.local_endpoint();
    return "http://" + place.address().to_string() + ':' + std::to_string(place.port());
  }

  [[nodiscard]] bool isUntouched() {
    boost::system::error_code error;
    static_cast<void>(acceptor_.accept(error));
    return error == asio::error::would_block;
  }

 private:
  asio::io_context context_;
  tcp::acceptor acceptor_;
};

/// A client with a token, and a server on the agent's port that sends what a test sets
/// or good answers.
class HostileAgent : public WithTokenFiles {
 protected:
  HostileAgent() { writeFile(systemTokenPath(), "token\n"); }

  [[nodiscard]] std::optional<AgentStatus> statusFrom(Backend::Handler handler) {
    set(std::move(handler));
    return completed(client().getStatus());
  }

  /// Expects that the agent got only `asked` requests, and that the client still accepts
  /// a good answer.
  void expectNoHarm(std::size_t asked) {
    EXPECT_EQ(backend_.requests().size(), asked);
    EXPECT_EQ(statusFrom(good), goodStatus);
    for (const auto& request : backend_.requests()) {
      EXPECT_EQ(request.text, theRequest);
    }
    EXPECT_EQ(backend_.connections(), static_cast<int>(asked) + 1);
    EXPECT_TRUE(otherPort_.isUntouched());
    EXPECT_TRUE(otherHost_.isUntouched());
  }

  void expectEach(const std::vector<HostileAnswer>& answers) {
    std::size_t asked = backend_.requests().size();
    for (const auto& answer : answers) {
      SCOPED_TRACE(testing::PrintToString(answer.what));
      // A copy: the client may return before the server thread has sent everything.
      const auto status =
          statusFrom([bytes = answer.bytes](const ReceivedRequest&, Connection& connection) {
            connection.send(bytes);
          });
      const bool isRecord = answer.yields == HostileAnswer::Yields::theRecord;
      EXPECT_EQ(status, isRecord ? std::optional(goodStatus) : std::nullopt);
      expectNoHarm(++asked);
      ++asked;
    }
  }

  [[nodiscard]] std::array<std::string, 2> otherPlaces() const {
    return {otherPort_.url(), otherHost_.url()};
  }

  static constexpr auto good = [](const ReceivedRequest&, Connection& connection) {
    connection.send(okAnswer(statusBody));
  };

 private:
  const IPCClient& client() {
    if (!client_) {
      client_.emplace();
    }
    return *client_;
  }

  void set(Backend::Handler handler) {
    const std::lock_guard lock(mutex_);
    handler_ = std::move(handler);
  }
  Backend::Handler handler() {
    const std::lock_guard lock(mutex_);
    return handler_;
  }

  const AgentStatus goodStatus{true, 3, "none", "ok", "2024-01-15T10:30:00Z"};
  std::mutex mutex_;
  Backend::Handler handler_;
  std::optional<IPCClient> client_;
  Elsewhere otherPort_{"127.0.0.1"};
  Elsewhere otherHost_{"127.0.0.2"};
  Backend backend_{[this](const ReceivedRequest& request, Connection& connection) {
    handler()(request, connection);
  }};
};

TEST_F(HostileAgent, CannotRedirectTheClientByAStatus) {
  for (const auto& place : otherPlaces()) {
    expectEach(answersOfEveryStatus(statusBody, place));
  }
}

TEST_F(HostileAgent, CannotRedirectTheClientByAField) {
  for (const auto& place : otherPlaces()) {
    expectEach(answersWithDemands(statusBody, place));
  }
}

TEST_F(HostileAgent, FramesItsAnswersInEveryWay) { expectEach(answersInEveryFraming(statusBody)); }

TEST_F(HostileAgent, EncodesItsAnswersInEveryWay) {
  expectEach(answersInEveryEncoding(statusBody));
}

TEST_F(HostileAgent, UsesAnotherProtocol) { expectEach(answersOfOtherProtocols(statusBody)); }

TEST_F(HostileAgent, ResetsTheConnectionAfterAnyByte) {
  const std::string answer = okAnswer(statusBody);
  for (std::size_t size = 0; size < answer.size(); ++size) {
    EXPECT_EQ(statusFrom(
                  [begin = answer.substr(0, size)](const ReceivedRequest&, Connection& connection) {
                    connection.send(begin);
                    connection.reset();
                  }),
              std::nullopt)
        << size;
  }
  expectNoHarm(answer.size());
}

}  // namespace
}  // namespace quillmark::test
