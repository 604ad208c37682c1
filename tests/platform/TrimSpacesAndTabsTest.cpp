// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <string>

#include <gtest/gtest.h>

#include "platform/CodePoints.h"
#include "platform/Utf8.h"

namespace quillmark::test {
namespace {

// The tab and the 17 characters of the category Zs.
constexpr std::array<char32_t, 18> lineSpace{0x0009, 0x0020, 0x00A0, 0x1680, 0x2000, 0x2001,
                                             0x2002, 0x2003, 0x2004, 0x2005, 0x2006, 0x2007,
                                             0x2008, 0x2009, 0x200A, 0x202F, 0x205F, 0x3000};

bool isLineSpace(char32_t c) {
  return std::find(lineSpace.begin(), lineSpace.end(), c) != lineSpace.end();
}

TEST(TrimSpacesAndTabs, DropsEverySpaceAndNothingElse) {
  for (char32_t c = 0; c <= lastCodePoint; c = nextToTry(c)) {
    if (!isSurrogate(c)) {
      const std::string text = utf8(c);
      ASSERT_EQ(trimSpacesAndTabs(text), isLineSpace(c) ? "" : text)
          << std::hex << std::uint32_t{c};
    }
  }
}

TEST(TrimSpacesAndTabs, DropsThemAtBothEndsOnly) {
  for (const char32_t c : lineSpace) {
    const std::string space = utf8(c);
    const std::string inner = "a" + space + "b";
    EXPECT_EQ(trimSpacesAndTabs(space + space + inner + space), inner)
        << std::hex << std::uint32_t{c};
  }
}

TEST(TrimSpacesAndTabs, StopsAtLineBreaks) {
  for (const std::string end : {"\n", "\r", "\r\n", "\f", "\v", "\u0085", "\u2028", "\u2029"}) {
    EXPECT_EQ(trimSpacesAndTabs(" \t" + end + "a" + end + " \t"), end + "a" + end);
  }
}

TEST(TrimSpacesAndTabs, KeepsAnEmptyText) { EXPECT_EQ(trimSpacesAndTabs(""), ""); }

}  // namespace
}  // namespace quillmark::test
