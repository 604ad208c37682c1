// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/json/JsonCase.h"

namespace quillmark::test {
namespace {

using namespace std::string_literals;

std::string manyMembers(int count) {
  std::string text = R"({"a":1)";
  for (int i = 1; i < count; ++i) {
    text += R"(,"k)" + std::to_string(i) + R"(":)" + std::to_string(i);
  }
  return text += '}';
}

std::vector<JsonCase> goodObjectCases() {
  return {
      {"{}", Object{}},
      {"{ }", Object{}},
      {R"({"a":1})", Object{}},
      {R"({"a":null})", Object{}},
      {R"({"a":1,"b":2})", Object{}},
      {R"({"a":1,"a":2})", Object{}},
      {R"({"a":{},"a":[],"a":null})", Object{}},
      {R"({"A":1,"a":1})", Object{}},
      {R"({"\u0061":1,"a":2})", Object{}},
      {R"({"":1})", Object{}},
      {R"({"":1,"":2})", Object{}},
      {R"({"":{"":[{"":""}]}})", Object{}},
      {R"({" ":1})", Object{}},
      {R"({"a b":1})", Object{}},
      {R"({"\u0000":1})", Object{}},
      {R"({"\"":1})", Object{}},
      {R"({"a\/b\n":1})", Object{}},
      {R"({"\ud83d\ude00":1,"😀":2})", Object{}},
      {R"({"__proto__":{}})", Object{}},
      {R"({"a":[{"b":[{}]}]})", Object{}},
      {'{' + ('"' + std::string(100000, 'k') + '"') + ":1}", Object{}},
      {manyMembers(1000), Object{}},
  };
}

std::vector<JsonCase> badObjectCases() {
  return {
      {"{", NotJson{}},
      {"}", NotJson{}},
      {R"({"a)", NotJson{}},
      {R"({"a")", NotJson{}},
      {R"({"a":)", NotJson{}},
      {R"({"a":1)", NotJson{}},
      {R"({"a":1,)", NotJson{}},
      {R"({"a":"b)", NotJson{}},
      {R"({"a":[})", NotJson{}},
      {R"({"a":1,})", NotJson{}},
      {R"({,"a":1})", NotJson{}},
      {R"({"a":1,,"b":2})", NotJson{}},
      {"{,}", NotJson{}},
      {R"({"a"})", NotJson{}},
      {R"({"a":})", NotJson{}},
      {R"({"a",1})", NotJson{}},
      {R"({"a" 1})", NotJson{}},
      {R"({"a"=1})", NotJson{}},
      {R"({"a"=>1})", NotJson{}},
      {R"({"a";1})", NotJson{}},
      {R"({"a"::1})", NotJson{}},
      {R"({"a":1:2})", NotJson{}},
      {R"({"a":1 "b":2})", NotJson{}},
      {R"({"a":1;"b":2})", NotJson{}},
      {R"({"a":1 2})", NotJson{}},
      {R"({"a":1,2})", NotJson{}},
      {R"({"a":1,"b"})", NotJson{}},
      {"{:1}", NotJson{}},
      {"{1}", NotJson{}},
      {"{a:1}", NotJson{}},
      {"{'a':1}", NotJson{}},
      {R"({"a":'b'})", NotJson{}},
      {R"({"a":b})", NotJson{}},
      {"{1:1}", NotJson{}},
      {"{null:1}", NotJson{}},
      {"{true:1}", NotJson{}},
      {"{[]:1}", NotJson{}},
      {"{{}:1}", NotJson{}},
      {"{{}}", NotJson{}},
      {"{[]}", NotJson{}},
      {"{]", NotJson{}},
      {R"({"a":1])", NotJson{}},
      {R"({"a":1}})", NotJson{}},
      {"{\"a\nb\":1}", NotJson{}},
      {R"({"\x":1})", NotJson{}},
      {"{\"a\"\0:1}"s, NotJson{}},
      {"{}\0"s, NotJson{}},
      {R"({"a":1e400})", NotJson{}},
      {"{}x", NotJson{}},
      {"{};", NotJson{}},
      {"{}{}", NotJson{}},
      {"{}\n{}", NotJson{}},
      {"{} []", NotJson{}},
  };
}

}  // namespace

std::vector<JsonCase> objectCases() {
  auto cases = goodObjectCases();
  const auto bad = badObjectCases();
  cases.insert(cases.end(), bad.begin(), bad.end());
  return cases;
}

}  // namespace quillmark::test
