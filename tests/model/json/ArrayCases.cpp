// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Repeated.h"
#include "model/json/JsonCase.h"

namespace quillmark::test {
namespace {

using namespace std::string_literals;

std::string many(const std::string& element, int count) {
  return '[' + repeated(count - 1, element + ',') + element + ']';
}

std::vector<JsonCase> goodArrayCases() {
  return {
      {"[]", List{}},
      {"[ ]", List{}},
      {"[1]", List{1}},
      {"[ 1 , 2 ]", List{1, 2}},
      {"[2.5]", List{OtherNumber{}}},
      {"[true,false]", List{true, false}},
      {"[null]", List{Null{}}},
      {"[null,null]", List{Null{}, Null{}}},
      {R"([""])", List{""}},
      {R"(["a"])", List{"a"}},
      {R"(["b","a","b"])", List{"b", "a", "b"}},
      {R"(["a",1])", List{"a", 1}},
      {R"(["a",null])", List{"a", Null{}}},
      {R"([null,"a"])", List{Null{}, "a"}},
      {R"(["a",["b"]])", List{"a", List{"b"}}},
      {R"(["a",{}])", List{"a", Object{}}},
      {"[[]]", List{List{}}},
      {"[[],[]]", List{List{}, List{}}},
      {"[[[1]],2]", List{List{List{1}}, 2}},
      {"[{}]", List{Object{}}},
      {"[{},{}]", List{Object{}, Object{}}},
      {R"([{"a":1},{"b":[]}])", List{Object{}, Object{}}},
      {many("1", 1000), List(1000, 1)},
      {many("[[]]", 1000), List(1000, List{List{}})},
  };
}

std::vector<JsonCase> badArrayCases() {
  return {
      {"[", NotJson{}},           {"]", NotJson{}},
      {"[1", NotJson{}},          {"[1,", NotJson{}},
      {"[\"a\"", NotJson{}},      {"[\"a", NotJson{}},
      {"[[]", NotJson{}},         {"[]]", NotJson{}},
      {"[1]]", NotJson{}},        {"[1,]", NotJson{}},
      {"[[],]", NotJson{}},       {"[,]", NotJson{}},
      {"[,1]", NotJson{}},        {"[1,,2]", NotJson{}},
      {"[1 2]", NotJson{}},       {R"(["a" "b"])", NotJson{}},
      {R"(["a""b"])", NotJson{}}, {"[[][]]", NotJson{}},
      {"[1;2]", NotJson{}},       {"[1:2]", NotJson{}},
      {R"(["a":1])", NotJson{}},  {"[}", NotJson{}},
      {"[1}", NotJson{}},         {"[{]}", NotJson{}},
      {"[)", NotJson{}},          {"(1)", NotJson{}},
      {"<1>", NotJson{}},         {"[a]", NotJson{}},
      {"['a']", NotJson{}},       {"[...]", NotJson{}},
      {"[1..3]", NotJson{}},      {"[-]", NotJson{}},
      {"[01]", NotJson{}},        {"[1.]", NotJson{}},
      {"[tru]", NotJson{}},       {"[NaN]", NotJson{}},
      {"[*]", NotJson{}},         {"[\\n]", NotJson{}},
      {"[1\0]"s, NotJson{}},      {"[\"\t\"]", NotJson{}},
      {"[\"\xFF\"]", NotJson{}},  {R"(["\ud800"])", NotJson{}},
      {"[1]\0"s, NotJson{}},      {"[1]x", NotJson{}},
      {"[1]1", NotJson{}},        {"[1][2]", NotJson{}},
      {"[] []", NotJson{}},       {"[],", NotJson{}},
  };
}

}  // namespace

std::vector<JsonCase> arrayCases() {
  auto cases = goodArrayCases();
  const auto bad = badArrayCases();
  cases.insert(cases.end(), bad.begin(), bad.end());
  return cases;
}

}  // namespace quillmark::test
