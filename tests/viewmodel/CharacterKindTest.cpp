// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/CharacterKind.h"

#include <cstdint>
#include <string>

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

TEST(CharacterKind, IsBasicInLatinGreekCyrillicAndPunctuation) {
  for (const auto character : std::u32string(U"aé1+©β б\n\u0301\u200D–\uFE0F")) {
    EXPECT_TRUE(isBasic(kindOf(character))) << std::uint32_t{character};
    EXPECT_EQ(layoutWeight(kindOf(character)), 1) << std::uint32_t{character};
  }
}

TEST(CharacterKind, IsTheScriptOfOtherLetters) {
  EXPECT_EQ(kindOf(U'ب'), kindOf(U'ت'));
  EXPECT_NE(kindOf(U'ب'), kindOf(U'ב'));
  for (const auto character : std::u32string(U"のテ、「・ー（\u3099\U000E0100")) {
    EXPECT_EQ(kindOf(U'日'), kindOf(character)) << std::uint32_t{character};
  }
  for (const auto character : std::u32string(U"،؟ـ\u064B")) {
    EXPECT_EQ(kindOf(U'ب'), kindOf(character)) << std::uint32_t{character};
  }
  EXPECT_EQ(kindOf(U'ह'), kindOf(U'।'));
  EXPECT_EQ(kindOf(U'ก'), kindOf(U'฿'));
  EXPECT_FALSE(isBasic(kindOf(U'日')));
  EXPECT_FALSE(isRare(kindOf(U'日')));
  EXPECT_TRUE(isRare(kindOf(U'𒀀')));
}

TEST(CharacterKind, IsOneForAllEmoji) {
  for (const auto character : std::u32string(U"😀🐞🏴🇩✅🛡")) {
    EXPECT_EQ(kindOf(character), kindOf(U'😀')) << std::uint32_t{character};
  }
  EXPECT_FALSE(isBasic(kindOf(U'😀')));
  EXPECT_FALSE(isRare(kindOf(U'😀')));
}

TEST(CharacterKind, IsABlockForSymbols) {
  EXPECT_EQ(kindOf(U'☃'), kindOf(U'♞'));
  EXPECT_NE(kindOf(U'☃'), kindOf(U'∑'));
  EXPECT_FALSE(isBasic(kindOf(U'☃')));
  EXPECT_FALSE(isRare(kindOf(U'☃')));
  EXPECT_TRUE(isRare(kindOf(U'𝄞')));
  EXPECT_TRUE(isRare(kindOf(U'𝔞')));
  EXPECT_EQ(kindOf(U'⸙'), kindOf(U'⸎'));
  EXPECT_FALSE(isBasic(kindOf(U'⸙')));
  EXPECT_FALSE(isBasic(kindOf(U'ꭕ')));
  EXPECT_FALSE(isBasic(kindOf(U'\u20DD')));
  EXPECT_TRUE(isRare(kindOf(U'\U0001D167')));
}

TEST(CharacterKind, HasMoreWeightTheLongerItsLayoutTakes) {
  EXPECT_EQ(layoutWeight(kindOf(U'日')), 1);
  EXPECT_LT(layoutWeight(kindOf(U'日')), layoutWeight(kindOf(U'☃')));
  EXPECT_LT(layoutWeight(kindOf(U'☃')), layoutWeight(kindOf(U'𝄞')));
  EXPECT_LT(layoutWeight(kindOf(U'𝄞')), layoutWeight(kindOf(U'😀')));
}

}  // namespace
}  // namespace quillmark::test
