// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/Text.h"

#include <chrono>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/Utf8.h"
#include "procfs/Number.h"

namespace quillmark::sample {
namespace {

using Views = std::vector<std::string_view>;

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

TEST(Rfc3339, IsInUtcAndWholeSeconds) {
  const std::chrono::system_clock::time_point time{std::chrono::milliseconds(1767225599999)};
  EXPECT_EQ(rfc3339(time), "2025-12-31T23:59:59Z");
  EXPECT_EQ(rfc3339({}), "1970-01-01T00:00:00Z");
}

TEST(Split, KeepsEmptyParts) {
  EXPECT_EQ(split(std::string_view("a::b:"), ':'), (Views{"a", "", "b", ""}));
  EXPECT_EQ(split(std::string_view(), ':'), (Views{""}));
}

TEST(Words, AreSeparatedByAnyNumberOfBlanks) {
  EXPECT_EQ(words("  a \t b  "), (Views{"a", "b"}));
  EXPECT_EQ(words("   "), Views{});
  EXPECT_EQ(words("a"), (Views{"a"}));
}

TEST(LeafOf, IsWhatFollowsTheLastSlash) {
  EXPECT_EQ(leafOf("/usr/bin/vi"), "vi");
  EXPECT_EQ(leafOf("vi"), "vi");
  EXPECT_EQ(leafOf("/usr/bin/"), "");
}

TEST(ParseNumber, ParsesTheWholeTextOrNothing) {
  EXPECT_EQ(parseNumber<int>("42"), 42);
  EXPECT_EQ(parseNumber<int>("1F", 16), 31);
  EXPECT_FALSE(parseNumber<int>(""));
  EXPECT_FALSE(parseNumber<int>("42x"));
  EXPECT_FALSE(parseNumber<int>(" 42"));
  EXPECT_FALSE(parseNumber<unsigned char>("256"));
}

}  // namespace
}  // namespace quillmark::sample
