// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/BundlePath.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

TEST(BundlePath, IsTheFolderAboveContentsMacOS) {
  EXPECT_EQ(bundlePathOf("/Applications/X.app/Contents/MacOS/panel"), "/Applications/X.app");
  EXPECT_EQ(bundlePathOf("/a/Contents/MacOS/b/Contents/MacOS/panel"), "/a/Contents/MacOS/b");
}

TEST(BundlePath, IsTheProgramsFolderOtherwise) {
  EXPECT_EQ(bundlePathOf("/usr/bin/panel"), "/usr/bin");
  EXPECT_EQ(bundlePathOf("/X.app/Contents/MacOS/deeper/panel"), "/X.app/Contents/MacOS/deeper");
  EXPECT_EQ(bundlePathOf("/X.app/MacOS/panel"), "/X.app/MacOS");
  EXPECT_EQ(bundlePathOf("/X.app/contents/macos/panel"), "/X.app/contents/macos");
  EXPECT_EQ(bundlePathOf("/X.app/OldContents/MacOS/panel"), "/X.app/OldContents/MacOS");
}

TEST(BundlePath, HasNoTrailingSlash) {
  EXPECT_EQ(bundlePathOf("/panel"), "");
  EXPECT_EQ(bundlePathOf("/Contents/MacOS/panel"), "");
}

TEST(BundlePath, KeepsEveryCharacter) {
  EXPECT_EQ(bundlePathOf("/My App's\n\xFF.app/Contents/MacOS/panel"), "/My App's\n\xFF.app");
}

TEST(BundlePath, OfTheRunningProgramIsItsFolder) {
  const auto program = std::filesystem::canonical("/proc/self/exe");
  EXPECT_EQ(bundlePath(), program.parent_path());
}

}  // namespace
}  // namespace quillmark::test
