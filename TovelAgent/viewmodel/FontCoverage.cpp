// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/FontCoverage.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <span>

#include <QChar>

#include <fontconfig/fontconfig.h>
#include <hb-ot.h>
#include <hb.h>
#include <unicode/uchar.h>
#include <unicode/uscript.h>

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
using FontFile = std::unique_ptr<hb_blob_t, Destroyer<hb_blob_destroy>>;
using FontFace = std::unique_ptr<hb_face_t, Destroyer<hb_face_destroy>>;

std::span<FcPattern* const> fontsOf(const FontSet& set) {
  return set ? std::span(set->fonts, static_cast<std::size_t>(set->nfont))
             : std::span<FcPattern*>();
}

/// From fontconfig's cache files: no font is opened, and it takes less than a millisecond.
CharSet charactersOfAllFonts() {
  CharSet characters(FcCharSetCreate());
  const Pattern anyFont(FcPatternCreate());
  const ObjectSet wanted(FcObjectSetBuild(FC_CHARSET, nullptr));
  const FontSet fonts(FcFontList(nullptr, anyFont.get(), wanted.get()));
  for (auto* const font : fontsOf(fonts)) {
    FcCharSet* ofFont = nullptr;
    if (FcPatternGetCharSet(font, FC_CHARSET, 0, &ofFont) == FcResultMatch) {
      FcCharSetMerge(characters.get(), ofFont, nullptr);
    }
  }
  return characters;
}

bool replacesGlyphsOf(hb_script_t script, FcPattern* font) {
  FcChar8* path = nullptr;
  auto index = 0;
  if (FcPatternGetString(font, FC_FILE, 0, &path) != FcResultMatch ||
      FcPatternGetInteger(font, FC_INDEX, 0, &index) != FcResultMatch) {
    return false;
  }
  const FontFile file(hb_blob_create_from_file(reinterpret_cast<const char*>(path)));
  const FontFace face(hb_face_create(file.get(), static_cast<unsigned>(index)));
  std::array<hb_tag_t, HB_OT_MAX_TAGS_PER_SCRIPT> tags{};
  unsigned count = tags.size();
  hb_ot_tags_from_script_and_language(script, HB_LANGUAGE_INVALID, &count, tags.data(), nullptr,
                                      nullptr);
  return hb_ot_layout_table_select_script(face.get(), HB_OT_TAG_GSUB, count, tags.data(), nullptr,
                                          nullptr) != 0;
}

/// Whether a font with the character replaces glyphs of its script. Opens such fonts until one
/// does, in most cases the first.
bool findsReplacingFont(char32_t character) {
  const CharSet characters(FcCharSetCreate());
  FcCharSetAddChar(characters.get(), character);
  const Pattern withCharacter(FcPatternCreate());
  FcPatternAddCharSet(withCharacter.get(), FC_CHARSET, characters.get());
  const ObjectSet wanted(FcObjectSetBuild(FC_FILE, FC_INDEX, nullptr));
  const FontSet fonts(FcFontList(nullptr, withCharacter.get(), wanted.get()));
  auto error = U_ZERO_ERROR;
  const auto* const script =
      uscript_getShortName(uscript_getScript(static_cast<UChar32>(character), &error));
  return std::ranges::any_of(fontsOf(fonts), [&](auto* font) {
    return replacesGlyphsOf(hb_script_from_string(script, -1), font);
  });
}

/// Qt takes the characters of these scripts only from a font that replaces glyphs of the
/// script. If there is none, it looks at all fonts, as for a character that no font has.
bool isInNoFontForItsScript(char32_t character) {
  const auto script = QChar::script(character);
  if ((script < QChar::Script_Syriac || script > QChar::Script_Sinhala) &&
      script != QChar::Script_Khmer && script != QChar::Script_Nko) {
    return false;
  }
  static std::map<QChar::Script, bool> known;
  const auto [entry, isNew] = known.try_emplace(script);
  if (isNew) {
    entry->second = !findsReplacingFont(character);
  }
  return entry->second;
}

bool hasShape(char32_t character) {
  const auto code = static_cast<UChar32>(character);
  constexpr auto shapeless = U_GC_CF_MASK | U_GC_Z_MASK;
  return (U_GET_GC_MASK(code) & shapeless) == 0 && u_isUWhiteSpace(code) == 0 &&
         u_hasBinaryProperty(code, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) == 0;
}

}  // namespace

bool isInNoFont(char32_t character) {
  static const auto ofAllFonts = charactersOfAllFonts();
  return FcCharSetHasChar(ofAllFonts.get(), character) == FcFalse
             ? hasShape(character)
             : isInNoFontForItsScript(character);
}

}  // namespace quillmark
