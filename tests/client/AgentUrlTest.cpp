// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/AgentUrl.h"

#include <string>

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

TEST(AgentUrl, SplitsAUrl) {
  const auto request = quillmark::requestTo("http://127.0.0.2:80/some/path?with=query");
  ASSERT_TRUE(request);
  EXPECT_EQ(request->server.address().to_string(), "127.0.0.2");
  EXPECT_EQ(request->server.port(), 80);
  EXPECT_EQ(request->host, "127.0.0.2:80");
  EXPECT_EQ(request->target, "/some/path?with=query");
  EXPECT_EQ(request->method, "");
  EXPECT_EQ(request->token, "");
}

TEST(AgentUrl, IsNoneForMalformedUrls) {
  for (const std::string text :
       {"", "/api/status", "127.0.0.1:7823", "http://127.0.0.1:7823/a b"}) {
    EXPECT_FALSE(quillmark::requestTo(text)) << text;
  }
}

// Looking up a name would send a request to another server.
TEST(AgentUrl, IsNoneForNamesAndForOtherAddresses) {
  for (const std::string host : {"localhost", "agent.example", "127.0.0.256", "[::1]", ""}) {
    EXPECT_FALSE(quillmark::requestTo("http://" + host + ":7823/api/status")) << host;
  }
}

TEST(AgentUrl, IsNoneWithoutAPort) {
  EXPECT_FALSE(quillmark::requestTo("http://127.0.0.1/api/status"));
}

}  // namespace
}  // namespace quillmark::test
