// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "client/AccessToken.h"

namespace quillmark::test {
namespace {

TEST(FitsHeaderField, EveryByteButControlCharacters) {
  for (int byte = 0; byte < 256; ++byte) {
    const bool control = (byte < 0x20 && byte != '\t') || byte == 0x7F;
    const std::string alone(1, static_cast<char>(byte));
    EXPECT_EQ(fitsHeaderField(alone), !control) << byte;
    EXPECT_EQ(fitsHeaderField("to" + alone + "ken"), !control) << byte;
    EXPECT_EQ(fitsHeaderField("token" + alone), !control) << byte;
  }
}

TEST(FitsHeaderField, NoToken) { EXPECT_TRUE(fitsHeaderField("")); }

TEST(FitsHeaderField, NoForgedHeader) {
  EXPECT_FALSE(fitsHeaderField("token\r\nHost: elsewhere"));
  EXPECT_FALSE(fitsHeaderField("token\nX: y"));
  EXPECT_FALSE(fitsHeaderField("token\r\n\r\nbody"));
}

}  // namespace
}  // namespace quillmark::test
