// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/ScriptLimits.h"

#include <cstdint>
#include <string>

#include <QString>

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

std::string limited(ScriptLimits& limits, const std::string& text) {
  auto characters = QString::fromStdString(text).toStdU32String();
  limits.apply(characters);
  return QString::fromStdU32String(characters).toStdString();
}

std::string limited(const std::string& text) {
  ScriptLimits limits;
  return limited(limits, text);
}

TEST(ScriptLimits, LeavesCommonScriptsAndSymbols) {
  for (const std::string text :
       {"", "Aé β б, x\u0301\r\n\t\x01", "→ ☃ ∑ 😀 👩‍👩‍👧",
        "中文 日本語のテキスト 한국어", "العربية עברית", "हिन्दी বাংলা தமிழ்",
        "ไทย ລາວ ខ្មែរ မြန်မာ བོད", "አማርኛ ქართული հայերեն", "ދިވެހި"}) {
    EXPECT_EQ(limited(text), text);
  }
}

TEST(ScriptLimits, LeavesTheFirstFourRareScripts) {
  ScriptLimits limits;
  for (const std::string text : {"a𒀀", "𓀀 Ꭰ", "𐐨!", "Ꭱ", "中𒀀"}) {
    EXPECT_EQ(limited(limits, text), text);
  }
  EXPECT_EQ(limited(limits, "a𐍈𐍈b ᚠ Ꭰ!"), "a\uFFFD\uFFFDb \uFFFD Ꭰ!");
  EXPECT_EQ(limited(limits, "中文 العربية"), "中文 العربية");
}

TEST(ScriptLimits, LeavesFourOfTheRareScriptsOfOneText) {
  const auto text = limited("Ꭰ ᚠ 𐍈 𐐨 𒀀");
  EXPECT_EQ(QString::fromStdString(text).count(QChar(0xFFFD)), 1) << text;
}

// A hostile text must not use up what later texts may need.
TEST(ScriptLimits, CountsNoScriptOfATextThatHasTooMany) {
  ScriptLimits limits;
  limited(limits, "Ꭰ ᚠ 𐍈 𐐨 𒀀 𓀀 ա ב ت");
  EXPECT_EQ(limited(limits, "𐤀 𐎠"), "𐤀 𐎠");
}

TEST(ScriptLimits, LeavesEightScriptsInOneText) {
  const std::string eight = "ա ב ت क ক ก 中 가, and Latin β б 😀";
  EXPECT_EQ(limited(eight), eight);
}

TEST(ScriptLimits, ReplacesThemAllIfATextHasMore) {
  EXPECT_EQ(limited("ա ב ت क ক ก 中 가 ა, and Latin β б 😀"),
            "\uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD, and Latin β б 😀");
}

TEST(ScriptLimits, KnowsAScriptForEachCharacter) {
  for (char32_t character = 0; character <= QChar::LastValidCodePoint; ++character) {
    ASSERT_LT(scriptOf(character), QChar::ScriptCount) << std::uint32_t{character};
  }
}

}  // namespace
}  // namespace quillmark::test
