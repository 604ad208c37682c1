// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>

#include <gtest/gtest.h>

#include "client/AccessToken.h"
#include "client/WithTokenFiles.h"

namespace quillmark::test {
namespace {

using std::filesystem::permissions;
using std::filesystem::perms;

class AccessTokenAsUser : public WithTokenFiles {};

TEST_F(AccessTokenAsUser, IsTheHomeTokenWhenTheSystemFileMayNotBeRead) {
  writeFile(systemTokenPath(), "system");
  writeFile(homeTokenPath(), "home");
  EXPECT_EQ(readAccessToken(), "system");
  permissions(systemTokenPath(), perms::none);
  EXPECT_EQ(readAccessToken(), "home");
}

TEST_F(AccessTokenAsUser, IsTheHomeTokenWhenTheSystemFolderMayNotBeEntered) {
  const std::string folder = "/var/run/quillmark";
  writeFile(systemTokenPath(), "system");
  writeFile(homeTokenPath(), "home");
  permissions(folder, perms::none);
  EXPECT_EQ(readAccessToken(), "home");
  permissions(folder, perms::owner_all);
  EXPECT_EQ(readAccessToken(), "system");
}

TEST_F(AccessTokenAsUser, IsNoneWhenNeitherFileMayBeRead) {
  writeFile(systemTokenPath(), "system");
  writeFile(homeTokenPath(), "home");
  permissions(systemTokenPath(), perms::none);
  permissions(homeTokenPath(), perms::none);
  EXPECT_EQ(readAccessToken(), std::nullopt);
}

}  // namespace
}  // namespace quillmark::test
