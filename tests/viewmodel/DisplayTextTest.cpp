// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/DisplayText.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "model/Repeated.h"
#include "viewmodel/PrintQString.h"
#include "viewmodel/Settled.h"

namespace quillmark::test {
namespace {

constexpr int maxWeight = 16'000;
constexpr int changeWeight = 40;

/// What is shown of the text after some time.
QString shownText(const std::string& text) {
  return settled(Turns::ofProcess(), [&] { return displayText(text); });
}

TEST(DisplayText, IsTheUnchangedText) {
  for (const std::string text : {"", " ", "text", " two\nlines\r\n", "<b>&amp;</b>", "\t\x0B\x0C",
                                 "\U0001F41E שלום", "x\u0301"}) {
    EXPECT_EQ(shownText(text).toStdString(), text);
  }
}

// The limit counts characters, not bytes.
TEST(DisplayText, IsCompleteUpToTheLimit) {
  for (const std::string character : {"x", "\n", "é", "ש"}) {
    const auto text = repeated(maxWeight - changeWeight, character);
    EXPECT_EQ(shownText(text).toStdString(), text);
  }
}

TEST(DisplayText, EndsInAnEllipsisBeyondTheLimit) {
  for (const std::string character : {"x", "\n", "é", "–"}) {
    const auto beginning = repeated(maxWeight, character);
    EXPECT_EQ(shownText(beginning).toStdString(), beginning);
    EXPECT_EQ(shownText(beginning + character).toStdString(), beginning + "…");
    EXPECT_EQ(shownText(beginning + "😀").toStdString(), beginning + "…");
  }
}

TEST(DisplayText, IsInAFewRareScriptsOnly) {
  EXPECT_EQ(shownText("Ꭰ 𐐨").toStdString(), "Ꭰ 𐐨");
  EXPECT_EQ(shownText("𒀀 ա").toStdString(), "\uFFFD ա");
}

// Qt would look for it in all fonts of the machine, for each script and size.
TEST(DisplayText, HasAReplacementForACharacterThatNoFontHas) {
  EXPECT_EQ(shownText("a\U0010FFFE\u200Db").toStdString(), "a\uFFFD\u200Db");
}

// For these, too, even in an ASCII text.
TEST(DisplayText, HasAReplacementForAControlCharacter) {
  EXPECT_EQ(shownText("a\x01\x1B[0m b").toStdString(), "a\uFFFD\uFFFD[0m b");
}

// Qt would need a second for a text that is one letter with thousands of marks.
TEST(DisplayText, HasThirtyMarksOfACharacter) {
  for (const std::string mark : {"\u0301", "\u20DD", "\uFE0F", "\U000E0100"}) {
    const auto most = "x" + repeated(30, mark);
    EXPECT_EQ(shownText(most + most).toStdString(), most + most);
    EXPECT_EQ(shownText(most + mark + "y").toStdString(), most + "\uFFFDy");
  }
}

TEST(DisplayText, IsCompleteIfItChangesBetweenScriptsLikeARealText) {
  for (const std::string sentence : {"Η λέξη «text» → ✓. ", "هذا نص بالعربية، ١٢٣. "}) {
    const auto text = repeated(140, sentence);
    EXPECT_EQ(shownText(text).toStdString(), text);
  }
}

// What takes long to lay out counts more: see layoutWeight.
TEST(DisplayText, EndsEarlierTheLongerItsLayoutTakes) {
  for (const auto& [piece, most] : {std::pair{"😀a", (maxWeight - changeWeight) / 801},
                                    {"☃a", (maxWeight - changeWeight) / 6},
                                    {"שت", maxWeight / (2 + 2 * changeWeight)}}) {
    const auto beginning = repeated(most, piece);
    EXPECT_EQ(shownText(beginning).toStdString(), beginning);
    const auto longer = shownText(beginning + piece).toStdString();
    EXPECT_TRUE(longer.ends_with("…")) << longer.size();
    EXPECT_LE(longer.size(), (beginning + piece + "…").size());
  }
}

// If all rows in view became long at once, their layout would block the window.
TEST(DisplayText, HasOnlyItsBeginningUntilItsTurnIfLong) {
  const auto text = repeated(1000, "é") + "b";
  while (Turns::ofProcess().take()) {
  }
  EXPECT_EQ(displayText(repeated(1000, "é")).size(), 1000);
  EXPECT_EQ(displayText(text).toStdString(), repeated(1000, "é") + "…");
  EXPECT_EQ(shownText(text).toStdString(), text);
}

// A text may be as long as a whole answer.
TEST(DisplayText, KeepsNoMemoryForWhatItDoesNotShow) {
  const auto shown = shownText(std::string(std::size_t{16} << 20U, 'x'));
  EXPECT_LT(shown.capacity(), 2 * maxWeight);
}

}  // namespace
}  // namespace quillmark::test
