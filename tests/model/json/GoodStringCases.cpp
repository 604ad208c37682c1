// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/json/JsonCase.h"

namespace quillmark::test {

using namespace std::string_literals;

std::vector<JsonCase> goodStringCases() {
  return {
      {R"("")", ""},
      {R"(" ")", " "},
      {R"("a")", "a"},
      {R"("0")", "0"},
      {R"("1e3")", "1e3"},
      {R"("true")", "true"},
      {R"("null")", "null"},
      {R"("'")", "'"},
      {R"("a/b")", "a/b"},
      {R"("// no comment")", "// no comment"},
      {R"("/* no comment */")", "/* no comment */"},
      {R"("[1,")", "[1,"},
      {R"("{}")", "{}"},
      {R"("\"")", "\""},
      {R"("\\")", "\\"},
      {R"("\/")", "/"},
      {R"("\b")", "\b"},
      {R"("\f")", "\f"},
      {R"("\n")", "\n"},
      {R"("\r")", "\r"},
      {R"("\t")", "\t"},
      {R"("\\\\")", R"(\\)"},
      {R"("\\\"")", R"(\")"},
      {R"("\\n")", R"(\n)"},
      {R"("\\u0041")", R"(\u0041)"},
      {R"("\u0041")", "A"},
      {R"("\u00e9\u00E9")", "éé"},
      {R"("\u20ac")", "€"},
      {R"("\u00411")", "A1"},
      {R"("\u0000")", "\0"s},
      {R"("a\u0000b")", "a\0b"s},
      {R"("\u001f")", "\x1F"},
      {R"("\u007f")", "\x7F"},
      {R"("\u0080")", "\u0080"},
      {R"("\u07ff\u0800")", "\u07FF\u0800"},
      {R"("\u0022")", "\""},
      {R"("\u005c")", "\\"},
      {R"("\u005cn")", "\\n"},
      {R"("\u2028\u2029")", "\u2028\u2029"},
      {R"("\ufeff")", "\uFEFF"},
      {R"("\ufdd0\ufffe\uffff")", "\uFDD0\uFFFE\uFFFF"},
      {R"("\ud7ff\ue000")", "\uD7FF\uE000"},
      {R"("\ufffd")", "\uFFFD"},
      {R"("é")", "é"},
      {R"("€ 😀")", "€ 😀"},
      {"\"e\u0301\"", "e\u0301"},
      {"\"\u202Egnp.exe\"", "\u202Egnp.exe"},
      {"\"\u2028\"", "\u2028"},
      {"\"\uFEFF\"", "\uFEFF"},
      {"\"\x7F\"", "\x7F"},
      {R"("<b>&amp;</b>")", "<b>&amp;</b>"},
      {R"("%s%n")", "%s%n"},
      {'"' + std::string(100000, 'a') + '"', std::string(100000, 'a')},
  };
}

}  // namespace quillmark::test
