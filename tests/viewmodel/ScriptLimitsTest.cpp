// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/ScriptLimits.h"

#include <string>

#include <QSignalSpy>
#include <QString>

#include <gtest/gtest.h>

#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

std::string limited(ScriptLimits& limits, const std::string& text) {
  auto characters = QString::fromStdString(text).toStdU32String();
  limits.apply(characters);
  return QString::fromStdU32String(characters).toStdString();
}

/// What is left of the text after some time.
std::string finallyLimited(ScriptLimits& limits, const std::string& text) {
  auto result = limited(limits, text);
  while (limits.waits()) {
    if (!waitUntil([&] { return !limits.waits(); })) {
      return "waits for ever";
    }
    result = limited(limits, text);
  }
  return result;
}

std::string finallyLimited(const std::string& text) {
  ScriptLimits limits;
  return finallyLimited(limits, text);
}

TEST(ScriptLimits, LeavesCommonScriptsAndSymbols) {
  for (const std::string text :
       {"", "Aé β б, x\u0301\r\n\t\x01", "→ ☃ ∑ 😀 👩‍👩‍👧",
        "中文 日本語のテキスト 한국어", "العربية עברית", "हिन्दी বাংলা தமிழ்",
        "ไทย ລາວ ខ្មែរ မြန်မာ བོད", "አማርኛ ქართული հայերեն", "ދިވެހި"}) {
    EXPECT_EQ(finallyLimited(text), text);
  }
}

TEST(ScriptLimits, LeavesTheFirstTwoRareKinds) {
  ScriptLimits limits;
  for (const std::string text : {"a𒀀", "中𒀀", "𝄞 𒀀"}) {
    EXPECT_EQ(finallyLimited(limits, text), text);
  }
  EXPECT_EQ(finallyLimited(limits, "a𐍈𐍈b 🝗 𝄞!"), "a\uFFFD\uFFFDb \uFFFD 𝄞!");
  EXPECT_EQ(finallyLimited(limits, "中文 العربية ☃ 😀"), "中文 العربية ☃ 😀");
}

TEST(ScriptLimits, LeavesTwoOfTheRareKindsOfOneText) {
  EXPECT_EQ(finallyLimited("Ꭰ ᚠ 𐍈 Ꭰ"), "Ꭰ ᚠ \uFFFD Ꭰ");
}

// A hostile text must not use up what later texts may need.
TEST(ScriptLimits, CountsNoRareKindOfATextThatHasTooMany) {
  ScriptLimits limits;
  finallyLimited(limits, "Ꭰ ᚠ 𐍈 𐐨 𒀀 𓀀 ա ב ت");
  EXPECT_EQ(finallyLimited(limits, "𐤀 𐎠"), "𐤀 𐎠");
}

TEST(ScriptLimits, LeavesThreeNewKindsAtOnce) {
  ScriptLimits limits;
  const QSignalSpy eased(&limits, &ScriptLimits::eased);
  EXPECT_EQ(limited(limits, "ա ב ت ☃ ตัว b"), "ա ב ت \uFFFD \uFFFD\uFFFD\uFFFD b");
  EXPECT_EQ(limited(limits, "𒀀 ת"), "\uFFFD ת");
  EXPECT_TRUE(waitUntil([&] { return !eased.isEmpty(); }));
  EXPECT_EQ(limited(limits, "ա ב ت ☃ ตัว 𒀀 𓀀"), "ա ב ت ☃ ตัว 𒀀 \uFFFD");
}

TEST(ScriptLimits, EasesOnlyWhatWaits) {
  ScriptLimits limits;
  const QSignalSpy eased(&limits, &ScriptLimits::eased);
  EXPECT_EQ(limited(limits, "ա ב ت"), "ա ב ت");
  EXPECT_EQ(finallyLimited(limits, "中 😀"), "中 😀");
  EXPECT_EQ(eased.count(), 1);
}

TEST(ScriptLimits, LeavesEightKindsInOneText) {
  const std::string eight = "ա ב ت ☃ ක ก 日本の 😀, and Latin β б";
  EXPECT_EQ(finallyLimited(eight), eight);
}

TEST(ScriptLimits, ReplacesThemAllIfATextHasMore) {
  EXPECT_EQ(finallyLimited("ա ב ت ☃ ක ก 中 😀 ა, and Latin β б"),
            "\uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD, and Latin β б");
}

}  // namespace
}  // namespace quillmark::test
