// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Utf8.h"

#include <string>

#include <gtest/gtest.h>

#include "platform/CodePoints.h"

namespace quillmark::test {
namespace {

TEST(Utf8, AcceptsEveryCharacter) {
  std::string all;
  for (char32_t c = 0; c <= lastCodePoint; ++c) {
    if (!isSurrogate(c)) {
      all += utf8(c);
    }
  }
  EXPECT_TRUE(isUtf8(all));
}

TEST(Utf8, AcceptsAnEmptyText) { EXPECT_TRUE(isUtf8("")); }

TEST(Utf8, RefusesSurrogates) {
  for (char32_t c = 0xD800; c <= 0xDFFF; ++c) {
    ASSERT_FALSE(isUtf8(utf8(c))) << std::hex << std::uint32_t{c};
  }
  EXPECT_FALSE(isUtf8(utf8(0xD83D) + utf8(0xDE00))) << "a pair is no character either";
}

TEST(Utf8, RefusesLongerFormsThanNeeded) {
  for (char32_t c = 0; c < 0x10000; ++c) {
    for (int length = utf8Length(c) + 1; length <= 4; ++length) {
      ASSERT_FALSE(isUtf8(utf8(c, length))) << std::hex << std::uint32_t{c} << ", " << length;
    }
  }
}

TEST(Utf8, RefusesWhatIsBeyondTheLastCodePoint) {
  for (char32_t c = lastCodePoint + 1; c < 0x200000; c = nextToTry(c)) {
    ASSERT_FALSE(isUtf8(utf8(c))) << std::hex << std::uint32_t{c};
  }
}

TEST(Utf8, RefusesInvalidFirstBytes) {
  for (int byte = 0x80; byte <= 0xFF; ++byte) {
    const std::string alone(1, static_cast<char>(byte));
    EXPECT_FALSE(isUtf8(alone)) << byte;
    EXPECT_FALSE(isUtf8("a" + alone + "b")) << byte;
  }
}

TEST(Utf8, RefusesIncompleteSequences) {
  for (const char32_t c : oneOfEachLength) {
    const std::string whole = utf8(c);
    for (std::size_t size = 1; size < whole.size(); ++size) {
      const std::string part = whole.substr(0, size);
      EXPECT_FALSE(isUtf8(part)) << whole << ", " << size;
      EXPECT_FALSE(isUtf8(part + "a")) << whole << ", " << size;
      EXPECT_FALSE(isUtf8(part + whole)) << whole << ", " << size;
    }
  }
}

TEST(Utf8, RefusesOneContinuationTooMany) {
  for (const char32_t c : oneOfEachLength) {
    EXPECT_FALSE(isUtf8(utf8(c) + "\x80")) << utf8(c);
  }
}

TEST(AsUtf8, KeepsValidText) {
  const std::string text = "plain, żółć, 漢字, \U0001F600, \n\t\x01";
  EXPECT_EQ(asUtf8(text), text);
  EXPECT_EQ(asUtf8(""), "");
}

TEST(AsUtf8, ReplacesEachByteThatIsNoCharacter) {
  EXPECT_EQ(asUtf8("a\xFF"
                   "b"),
            "a\uFFFDb");
  EXPECT_EQ(asUtf8("\xC0\xAF"), "\uFFFD\uFFFD");
  EXPECT_EQ(asUtf8("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD") << "a lone surrogate";
  EXPECT_EQ(asUtf8("\xF5\x80\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD") << "beyond the last character";
}

TEST(AsUtf8, KeepsWhatFollowsAnIncompleteCharacter) {
  EXPECT_EQ(asUtf8("\xC3(x)"), "\uFFFD(x)");
  EXPECT_EQ(asUtf8("\xE2\x82"), "\uFFFD\uFFFD");
  EXPECT_EQ(asUtf8("\xE2\x82\xC3\xA9"), "\uFFFD\uFFFD\u00E9");
}

TEST(AsUtf8, MakesValidTextOfAnyTwoBytes) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string bytes{static_cast<char>(first), static_cast<char>(second)};
      EXPECT_TRUE(isUtf8(asUtf8(bytes))) << first << ' ' << second;
    }
  }
}

}  // namespace
}  // namespace quillmark::test
