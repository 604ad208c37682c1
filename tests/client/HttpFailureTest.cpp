// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>
#include <boost/asio/io_context.hpp>

#include <sys/resource.h>
#include <unistd.h>

#include "client/Completion.h"
#include "client/Exchanges.h"

namespace quillmark::test {
namespace {

namespace asio = boost::asio;

class Failure : public WithExecutor {};

HttpResult resultFor(const std::string& answer, HttpLimits limits = {}) {
  return resultWith([&](Connection& connection) { connection.send(answer); }, limits);
}

TEST_F(Failure, IsNotConnectedWithoutAServer) {
  asio::io_context context;
  asio::ip::tcp::acceptor acceptor(context, {asio::ip::address_v4::loopback(), 0});
  const auto port = acceptor.local_endpoint().port();
  acceptor.close();
  EXPECT_EQ(completed(exchange(requestTo(port), {})).error(), HttpFailure::notConnected);
}

// Otherwise requests that a silent agent keeps waiting would use up the descriptors.
TEST_F(Failure, IsNotConnectedWhenTooFewDescriptorsAreLeft) {
  const int lowest = dup(STDIN_FILENO);
  close(lowest);
  rlimit before{};
  getrlimit(RLIMIT_NOFILE, &before);
  const auto withSpare = [&](int descriptors) {
    const rlimit limit{static_cast<rlim_t>(lowest + descriptors), before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &limit);
    const auto result = resultFor(okAnswer("{}"));
    setrlimit(RLIMIT_NOFILE, &before);
    return result;
  };
  EXPECT_EQ(withSpare(16).error(), HttpFailure::notConnected);
  EXPECT_TRUE(withSpare(40));
}

TEST_F(Failure, IsBrokenOffForAnIncompleteAnswer) {
  for (const std::string answer :
       {"", "HTTP/1.1 200 OK\r\nContent-Le", "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nbody"}) {
    EXPECT_EQ(resultFor(answer).error(), HttpFailure::connectionLost) << answer;
  }
}

TEST_F(Failure, IsMalformedForAnotherProtocol) {
  EXPECT_EQ(resultFor("SSH-2.0-Server\r\n").error(), HttpFailure::malformed);
}

TEST_F(Failure, IsTooLargeForALongHeaderOrBody) {
  HttpLimits limits;
  limits.headerBytes = 1024;
  limits.bodyBytes = 10;
  const std::string field = "X-Long: " + std::string(2000, 'x') + "\r\n";
  EXPECT_EQ(resultFor(answer("200 OK", "{}", field), limits).error(), HttpFailure::tooLarge);
  EXPECT_EQ(resultFor(okAnswer("twelve bytes"), limits).error(), HttpFailure::tooLarge);
}

TEST_F(Failure, IsNoneForAnErrorStatus) {
  const auto result = resultFor(answer("503 Service Unavailable", "body"));
  ASSERT_TRUE(result);
  EXPECT_EQ(result->status, 503U);
  EXPECT_EQ(result->body, "body");
}

}  // namespace
}  // namespace quillmark::test
