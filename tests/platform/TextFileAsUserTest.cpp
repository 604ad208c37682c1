// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>

#include <gtest/gtest.h>
#include <boost/system/errc.hpp>

#include "platform/TemporaryFolder.h"
#include "platform/TextFile.h"
#include "support/TokenFiles.h"

namespace quillmark::test {
namespace {

namespace errc = boost::system::errc;
using std::filesystem::permissions;
using std::filesystem::perms;

constexpr std::size_t limit = 100;

TEST(TextFileAsUser, RefusesAFileThatMayNotBeRead) {
  const TemporaryFolder folder;
  const std::string path = folder / "file";
  writeFile(path, "text");
  permissions(path, perms::owner_write);
  EXPECT_EQ(readTextFile(path, limit).error(), errc::permission_denied);
  permissions(path, perms::owner_read);
  EXPECT_EQ(readTextFile(path, limit).value(), "text");
}

TEST(TextFileAsUser, RefusesAFileInAFolderThatMayNotBeEntered) {
  const TemporaryFolder folder;
  const std::string path = folder / "closed/file";
  writeFile(path, "text");
  permissions(folder / "closed", perms::owner_read | perms::owner_write);
  EXPECT_EQ(readTextFile(path, limit).error(), errc::permission_denied);
  permissions(folder / "closed", perms::owner_all);
  EXPECT_EQ(readTextFile(path, limit).value(), "text");
}

}  // namespace
}  // namespace quillmark::test
