// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/RareScripts.h"

#include <string>

#include <QString>

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

std::string shown(const std::string& text) {
  auto characters = QString::fromStdString(text).toStdU32String();
  replaceRareScripts(characters);
  return QString::fromStdU32String(characters).toStdString();
}

TEST(RareScripts, LeavesEverydayScriptsAndSymbols) {
  for (const std::string text :
       {"", "Aé β б, x\u0301\r\n\t\x01", "→ ☃ ∑ 😀 👩‍👩‍👧",
        "中文 日本語のテキスト 한국어", "العربية עברית", "हिन्दी বাংলা தமிழ்",
        "ไทย ລາວ ខ្មែរ မြန်မာ བོད", "አማርኛ ქართული հայերեն", "ދިވެހި"}) {
    EXPECT_EQ(shown(text), text);
  }
}

TEST(RareScripts, ReplacesEachCharacterOfAScriptThatFewPeopleUse) {
  EXPECT_EQ(shown("a𒀀𓀀b Ꭰ!"), "a\uFFFD\uFFFDb \uFFFD!");
  EXPECT_EQ(shown("中ᚠ"), "中\uFFFD");
}

TEST(RareScripts, LeavesEightScriptsInOneText) {
  const std::string eight = "ա ב ت क ক ก 中 가, and Latin β б 😀";
  EXPECT_EQ(shown(eight), eight);
}

TEST(RareScripts, ReplacesThemAllIfATextHasMore) {
  EXPECT_EQ(shown("ա ב ت क ক ก 中 가 ა, and Latin β б 😀"),
            "\uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD \uFFFD, and Latin β б 😀");
}

}  // namespace
}  // namespace quillmark::test
