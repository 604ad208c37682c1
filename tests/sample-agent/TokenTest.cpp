// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Token.h"

#include <filesystem>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "procfs/SystemFile.h"
#include "sample-agent/FixtureTree.h"

namespace quillmark::sample {
namespace {

using test::FixtureTree;

const std::string goodToken = "00112233445566778899aabbccddeeff00112233445566778899aabbccddeeff";

std::string failureOf(const std::string& path) {
  const auto token = loadOrMakeToken(path);
  return token ? "no failure" : token.error().text;
}

TEST(TokenPath, IsSystemWideForRootOnly) {
  EXPECT_EQ(tokenPath(0, "/root"), "/var/run/quillmark/token");
  EXPECT_EQ(tokenPath(1000, "/home/ann"), "/home/ann/.quillmark/token");
}

TEST(LoadOrMakeToken, CreatesAFileForThisUserOnly) {
  const FixtureTree tree;
  const auto token = loadOrMakeToken(tree.path("quillmark/token"));
  ASSERT_TRUE(token) << token.error().text;
  EXPECT_EQ(token->size(), 64U);
  EXPECT_EQ(token->find_first_not_of("0123456789abcdef"), std::string::npos);
  EXPECT_EQ(readSystemFile(tree.path("quillmark/token")), *token);
  EXPECT_EQ(tree.mode("quillmark/token"), 0600U);
  EXPECT_EQ(tree.mode("quillmark"), 0700U);
  EXPECT_EQ(namesIn(tree.path("quillmark")), std::vector<std::string>{"token"})
      << "nothing else is left behind";
}

TEST(LoadOrMakeToken, IgnoresTheUmask) {
  const FixtureTree tree;
  const mode_t former = umask(0277);
  const auto token = loadOrMakeToken(tree.path("token"));
  umask(former);
  ASSERT_TRUE(token) << token.error().text;
  EXPECT_EQ(tree.mode("token"), 0600U);
}

TEST(LoadOrMakeToken, GivesTheSameTokenAgain) {
  const FixtureTree tree;
  const auto first = loadOrMakeToken(tree.path("token"));
  const auto second = loadOrMakeToken(tree.path("token"));
  ASSERT_TRUE(first && second);
  EXPECT_EQ(*first, *second);
}

TEST(LoadOrMakeToken, CreatesAnotherTokenAtAnotherPath) {
  const FixtureTree tree;
  const auto first = loadOrMakeToken(tree.path("a"));
  const auto second = loadOrMakeToken(tree.path("b"));
  ASSERT_TRUE(first && second);
  EXPECT_NE(*first, *second);
}

TEST(LoadOrMakeToken, AcceptsATokenWithTheLineBreakOfAnEditor) {
  const FixtureTree tree;
  tree.write("token", goodToken + "\r\n");
  tree.setMode("token", 0600);
  const auto token = loadOrMakeToken(tree.path("token"));
  ASSERT_TRUE(token) << token.error().text;
  EXPECT_EQ(*token, goodToken);
}

TEST(LoadOrMakeToken, LeavesReadingToAGroup) {
  const FixtureTree tree;
  tree.write("token", goodToken);
  tree.setMode("token", 0640);
  const auto token = loadOrMakeToken(tree.path("token"));
  ASSERT_TRUE(token) << token.error().text;
  EXPECT_EQ(*token, goodToken);
  EXPECT_EQ(tree.mode("token"), 0640U);
}

TEST(LoadOrMakeToken, ReplacesATokenThatOthersMayHaveRead) {
  for (const mode_t mode : {0644U, 0604U, 0660U, 0601U}) {
    const FixtureTree tree;
    tree.write("token", goodToken);
    tree.setMode("token", mode);
    const auto token = loadOrMakeToken(tree.path("token"));
    ASSERT_TRUE(token) << token.error().text;
    EXPECT_EQ(token->size(), goodToken.size());
    EXPECT_NE(*token, goodToken);
    EXPECT_EQ(readSystemFile(tree.path("token")), *token);
    EXPECT_EQ(tree.mode("token"), 0600U);
  }
}

// It is another program's.
TEST(LoadOrMakeToken, KeepsAnotherFileThatOthersMayRead) {
  const FixtureTree tree;
  const auto path = tree.write("token", "no token");
  tree.setMode("token", 0644);
  EXPECT_TRUE(failureOf(path).starts_with(path + ": holds no token of this agent"));
  EXPECT_EQ(readSystemFile(path), "no token");
  EXPECT_EQ(tree.mode("token"), 0644U);
}

TEST(LoadOrMakeToken, KeepsAFileThatIsNoToken) {
  const FixtureTree tree;
  for (const std::string& content :
       {std::string(), std::string("\n"), std::string("secret"), goodToken.substr(1),
        goodToken + '0', goodToken + std::string(100, ' ') + 'x', goodToken.substr(0, 63) + 'G',
        std::string(100, '\xFF')}) {
    const auto path = tree.write("token", content);
    EXPECT_TRUE(failureOf(path).starts_with(path + ": holds no token of this agent")) << content;
    EXPECT_EQ(readSystemFile(path), content);
  }
}

TEST(LoadOrMakeToken, ReadsRegularFilesOnly) {
  const FixtureTree tree;
  EXPECT_EQ(failureOf(tree.folder("folder")), tree.path("folder") + ": not a regular file");
  ASSERT_EQ(mkfifo(tree.path("fifo").c_str(), 0600), 0);
  EXPECT_EQ(failureOf(tree.path("fifo")), tree.path("fifo") + ": not a regular file");
  const auto target = tree.write("target", goodToken);
  EXPECT_EQ(failureOf(tree.link("link", target)), tree.path("link") + ": not a regular file");
  EXPECT_EQ(failureOf(tree.link("dangling", "nowhere")),
            tree.path("dangling") + ": not a regular file");
}

TEST(LoadOrMakeToken, RefusesATokenOfAnotherUser) {
  if (geteuid() != 0) {
    GTEST_SKIP() << "only root can change the owner of a file";
  }
  const FixtureTree tree;
  const auto path = tree.write("token", goodToken);
  ASSERT_EQ(chown(path.c_str(), 1000, 1000), 0);
  EXPECT_EQ(failureOf(path), path + ": belongs to another user");
}

TEST(LoadOrMakeToken, FailsIfNoFileCanBeCreated) {
  const FixtureTree tree;
  tree.write("file", "");
  EXPECT_NE(failureOf(tree.path("file/token")), "no failure");
  EXPECT_NE(failureOf(tree.path("missing/folder/token")), "no failure");
}

TEST(LoadOrMakeToken, GivesOneTokenToAllThatStartAtTheSameTime) {
  for (int round = 0; round < 50; ++round) {
    const FixtureTree tree;
    constexpr std::size_t startCount = 8;
    std::vector<std::string> tokens(startCount);
    {
      std::vector<std::jthread> starts;
      starts.reserve(startCount);
      for (auto& token : tokens) {
        starts.emplace_back([&] {
          const auto result = loadOrMakeToken(tree.path("quillmark/token"));
          token = result ? *result : result.error().text;
        });
      }
    }
    EXPECT_EQ(std::set<std::string>(tokens.begin(), tokens.end()).size(), 1U) << tokens[0];
    EXPECT_EQ(readSystemFile(tree.path("quillmark/token")), tokens[0]);
    EXPECT_EQ(namesIn(tree.path("quillmark")).size(), 1U);
  }
}

}  // namespace
}  // namespace quillmark::sample
