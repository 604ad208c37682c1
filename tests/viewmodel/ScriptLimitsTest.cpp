// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/ScriptLimits.h"

#include <string>

#include <QString>

#include <gtest/gtest.h>

#include "viewmodel/Settled.h"

namespace quillmark::test {
namespace {

class ScriptLimitsTest : public testing::Test {
 protected:
  std::string limited(const std::string& text) {
    auto characters = QString::fromStdString(text).toStdU32String();
    limits_.apply(characters);
    return QString::fromStdU32String(characters).toStdString();
  }

  /// What is left of the text after some time.
  std::string finallyLimited(const std::string& text) {
    return settled(turns_, [&] { return limited(text); });
  }

 private:
  Turns turns_;
  ScriptLimits limits_{turns_};
};

TEST_F(ScriptLimitsTest, LeavesCommonScriptsAndSymbols) {
  for (const std::string text :
       {"", "Aé β б, x\u0301\r\n\t\x01", "→ ☃ ∑ 😀 👩‍👩‍👧",
        "中文 日本語のテキスト 한국어", "العربية עברית", "हिन्दी বাংলা தமிழ்",
        "ไทย ລາວ ខ្មែរ မြန်မာ བོད", "አማርኛ ქართული հայերեն", "ދިވެހި"}) {
    EXPECT_EQ(finallyLimited(text), text);
  }
}

TEST_F(ScriptLimitsTest, LeavesTheFirstTwoRareKinds) {
  for (const std::string text : {"a𒀀", "中𒀀", "𝄞 𒀀"}) {
    EXPECT_EQ(finallyLimited(text), text);
  }
  EXPECT_EQ(finallyLimited("a𐍈𐍈b 🝗 𝄞!"), "a\uFFFD\uFFFDb \uFFFD 𝄞!");
  EXPECT_EQ(finallyLimited("中文 العربية ☃ 😀"), "中文 العربية ☃ 😀");
}

TEST_F(ScriptLimitsTest, LeavesTwoOfTheRareKindsOfOneText) {
  EXPECT_EQ(finallyLimited("Ꭰ ᚠ 𐍈 Ꭰ"), "Ꭰ ᚠ \uFFFD Ꭰ");
}

// A hostile text must not use up what later texts may need.
TEST_F(ScriptLimitsTest, CountsNoRareKindOfATextThatHasTooMany) {
  finallyLimited("Ꭰ ᚠ 𐍈 𐐨 𒀀 𓀀 ա ב ت");
  EXPECT_EQ(finallyLimited("𐤀 𐎠"), "𐤀 𐎠");
}

TEST_F(ScriptLimitsTest, LeavesNewKindsInTurns) {
  EXPECT_EQ(limited("ա ☃ ตัว b"), "ա \uFFFD \uFFFD\uFFFD\uFFFD b");
  EXPECT_EQ(limited("𒀀 ա"), "\uFFFD ա");
  EXPECT_EQ(finallyLimited("ա ☃ 𒀀"), "ա ☃ 𒀀");
}

TEST_F(ScriptLimitsTest, LeavesLatinAtOnceAndGreekAndCyrillicInTurns) {
  EXPECT_EQ(limited("Aé1 β б"), "Aé1 β \uFFFD");
  EXPECT_EQ(finallyLimited("β б"), "β б");
}

TEST_F(ScriptLimitsTest, LeavesEightKindsInOneText) {
  const std::string eight = "ա ב ت ☃ ක ก 日本の 😀, and Latin β б";
  EXPECT_EQ(finallyLimited(eight), eight);
}

TEST_F(ScriptLimitsTest, ReplacesThemAllIfATextHasMore) {
  EXPECT_EQ(finallyLimited("ա ב ت ☃ ක ก 中 😀 ა, and Latin β б"),
            "\uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD, and Latin β б");
}

}  // namespace
}  // namespace quillmark::test
