// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/Text.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "procfs/Number.h"

namespace quillmark::sample {
namespace {

using Views = std::vector<std::string_view>;

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
