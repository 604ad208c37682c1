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

TEST(TrimWhiteSpace, DropsEveryWhiteSpaceAndNothingElse) {
  for (char32_t c = 0; c <= lastCodePoint; c = nextToTry(c)) {
    if (!isSurrogate(c)) {
      const std::string text = utf8(c);
      ASSERT_EQ(trimWhiteSpace(text), isWhiteSpace(c) ? "" : text) << std::hex << std::uint32_t{c};
    }
  }
}

TEST(TrimWhiteSpace, DropsItAtBothEndsOnly) {
  for (const char32_t c : whiteSpace) {
    const std::string space = utf8(c);
    const std::string inner = "to" + space + "ken";
    EXPECT_EQ(trimWhiteSpace(space + inner), inner) << std::hex << std::uint32_t{c};
    EXPECT_EQ(trimWhiteSpace(inner + space), inner) << std::hex << std::uint32_t{c};
    EXPECT_EQ(trimWhiteSpace(space + space + inner + space + space), inner)
        << std::hex << std::uint32_t{c};
  }
}

TEST(TrimWhiteSpace, DropsMixedRuns) {
  std::string all;
  for (const char32_t c : whiteSpace) {
    all += utf8(c);
  }
  EXPECT_EQ(trimWhiteSpace(all + "token" + all), "token");
  EXPECT_EQ(trimWhiteSpace(all), "");
}

TEST(TrimWhiteSpace, KeepsInvisibleCharacters) {
  for (const char32_t c : invisible) {
    const std::string text = utf8(c) + "token" + utf8(c);
    EXPECT_EQ(trimWhiteSpace(" " + text + "\n"), text) << std::hex << std::uint32_t{c};
  }
}

TEST(TrimWhiteSpace, KeepsCharactersOfEveryLengthAtTheEnds) {
  for (const char32_t c : oneOfEachLength) {
    const std::string text = utf8(c) + " " + utf8(c);
    EXPECT_EQ(trimWhiteSpace("\t" + text + "\r\n"), text);
  }
}

TEST(TrimWhiteSpace, KeepsNulCharacters) {
  const std::string text("\0a\0", 3);
  EXPECT_EQ(trimWhiteSpace(" " + text + " "), text);
}

TEST(TrimWhiteSpace, KeepsAnEmptyText) { EXPECT_EQ(trimWhiteSpace(""), ""); }

TEST(TrimWhiteSpace, IsAViewOfItsArgument) {
  const std::string text = "  token ";
  EXPECT_EQ(trimWhiteSpace(text).data(), text.data() + 2);
}

}  // namespace
}  // namespace quillmark::test
