// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/json/JsonCase.h"

namespace quillmark::test {
namespace {

using namespace std::string_literals;

std::vector<JsonCase> utf8EdgeCases() {
  return {
      {"\"\xC2\x80\"", "\xC2\x80"},
      {"\"\xDF\xBF\"", "\xDF\xBF"},
      {"\"\xE0\xA0\x80\"", "\xE0\xA0\x80"},
      {"\"\xED\x9F\xBF\"", "\xED\x9F\xBF"},
      {"\"\xEE\x80\x80\"", "\xEE\x80\x80"},
      {"\"\xEF\xBF\xBF\"", "\xEF\xBF\xBF"},
      {"\"\xF0\x90\x80\x80\"", "\xF0\x90\x80\x80"},
      {"\"\xF4\x8F\xBF\xBF\"", "\xF4\x8F\xBF\xBF"},
  };
}

std::vector<JsonCase> badUtf8Cases() {
  return {
      {"\"\x80\"", NotJson{}},
      {"\"\xBF\"", NotJson{}},
      {"\"\xFE\"", NotJson{}},
      {"\"\xFF\"", NotJson{}},
      {"\"\xC2\"", NotJson{}},
      {"\"\xC2", NotJson{}},
      {"\"\xC2z\"", NotJson{}},
      {"\"\xC3\xA9\xA9\"", NotJson{}},
      {"\"\xE2\"", NotJson{}},
      {"\"\xE2\x82\"", NotJson{}},
      {"\"\xE2\x82", NotJson{}},
      {"\"\xE2z\x82\"", NotJson{}},
      {"\"\xF0\x9F\x98\"", NotJson{}},
      {"\"\xF0\x9F\x98z\"", NotJson{}},
      // Longer than necessary.
      {"\"\xC0\x80\"", NotJson{}},
      {"\"\xC0\xA2\"", NotJson{}},
      {"\"\xC1\xBF\"", NotJson{}},
      {"\"\xE0\x80\x80\"", NotJson{}},
      {"\"\xE0\x9F\xBF\"", NotJson{}},
      {"\"\xF0\x80\x80\x80\"", NotJson{}},
      {"\"\xF0\x8F\xBF\xBF\"", NotJson{}},
      // Surrogates, alone and as a pair.
      {"\"\xED\xA0\x80\"", NotJson{}},
      {"\"\xED\xBF\xBF\"", NotJson{}},
      {"\"\xED\xA0\xBD\xED\xB8\x80\"", NotJson{}},
      // Beyond U+10FFFF.
      {"\"\xF4\x90\x80\x80\"", NotJson{}},
      {"\"\xF5\x80\x80\x80\"", NotJson{}},
      {"\"\xF8\x88\x80\x80\x80\"", NotJson{}},
      {"\"\xFC\x84\x80\x80\x80\x80\"", NotJson{}},
      // In a key, and outside of quotes.
      {"{\"\xFF\":1}", NotJson{}},
      {"{\"\xC0\x80\":1}", NotJson{}},
      {"\xFF", NotJson{}},
      {"\x80", NotJson{}},
      {"é", NotJson{}},
      {"[\xC3\xA9]", NotJson{}},
  };
}

std::vector<JsonCase> otherEncodingCases() {
  return {
      // Latin-1, Windows-1252
      {"\"caf\xE9\"", NotJson{}},
      {"\"\x93quoted\x94\"", NotJson{}},
      // UTF-16 of both byte orders, without and with a byte order mark
      {"\x31\0"s, NotJson{}},
      {"\xFF\xFE\x31\0"s, NotJson{}},
      {"\0\x31"s, NotJson{}},
      {"\xFE\xFF\0\x31"s, NotJson{}},
      {"{\0}\0"s, NotJson{}},
      {"\"\0a\0\"\0"s, NotJson{}},
      // UTF-32
      {"\x31\0\0\0"s, NotJson{}},
      {"\xFF\xFE\0\0\x31\0\0\0"s, NotJson{}},
      {"\0\0\xFE\xFF\0\0\0\x31"s, NotJson{}},
      // UTF-8 with a mark, UTF-7
      {"\xEF\xBB\xBF{}", NotJson{}},
      {"\xEF\xBB\xBF\"a\"", NotJson{}},
      {"\xEF\xBB", NotJson{}},
      {"+ADw-", NotJson{}},
      // gzip, and nothing but NUL
      {"\x1F\x8B\x08\0\0\0\0\0"s, NotJson{}},
      {"\0"s, NotJson{}},
      {"\0\0\0\0"s, NotJson{}},
  };
}

}  // namespace

std::vector<JsonCase> encodingCases() {
  auto cases = utf8EdgeCases();
  for (const auto& some : {badUtf8Cases(), otherEncodingCases()}) {
    cases.insert(cases.end(), some.begin(), some.end());
  }
  return cases;
}

}  // namespace quillmark::test
