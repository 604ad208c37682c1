// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/AtomicFile.h"

#include <csignal>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>
#include <boost/system/errc.hpp>

#include <sys/resource.h>
#include <sys/stat.h>

#include "platform/Files.h"
#include "platform/TemporaryFolder.h"
#include "support/TokenFiles.h"

namespace quillmark::test {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

/// While it exists, writing more than `bytes` bytes to any file fails.
class FileSizeLimit final {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &before_), 0);
    const rlimit limit{bytes, before_.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

/// Tests with the usual umasks.
class AtomicFile : public testing::TestWithParam<mode_t> {
 protected:
  AtomicFile() : before_(umask(GetParam())) {}
  ~AtomicFile() override { umask(before_); }

  void expectWritten(const std::string& text) const {
    const auto error = writeFileAtomically(path, text);
    EXPECT_FALSE(error) << error.message();
    EXPECT_TRUE(contentOf(path) == text) << text.size() << " bytes";
    EXPECT_EQ(namesIn(folder.path()), Names{"file"});
  }

  void expectRefused(const std::string& message) const {
    const auto names = namesIn(folder.path());
    EXPECT_EQ(writeFileAtomically(path, "new").message(), message);
    EXPECT_EQ(namesIn(folder.path()), names) << "nothing is added";
  }

  const TemporaryFolder folder;
  const std::string path = folder / "file";

 private:
  mode_t before_;
};

TEST_P(AtomicFile, IsCreatedForTheUserOnly) {
  expectWritten("text");
  EXPECT_EQ(modeOf(path), 0600U);
}

TEST_P(AtomicFile, ContainsEveryByte) {
  for (const auto& text : {std::string(), std::string("\0\xFF\r\n", 4), std::string(3000000, 'x'),
                           std::string("short again")}) {
    expectWritten(text);
  }
}

TEST_P(AtomicFile, IsCreatedOnlyWhereThereIsNone) {
  EXPECT_FALSE(createFileAtomically(path, "old"));
  EXPECT_EQ(modeOf(path), 0600U);
  EXPECT_EQ(createFileAtomically(path, "new"), boost::system::errc::file_exists);
  EXPECT_EQ(contentOf(path), "old");
  EXPECT_EQ(namesIn(folder.path()), Names{"file"});
}

TEST_P(AtomicFile, KeepsAStricterMode) {
  for (const mode_t mode : {0600U, 0400U, 0200U, 0U}) {
    writeFile(path, "old");
    ASSERT_EQ(chmod(path.c_str(), mode), 0);
    EXPECT_FALSE(writeFileAtomically(path, "new"));
    EXPECT_EQ(modeOf(path), mode);
    fs::remove(path);
  }
}

TEST_P(AtomicFile, RestrictsAnyOtherMode) {
  for (const mode_t mode : {0644U, 0640U, 0660U, 0604U, 0444U, 0700U, 0777U, 04600U, 01600U}) {
    writeFile(path, "old");
    ASSERT_EQ(chmod(path.c_str(), mode), 0);
    expectWritten("new");
    EXPECT_EQ(modeOf(path), 0600U) << std::oct << mode;
  }
}

TEST_P(AtomicFile, KeepsTheOldFileForThoseWhoHaveItOpen) {
  writeFile(path, "old");
  std::ifstream reader(path);
  expectWritten("new");
  std::string seen;
  reader >> seen;
  EXPECT_EQ(seen, "old");
}

TEST_P(AtomicFile, DoesNotChangeAnotherNameOfTheOldFile) {
  const TemporaryFolder elsewhere;
  writeFile(path, "old");
  fs::create_hard_link(path, elsewhere / "other");
  expectWritten("new");
  EXPECT_EQ(contentOf(elsewhere / "other"), "old");
}

TEST_P(AtomicFile, FollowsLinksToAFile) {
  const TemporaryFolder elsewhere;
  writeFile(elsewhere / "real", "old");
  fs::create_symlink("real", elsewhere / "relative");
  fs::create_symlink(elsewhere / "relative", path);
  expectWritten("new");
  EXPECT_EQ(fs::read_symlink(path), elsewhere / "relative") << "the link stays a link";
  EXPECT_EQ(contentOf(elsewhere / "real"), "new");
  EXPECT_EQ(modeOf(elsewhere / "real"), 0600U);
  EXPECT_EQ(namesIn(elsewhere.path()), (Names{"real", "relative"}));
}

TEST_P(AtomicFile, IsNotCreatedThroughADanglingLink) {
  fs::create_symlink(folder / "nowhere", path);
  expectRefused("No such file or directory");
  EXPECT_TRUE(fs::is_symlink(path));
}

TEST_P(AtomicFile, IsNotCreatedThroughARingOfLinks) {
  fs::create_symlink("file", path);
  expectRefused("Too many levels of symbolic links");
}

TEST_P(AtomicFile, ReplacesOnlyRegularFiles) {
  fs::create_directory(path);
  expectRefused("Not a regular file");
  EXPECT_TRUE(fs::is_empty(path));
  fs::remove(path);

  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  expectRefused("Not a regular file");
  EXPECT_TRUE(fs::is_fifo(path));
  fs::remove(path);

  fs::create_symlink("/dev/null", path);
  expectRefused("Not a regular file");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_P(AtomicFile, NeedsItsFolder) {
  EXPECT_EQ(writeFileAtomically(folder / "none/file", "text").message(),
            "No such file or directory");
  writeFile(path, "old");
  EXPECT_EQ(writeFileAtomically(path + "/file", "text").message(), "Not a directory");
  EXPECT_EQ(contentOf(path), "old");
}

TEST_P(AtomicFile, LeavesNoDescriptorOpen) {
  const auto open = [] { return namesIn("/proc/self/fd").size(); };
  const auto before = open();
  expectWritten("new");
  expectWritten("again");
  EXPECT_TRUE(writeFileAtomically(folder.path(), "text"));
  EXPECT_EQ(open(), before);
}

TEST_P(AtomicFile, LeavesNoDescriptorOpenWhenAWriteFails) {
  const auto open = [] { return namesIn("/proc/self/fd").size(); };
  const auto before = open();
  {
    const FileSizeLimit limit(4096);
    EXPECT_EQ(writeFileAtomically(path, std::string(5000, 'x')).message(), "File too large");
  }
  EXPECT_EQ(open(), before);
  EXPECT_EQ(namesIn(folder.path()), Names{});
}

TEST_P(AtomicFile, GetsFoldersForTheUserOnly) {
  EXPECT_FALSE(createPrivateFolders(folder / "a/b/c"));
  for (const std::string made : {"a", "a/b", "a/b/c"}) {
    EXPECT_EQ(modeOf(folder / made), 0700U);
  }
  EXPECT_FALSE(createPrivateFolders(folder / "a/b/c")) << "a second call is no error";
}

TEST_P(AtomicFile, DoesNotChangeFoldersThatExist) {
  fs::create_directory(folder / "a");
  ASSERT_EQ(chmod((folder / "a").c_str(), 0755), 0);
  fs::create_symlink("a", folder / "link");
  EXPECT_FALSE(createPrivateFolders(folder / "link/b"));
  EXPECT_EQ(modeOf(folder / "a"), 0755U);
  EXPECT_EQ(modeOf(folder / "a/b"), 0700U);
}

TEST_P(AtomicFile, GetsNoFoldersThroughFilesOrDanglingLinks) {
  writeFile(path, "a file");
  EXPECT_EQ(createPrivateFolders(path).message(), "Not a directory");
  EXPECT_EQ(createPrivateFolders(path + "/a").message(), "Not a directory");
  fs::create_symlink("nowhere", folder / "link");
  EXPECT_EQ(createPrivateFolders(folder / "link").message(), "No such file or directory");
  EXPECT_EQ(createPrivateFolders(folder / "link/a").message(), "No such file or directory");
  EXPECT_EQ(namesIn(folder.path()), (Names{"file", "link"}));
}

INSTANTIATE_TEST_SUITE_P(Umask, AtomicFile, testing::Values(0000, 0022, 0077));

}  // namespace
}  // namespace quillmark::test
