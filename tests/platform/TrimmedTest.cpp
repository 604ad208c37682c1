// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <string>

#include <gtest/gtest.h>

#include "platform/CodePoints.h"
#include "platform/Utf8.h"

namespace quillmark::test {
namespace {

// The 25 characters with the property White_Space.
constexpr std::array<char32_t, 25> whiteSpace{
    0x0009, 0x000A, 0x000B, 0x000C, 0x000D, 0x0020, 0x0085, 0x00A0, 0x1680,
    0x2000, 0x2001, 0x2002, 0x2003, 0x2004, 0x2005, 0x2006, 0x2007, 0x2008,
    0x2009, 0x200A, 0x2028, 0x2029, 0x202F, 0x205F, 0x3000};

// A byte-order mark, a zero-width space and the like.
constexpr std::array<char32_t, 5> invisible{0xFEFF, 0x200B, 0x2060, 0x180E, 0x00AD};

bool isWhiteSpace(char32_t c) {
  return std::find(whiteSpace.begin(), whiteSpace.end(), c) != whiteSpace.end();
}

TEST(Trimmed, DropsEveryWhiteSpaceAndNothingElse) {
  for (char32_t c = 0; c <= lastCodePoint; ++c) {
    if (!isSurrogate(c)) {
      const std::string text = utf8(c);
      ASSERT_EQ(trimmed(text), isWhiteSpace(c) ? "" : text) << std::hex << std::uint32_t{c};
    }
  }
}

TEST(Trimmed, DropsItAtBothEndsOnly) {
  for (const char32_t c : whiteSpace) {
    const std::string space = utf8(c);
    const std::string inner = "to" + space + "ken";
    EXPECT_EQ(trimmed(space + inner), inner) << std::hex << std::uint32_t{c};
    EXPECT_EQ(trimmed(inner + space), inner) << std::hex << std::uint32_t{c};
    EXPECT_EQ(trimmed(space + space + inner + space + space), inner)
        << std::hex << std::uint32_t{c};
  }
}

TEST(Trimmed, DropsMixedRuns) {
  std::string all;
  for (const char32_t c : whiteSpace) {
    all += utf8(c);
  }
  EXPECT_EQ(trimmed(all + "token" + all), "token");
  EXPECT_EQ(trimmed(all), "");
}

TEST(Trimmed, KeepsInvisibleCharacters) {
  for (const char32_t c : invisible) {
    const std::string text = utf8(c) + "token" + utf8(c);
    EXPECT_EQ(trimmed(" " + text + "\n"), text) << std::hex << std::uint32_t{c};
  }
}

TEST(Trimmed, KeepsCharactersOfEveryLengthAtTheEnds) {
  for (const char32_t c : oneOfEachLength) {
    const std::string text = utf8(c) + " " + utf8(c);
    EXPECT_EQ(trimmed("\t" + text + "\r\n"), text);
  }
}

TEST(Trimmed, KeepsNulCharacters) {
  const std::string text("\0a\0", 3);
  EXPECT_EQ(trimmed(" " + text + " "), text);
}

TEST(Trimmed, KeepsAnEmptyText) { EXPECT_EQ(trimmed(""), ""); }

TEST(Trimmed, IsAViewOfItsArgument) {
  const std::string text = "  token ";
  EXPECT_EQ(trimmed(text).data(), text.data() + 2);
}

}  // namespace
}  // namespace quillmark::test
