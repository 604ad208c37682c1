// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "client/AllGets.h"
#include "client/WithTokenFiles.h"
#include "support/Bodies.h"

namespace quillmark::test {
namespace {

using namespace std::string_literals;

class IPCClientToken : public WithTokenFiles {
 protected:
  Backend backend{goodAnswers()};

  /// Runs all four operations, and returns the tokens that arrived.
  std::vector<std::string> tokensOf(const IPCClient& client) const {
    const std::size_t before = backend.requests().size();
    static_cast<void>(getAll(client));
    std::vector<std::string> tokens;
    const auto requests = backend.requests();
    for (std::size_t i = before; i < requests.size(); ++i) {
      const std::string& text = requests[i].text;
      const auto start = text.find("X-Agent-Token: ") + 15;
      tokens.push_back(text.substr(start, text.find("\r\n", start) - start));
    }
    return tokens;
  }

  static std::vector<std::string> fourTimes(const std::string& token) {
    return {token, token, token, token};
  }

  void expectNothingSent(const IPCClient& client) const {
    EXPECT_EQ(getAll(client), AllGets{});
    EXPECT_EQ(connectionsSoFar(backend), 0);
  }
};

TEST_F(IPCClientToken, IsSentWithoutItsLineBreak) {
  writeFile(systemTokenPath(), "system-token\n");
  const IPCClient client;
  EXPECT_EQ(tokensOf(client), fourTimes("system-token"));
}

TEST_F(IPCClientToken, IsTheHomeTokenOtherwise) {
  writeFile(homeTokenPath(), "home-token\r\n");
  const IPCClient client;
  EXPECT_EQ(tokensOf(client), fourTimes("home-token"));
}

TEST_F(IPCClientToken, IsSentEmptyWhenTheSystemFileIsBlank) {
  writeFile(systemTokenPath(), "\n");
  writeFile(homeTokenPath(), "home-token");
  const IPCClient client;
  EXPECT_EQ(tokensOf(client), fourTimes(""));
  EXPECT_NE(getAll(client).status, std::nullopt)
      << "the agent decides whether it accepts the token";
}

TEST_F(IPCClientToken, IsSentUnchanged) {
  for (const std::string token : {"two words", "a\tb", "caf\u00E9 \U0001F600", "\uFEFFtoken"}) {
    writeFile(systemTokenPath(), token);
    const IPCClient client;
    EXPECT_EQ(tokensOf(client), fourTimes(token));
  }
}

TEST_F(IPCClientToken, MayBeLong) {
  const std::string token(1'000'000, 'x');
  writeFile(systemTokenPath(), token);
  const IPCClient client;
  EXPECT_EQ(tokensOf(client), fourTimes(token));
}

TEST_F(IPCClientToken, IfMissingPreventsAllRequests) {
  const IPCClient client;
  expectNothingSent(client);
}

TEST_F(IPCClientToken, WithControlCharactersPreventsAllRequests) {
  for (const auto& token :
       {"two\nlines"s, "token\r\nHost: elsewhere"s, "a\0b"s, "a\x1B[0m"s, "a\x7F"s}) {
    writeFile(systemTokenPath(), token);
    const IPCClient client;
    EXPECT_EQ(getAll(client), AllGets{});
  }
  EXPECT_EQ(connectionsSoFar(backend), 0);
}

TEST_F(IPCClientToken, IsReadOnlyOnce) {
  writeFile(systemTokenPath(), "first");
  const IPCClient client;
  writeFile(systemTokenPath(), "second");
  EXPECT_EQ(tokensOf(client), fourTimes("first"));
  removeTokens();
  EXPECT_EQ(tokensOf(client), fourTimes("first"));

  writeFile(systemTokenPath(), "third");
  const IPCClient another;
  EXPECT_EQ(tokensOf(another), fourTimes("third"));
  EXPECT_EQ(tokensOf(client), fourTimes("first"));
}

TEST_F(IPCClientToken, IfMissingAtFirstIsNotReadLater) {
  const IPCClient client;
  writeFile(systemTokenPath(), "late");
  writeFile(homeTokenPath(), "late");
  expectNothingSent(client);
}

using IPCClientBeforeTheAgent = WithTokenFiles;

TEST_F(IPCClientBeforeTheAgent, WithoutATokenSendsNothingWhenTheAgentStarts) {
  const IPCClient client;
  EXPECT_EQ(getAll(client), AllGets{});
  writeFile(systemTokenPath(), "token");
  const Backend backend(goodAnswers());
  EXPECT_EQ(getAll(client), AllGets{});
  EXPECT_EQ(connectionsSoFar(backend), 0);

  const IPCClient restarted;
  EXPECT_NE(getAll(restarted).status, std::nullopt);
}

TEST_F(IPCClientBeforeTheAgent, WithATokenYieldsRecordsWhenTheAgentStarts) {
  writeFile(systemTokenPath(), "token");
  const IPCClient client;
  EXPECT_EQ(getAll(client), AllGets{});
  const Backend backend(goodAnswers());
  EXPECT_NE(getAll(client).status, std::nullopt);
}

}  // namespace
}  // namespace quillmark::test
