// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileError.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

using boost::system::error_code;

TEST(FileErrors, HaveMessagesForTheUser) {
  EXPECT_EQ(error_code(FileError::notRegular).message(), "Not a regular file");
  EXPECT_EQ(error_code(FileError::tooLarge).message(), "The file is too large");
  EXPECT_EQ(error_code(FileError::notUtf8).message(), "The file is not UTF-8 text");
  EXPECT_EQ(error_code(FileError::unquotablePath).message(),
            "The application's path contains an apostrophe");
  EXPECT_EQ(error_code(FileError::shellOperatorInPath).message(),
            "The home path contains a character that would make the shell run a command");
}

// A new error without a message still gets a general one.
TEST(FileErrors, OfUnknownNumbersHaveAMessage) {
  const error_code unknown(99, error_code(FileError::notRegular).category());
  EXPECT_EQ(unknown.message(), "Unknown error");
}

TEST(FileErrors, AreErrorsAndDifferFromOneAnother) {
  const std::set<error_code> all{FileError::notRegular, FileError::tooLarge, FileError::notUtf8,
                                 FileError::unquotablePath, FileError::shellOperatorInPath};
  EXPECT_EQ(all.size(), 5U);
  for (const auto& error : all) {
    EXPECT_TRUE(error);
    EXPECT_STREQ(error.category().name(), "file");
  }
}

}  // namespace
}  // namespace quillmark::test
