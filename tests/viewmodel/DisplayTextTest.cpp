// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/DisplayText.h"

#include <string>

#include <gtest/gtest.h>

#include "model/Repeated.h"
#include "viewmodel/PrintQString.h"

namespace quillmark::test {
namespace {

constexpr std::size_t most = 16'000;

TEST(DisplayText, IsTheUnchangedText) {
  for (const std::string text : {"", " ", "text", " two\nlines\r\n", "<b>&amp;</b>", "\t\x01",
                                 "\U0001F41E שלום", "x\u0301"}) {
    EXPECT_EQ(displayText(text).toStdString(), text);
  }
}

// The limit counts characters, not bytes.
TEST(DisplayText, IsCompleteUpToTheLimit) {
  for (const std::string character : {"x", "\n", "é", "→", "\U0001F41E"}) {
    const auto text = repeated(most, character);
    EXPECT_EQ(displayText(text).toStdString(), text);
  }
}

TEST(DisplayText, EndsInAnEllipsisBeyondTheLimit) {
  for (const std::string character : {"x", "\n", "é", "→", "\U0001F41E"}) {
    const auto beginning = repeated(most, character);
    EXPECT_EQ(displayText(beginning + character).toStdString(), beginning + "…");
    EXPECT_EQ(displayText(beginning + "x").toStdString(), beginning + "…");
    EXPECT_EQ(displayText(beginning + "\U0001F41E").toStdString(), beginning + "…");
  }
}

TEST(DisplayText, IsInAFewRareScriptsOnly) {
  EXPECT_EQ(displayText("Ꭰ ᚠ 𐍈 𐐨").toStdString(), "Ꭰ ᚠ 𐍈 𐐨");
  EXPECT_EQ(displayText("𒀀 ա").toStdString(), "\uFFFD ա");
}

TEST(DisplayText, IsCompleteIfItChangesBetweenScriptsLikeARealText) {
  for (const std::string sentence : {"Η λέξη «text» → 😀. ", "هذا نص بالعربية، ١٢٣. "}) {
    const auto text = repeated(250, sentence);
    EXPECT_EQ(displayText(text).toStdString(), text);
  }
}

TEST(DisplayText, IsCompleteInJapanese) {
  const auto text = repeated(1'100, "これは日本語のテキストです。");
  EXPECT_EQ(displayText(text).toStdString(), text);
}

// Each change may need another font, and too many of them would block the window.
TEST(DisplayText, EndsAfterThreeThousandChangesBetweenScriptsOrSymbols) {
  for (const std::string pair : {"中가", "☃😀", "a中"}) {
    const auto beginning = repeated(1'500, pair);
    EXPECT_EQ(displayText(beginning).toStdString(), beginning);
    EXPECT_EQ(displayText(beginning + pair).toStdString(), beginning + "…");
  }
}

// A text may be as long as a whole answer.
TEST(DisplayText, KeepsNoMemoryForWhatItDoesNotShow) {
  const auto shown = displayText(std::string(std::size_t{16} << 20U, 'x'));
  EXPECT_LT(shown.capacity(), 2 * static_cast<qsizetype>(most));
}

}  // namespace
}  // namespace quillmark::test
