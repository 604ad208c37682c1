// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/SystemFile.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "sample-agent/FixtureTree.h"

namespace quillmark::sample {
namespace {

using test::FixtureTree;

TEST(ReadSystemFile, ReturnsEveryByte) {
  const FixtureTree tree;
  const std::string bytes = std::string("\xFF\0z", 3) + std::string(100'000, 'x');
  EXPECT_EQ(readSystemFile(tree.write("file", bytes)), bytes);
  EXPECT_EQ(readSystemFile(tree.write("empty", "")), "");
}

TEST(ReadSystemFile, ReadsFilesWithoutASize) {
  const auto status = readSystemFile("/proc/self/status");
  ASSERT_TRUE(status);
  EXPECT_NE(status->find("\nPid:"), std::string::npos);
}

TEST(ReadSystemFile, ReturnsNothingForOtherKindsOfFiles) {
  const FixtureTree tree;
  EXPECT_FALSE(readSystemFile(tree.path("missing")));
  EXPECT_FALSE(readSystemFile(tree.folder("folder")));
  ASSERT_EQ(mkfifo(tree.path("fifo").c_str(), 0600), 0);
  EXPECT_FALSE(readSystemFile(tree.path("fifo"))) << "and it must not wait for a writer";
}

TEST(ReadLink, ReturnsAnyTarget) {
  const FixtureTree tree;
  EXPECT_EQ(readLink(tree.link("link", "socket:[12]")), "socket:[12]");
  EXPECT_FALSE(readLink(tree.write("file", "")));
}

TEST(NamesIn, LeavesOutTheFolderAndItsParent) {
  const FixtureTree tree;
  tree.write("b", "");
  tree.folder(".a");
  auto names = namesIn(tree.root());
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{".a", "b"}));
  EXPECT_TRUE(namesIn(tree.path("missing")).empty());
}

}  // namespace
}  // namespace quillmark::sample
