// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/AccessToken.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "client/WithTokenFiles.h"

namespace quillmark::test {
namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;

class AccessToken : public WithTokenFiles {
 protected:
  /// Creates the folder of the system-wide file, for tests that put something else there.
  static void makeSystemFolder() { fs::create_directories("/var/run/quillmark"); }

  static void expectHomeToken() {
    writeFile(homeTokenPath(), "home");
    EXPECT_EQ(readAccessToken(), "home");
  }
};

TEST_F(AccessToken, IsNoneWithoutAFile) { EXPECT_EQ(readAccessToken(), std::nullopt); }

TEST_F(AccessToken, IsTheSystemTokenFirst) {
  writeFile(systemTokenPath(), "system");
  EXPECT_EQ(readAccessToken(), "system");
  writeFile(homeTokenPath(), "home");
  EXPECT_EQ(readAccessToken(), "system");
}

TEST_F(AccessToken, IsTheHomeTokenOtherwise) { expectHomeToken(); }

TEST_F(AccessToken, HasNoWhiteSpaceAround) {
  for (const std::string space : {"\n", "\r\n", " ", "\t", "\n\n", " \t\r\n\f\v", "\u00A0",
                                  "\u0085", "\u2028", "\u2029", "\u3000"}) {
    writeFile(systemTokenPath(), "token" + space);
    EXPECT_EQ(readAccessToken(), "token") << testing::PrintToString(space);
    writeFile(systemTokenPath(), space + "token" + space);
    EXPECT_EQ(readAccessToken(), "token") << testing::PrintToString(space);
  }
}

TEST_F(AccessToken, HasNoWhiteSpaceAroundInTheHomeEither) {
  writeFile(homeTokenPath(), " \n token\r\n");
  EXPECT_EQ(readAccessToken(), "token");
}

TEST_F(AccessToken, IsOtherwiseUnchanged) {
  for (const auto& token : {"two words\tand\nlines"s, "\uFEFFtoken"s, "\u200Btoken\u200B"s, "a\0b"s,
                            "caf\u00E9 \U0001F600"s, std::string(10000, 'x')}) {
    writeFile(systemTokenPath(), token + "\n");
    EXPECT_EQ(readAccessToken(), token);
  }
}

TEST_F(AccessToken, IsEmptyWhenTheSystemFileIsBlank) {
  writeFile(homeTokenPath(), "home");
  for (const std::string blank : {"", "\n", "\r\n", " \t \n", "\u2003\u2028"}) {
    writeFile(systemTokenPath(), blank);
    EXPECT_EQ(readAccessToken(), "") << testing::PrintToString(blank);
  }
}

TEST_F(AccessToken, IsEmptyWhenTheHomeFileIsBlank) {
  writeFile(homeTokenPath(), "\n");
  EXPECT_EQ(readAccessToken(), "");
}

TEST_F(AccessToken, IsTheHomeTokenWhenTheSystemFileIsNotUtf8) {
  for (const std::string text : {"\xFF", "token\xE9\n", "\xED\xA0\x80", "\n\xC3"}) {
    writeFile(systemTokenPath(), text);
    expectHomeToken();
  }
}

TEST_F(AccessToken, IsNoneWhenNeitherFileIsUtf8) {
  writeFile(systemTokenPath(), "\xFF");
  writeFile(homeTokenPath(), "\xFF");
  EXPECT_EQ(readAccessToken(), std::nullopt);
}

TEST_F(AccessToken, IsTheHomeTokenWhenAFolderHasTheSystemFilesName) {
  fs::create_directories(systemTokenPath());
  expectHomeToken();
}

// Nobody writes to it: reading would wait for ever.
TEST_F(AccessToken, IsTheHomeTokenWhenAFifoHasTheSystemFilesName) {
  makeSystemFolder();
  ASSERT_EQ(mkfifo(systemTokenPath().c_str(), 0600), 0);
  EXPECT_EQ(readAccessToken(), std::nullopt);
  expectHomeToken();
}

TEST_F(AccessToken, IsTheHomeTokenWhenADeviceHasTheSystemFilesName) {
  makeSystemFolder();
  fs::create_symlink("/dev/zero", systemTokenPath());
  expectHomeToken();
}

TEST_F(AccessToken, FollowsLinks) {
  writeFile("/var/run/quillmark/real", "linked\n");
  fs::create_symlink("real", systemTokenPath());
  EXPECT_EQ(readAccessToken(), "linked");
  fs::remove("/var/run/quillmark/real");
  expectHomeToken();
}

TEST_F(AccessToken, HasAFileOfAtMostOneMebibyte) {
  const std::string largest(1 << 20, 'x');
  writeFile(systemTokenPath(), largest);
  EXPECT_TRUE(readAccessToken() == largest);
  writeFile(systemTokenPath(), largest + 'x');
  expectHomeToken();
}

TEST_F(AccessToken, IsReadAgainEachTime) {
  writeFile(systemTokenPath(), "first");
  EXPECT_EQ(readAccessToken(), "first");
  writeFile(systemTokenPath(), "second");
  EXPECT_EQ(readAccessToken(), "second");
}

}  // namespace
}  // namespace quillmark::test
