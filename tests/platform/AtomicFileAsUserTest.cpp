// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include "platform/AtomicFile.h"
#include "platform/Files.h"
#include "platform/TemporaryFolder.h"
#include "support/TokenFiles.h"

namespace quillmark::test {
namespace {

/// A folder that may be read but not changed.
class AtomicFileAsUser : public testing::Test {
 protected:
  AtomicFileAsUser() {
    writeFile(locked + "/file", "old");
    EXPECT_EQ(chmod(locked.c_str(), 0500), 0);
  }
  ~AtomicFileAsUser() override { chmod(locked.c_str(), 0700); }

  const TemporaryFolder folder;
  const std::string locked = folder / "locked";
};

TEST_F(AtomicFileAsUser, IsUnchangedInAReadOnlyFolder) {
  EXPECT_EQ(writeFileAtomically(locked + "/file", "new").message(), "Permission denied");
  EXPECT_EQ(contentOf(locked + "/file"), "old");
  EXPECT_EQ(namesIn(locked), std::set<std::string>{"file"});
}

TEST_F(AtomicFileAsUser, IsNotCreatedInAReadOnlyFolder) {
  EXPECT_EQ(writeFileAtomically(locked + "/another", "new").message(), "Permission denied");
  EXPECT_EQ(namesIn(locked), std::set<std::string>{"file"});
}

TEST_F(AtomicFileAsUser, IsUnchangedBehindALinkIntoAReadOnlyFolder) {
  std::filesystem::create_symlink(locked + "/file", folder / "link");
  EXPECT_EQ(writeFileAtomically(folder / "link", "new").message(), "Permission denied");
  EXPECT_EQ(contentOf(locked + "/file"), "old");
}

TEST_F(AtomicFileAsUser, IsReplacedEvenIfItIsReadOnly) {
  const auto path = folder / "read-only";
  writeFile(path, "old");
  ASSERT_EQ(chmod(path.c_str(), 0400), 0);
  EXPECT_FALSE(writeFileAtomically(path, "new"));
  EXPECT_EQ(contentOf(path), "new");
  EXPECT_EQ(modeOf(path), 0400U);
}

TEST_F(AtomicFileAsUser, GetsNoFoldersInAReadOnlyFolder) {
  EXPECT_EQ(createPrivateFolders(locked + "/a/b").message(), "Permission denied");
  EXPECT_EQ(namesIn(locked), std::set<std::string>{"file"});
}

TEST_F(AtomicFileAsUser, GetsFoldersBelowReadOnlyFolders) {
  ASSERT_EQ(chmod(locked.c_str(), 0700), 0);
  std::filesystem::create_directory(locked + "/open");
  ASSERT_EQ(chmod(locked.c_str(), 0500), 0);
  EXPECT_FALSE(createPrivateFolders(locked + "/open/new"));
  EXPECT_TRUE(std::filesystem::is_directory(locked + "/open/new"));
}

TEST_F(AtomicFileAsUser, GetsFoldersInAFolderThatMayNotBeRead) {
  ASSERT_EQ(chmod(locked.c_str(), 0300), 0);
  EXPECT_FALSE(createPrivateFolders(locked + "/a/b"));
  EXPECT_EQ(modeOf(locked + "/a/b"), 0700U);
}

}  // namespace
}  // namespace quillmark::test
