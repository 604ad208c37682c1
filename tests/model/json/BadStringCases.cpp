// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/json/JsonCase.h"

namespace quillmark::test {
namespace {

using namespace std::string_literals;

/// Every control character must be escaped.
std::vector<JsonCase> controlCharacterCases() {
  std::vector<JsonCase> cases;
  for (char c = 0; c < ' '; ++c) {
    cases.push_back({"\"a"s + c + "b\"", NotJson{}});
  }
  return cases;
}

std::vector<JsonCase> escapeCases() {
  return {
      {R"("\x41")", NotJson{}},   {R"("\a")", NotJson{}},         {R"("\v")", NotJson{}},
      {R"("\e")", NotJson{}},     {R"("\0")", NotJson{}},         {R"("\1")", NotJson{}},
      {R"("\'")", NotJson{}},     {R"("\N")", NotJson{}},         {R"("\T")", NotJson{}},
      {R"("\ ")", NotJson{}},     {R"("\U0041")", NotJson{}},     {R"("\u")", NotJson{}},
      {R"("\u1")", NotJson{}},    {R"("\u12")", NotJson{}},       {R"("\u123")", NotJson{}},
      {R"("\u12G4")", NotJson{}}, {R"("\uG000")", NotJson{}},     {R"("\u 041")", NotJson{}},
      {R"("\u+041")", NotJson{}}, {R"("\u-041")", NotJson{}},     {R"("\u0x41")", NotJson{}},
      {R"("\u{41}")", NotJson{}}, {R"("\u00\u0041")", NotJson{}}, {"\"\\\xC3\xA9\"", NotJson{}},
      {"\"\\\n\"", NotJson{}},    {"\"\\\t\"", NotJson{}},        {"\"\\\0\""s, NotJson{}},
  };
}

std::vector<JsonCase> quoteCases() {
  return {
      {R"(")", NotJson{}},       {R"("a)", NotJson{}},     {R"(a")", NotJson{}},
      {R"(a)", NotJson{}},       {R"("\)", NotJson{}},     {R"("a\)", NotJson{}},
      {R"("\")", NotJson{}},     {R"("\\\")", NotJson{}},  {R"("\u)", NotJson{}},
      {R"("\u00)", NotJson{}},   {R"("a"b)", NotJson{}},   {R"("a"")", NotJson{}},
      {R"("a"b")", NotJson{}},   {R"("a""b")", NotJson{}}, {R"("a" "b")", NotJson{}},
      {R"("a"+"b")", NotJson{}}, {R"("a"1)", NotJson{}},   {R"('a')", NotJson{}},
      {R"('')", NotJson{}},      {R"("a')", NotJson{}},    {R"('a")", NotJson{}},
      {R"("""a""")", NotJson{}}, {R"(`a`)", NotJson{}},    {R"(/a/)", NotJson{}},
      {R"(u"a")", NotJson{}},    {R"(\"a\")", NotJson{}},  {"\u201Ca\u201D", NotJson{}},
      {"\"a\"\0"s, NotJson{}},
  };
}

}  // namespace

std::vector<JsonCase> badStringCases() {
  auto cases = controlCharacterCases();
  for (const auto& some : {escapeCases(), quoteCases()}) {
    cases.insert(cases.end(), some.begin(), some.end());
  }
  return cases;
}

}  // namespace quillmark::test
