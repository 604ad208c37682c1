// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/FontCoverage.h"

#include <cstdint>
#include <string>

#include <QGlyphRun>
#include <QString>
#include <QTextLayout>

#include <gtest/gtest.h>

#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

TEST(FontCoverage, KnowsTheCharactersOfEveryFont) {
  for (const auto character : std::u32string(U"a→бשע😀𒀀")) {
    EXPECT_FALSE(isInNoFont(character)) << std::uint32_t{character};
  }
}

TEST(FontCoverage, KnowsCharactersThatNoFontHas) {
  constexpr char32_t noncharacter = 0x10FFFE;
  constexpr char32_t lastForPrivateUse = 0x10FFFD;
  EXPECT_TRUE(isInNoFont(noncharacter));
  EXPECT_TRUE(isInNoFont(lastForPrivateUse));
}

/// Whether Qt finds no font for the character and draws a box.
bool isBoxInQt(char32_t character) {
  // Qt warns about each font that it cannot use.
  const KeptWarnings warnings;
  QTextLayout layout(QString::fromStdU32String({character}));
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  const auto glyphs = layout.glyphRuns().constFirst();
  // A font's own box is its glyph 0; those that Qt draws have no font size.
  return glyphs.glyphIndexes().contains(0) || glyphs.rawFont().pixelSize() < 0;
}

// For some scripts, Qt uses only fonts that have rules for them.
TEST(FontCoverage, IsThatOfQt) {
  for (const auto character : std::u32string(U"aܐއकকਕકକகకಕകකកߊ\uE000")) {
    EXPECT_EQ(isInNoFont(character), isBoxInQt(character)) << std::uint32_t{character};
  }
}

// A line break, a joiner or a selector of variants must not become visible.
TEST(FontCoverage, NeedsNoFontForCharactersWithoutAShape) {
  for (const auto character :
       std::u32string(U"\n\t\v\f\u0085\u00AD\u200B\u200D\u202E\u2028\u3000\uFE0F\U000E0067")) {
    EXPECT_FALSE(isInNoFont(character)) << std::uint32_t{character};
  }
}

}  // namespace
}  // namespace quillmark::test
