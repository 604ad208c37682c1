// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/FontCoverage.h"

#include <memory>

#include <fontconfig/fontconfig.h>
#include <unicode/uchar.h>

namespace quillmark {
namespace {

template <auto destroy>
struct Destroyer {
  void operator()(auto* object) const { destroy(object); }
};
using CharSet = std::unique_ptr<FcCharSet, Destroyer<FcCharSetDestroy>>;
using FontSet = std::unique_ptr<FcFontSet, Destroyer<FcFontSetDestroy>>;
using ObjectSet = std::unique_ptr<FcObjectSet, Destroyer<FcObjectSetDestroy>>;
using Pattern = std::unique_ptr<FcPattern, Destroyer<FcPatternDestroy>>;

/// From fontconfig's cache files: no font is opened, and it takes less than a millisecond.
CharSet charactersOfAllFonts() {
  CharSet characters(FcCharSetCreate());
  const Pattern anyFont(FcPatternCreate());
  const ObjectSet wanted(FcObjectSetBuild(FC_CHARSET, nullptr));
  const FontSet fonts(FcFontList(nullptr, anyFont.get(), wanted.get()));
  for (auto i = 0; fonts && i < fonts->nfont; ++i) {
    FcCharSet* ofFont = nullptr;
    if (FcPatternGetCharSet(fonts->fonts[i], FC_CHARSET, 0, &ofFont) == FcResultMatch) {
      FcCharSetMerge(characters.get(), ofFont, nullptr);
    }
  }
  return characters;
}

bool hasShape(char32_t character) {
  const auto code = static_cast<UChar32>(character);
  constexpr auto shapeless = U_GC_CC_MASK | U_GC_CF_MASK | U_GC_Z_MASK;
  return (U_GET_GC_MASK(code) & shapeless) == 0 &&
         u_hasBinaryProperty(code, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) == 0;
}

}  // namespace

bool isInNoFont(char32_t character) {
  static const auto ofAllFonts = charactersOfAllFonts();
  return FcCharSetHasChar(ofAllFonts.get(), character) == FcFalse && hasShape(character);
}

}  // namespace quillmark
