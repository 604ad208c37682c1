// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HomeDirectory.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include <unistd.h>

namespace quillmark::test {
namespace {

/// Gives every test an environment whose HOME it may change.
class HomeDirectory : public testing::Test {
 protected:
  HomeDirectory() {
    if (const char* const home = std::getenv("HOME")) {
      before_ = home;
    }
  }
  ~HomeDirectory() override {
    if (before_) {
      setenv("HOME", before_->c_str(), 1);
    } else {
      unsetenv("HOME");
    }
  }

 private:
  std::optional<std::string> before_;
};

/// The home of the current user according to the system's own tool.
std::string homeOfRunningUser() {
  const std::string command = "getent passwd " + std::to_string(getuid()) + " | cut -d: -f6";
  FILE* const output = popen(command.c_str(), "r");
  std::array<char, 1024> line{};
  const char* const read = std::fgets(line.data(), line.size(), output);
  pclose(output);
  const std::string home = read != nullptr ? read : "";
  return home.substr(0, home.find('\n'));
}

TEST_F(HomeDirectory, IsTheVariable) {
  setenv("HOME", "/somewhere/else", 1);
  EXPECT_EQ(homeDirectory(), "/somewhere/else");
}

TEST_F(HomeDirectory, HasNoTrailingSlash) {
  setenv("HOME", "/somewhere/", 1);
  EXPECT_EQ(homeDirectory(), "/somewhere");
  setenv("HOME", "/some//where///", 1);
  EXPECT_EQ(homeDirectory(), "/some//where");
}

TEST_F(HomeDirectory, OfTheRootFolderIsEmptySoThatPathsBeginWithOneSlash) {
  setenv("HOME", "/", 1);
  EXPECT_EQ(homeDirectory() + "/.quillmark", "/.quillmark");
}

TEST_F(HomeDirectory, IsThatOfThePasswordEntryWithoutTheVariable) {
  ASSERT_NE(homeOfRunningUser(), "");
  unsetenv("HOME");
  EXPECT_EQ(homeDirectory(), homeOfRunningUser());
}

TEST_F(HomeDirectory, IsThatOfThePasswordEntryWithAnEmptyVariable) {
  ASSERT_NE(homeOfRunningUser(), "");
  setenv("HOME", "", 1);
  EXPECT_EQ(homeDirectory(), homeOfRunningUser());
}

TEST_F(HomeDirectory, IsReadAgainEachTime) {
  setenv("HOME", "/first", 1);
  EXPECT_EQ(homeDirectory(), "/first");
  setenv("HOME", "/second", 1);
  EXPECT_EQ(homeDirectory(), "/second");
}

}  // namespace
}  // namespace quillmark::test
