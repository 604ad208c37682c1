// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/json/JsonCase.h"

namespace quillmark::test {

std::vector<JsonCase> whiteSpaceCases() {
  return {
      {" true", true},
      {"true ", true},
      {"\t1", 1},
      {"1\t", 1},
      {"\nnull\n", Null{}},
      {"\r\n\"a\"\r\n", "a"},
      {" \t\r\n[ \t\r\n] \t\r\n", List{}},
      {"\r[\r1\r]\r", List{1}},
      {" {\n} ", Object{}},
      {"{ \"a\"\t:\n1\r}", Object{}},
      {std::string(5000, ' ') + "0", 0},
      {"0" + std::string(5000, '\n'), 0},
      {"", NotJson{}},
      {" ", NotJson{}},
      {"\n", NotJson{}},
      {"\t\t", NotJson{}},
      {"\r\n\r\n", NotJson{}},
      {std::string(5000, ' '), NotJson{}},
      {"\ftrue", NotJson{}},
      {"true\f", NotJson{}},
      {"\vtrue", NotJson{}},
      {"true\v", NotJson{}},
      {"\b1", NotJson{}},
      {"1\x1B", NotJson{}},
      {"\x1E{}", NotJson{}},
      {"1\x1A", NotJson{}},
      {"\x7F\x31", NotJson{}},
      {"[\f]", NotJson{}},
      {"[1\v]", NotJson{}},
      {"{\"a\"\f:1}", NotJson{}},
      {"\x85\x31", NotJson{}},
      {"\u00851", NotJson{}},
      {"\u00A01", NotJson{}},
      {"1\u00A0", NotJson{}},
      {"[\u00A01]", NotJson{}},
      {"\u16801", NotJson{}},
      {"\u20031", NotJson{}},
      {"\u200B1", NotJson{}},
      {"\u20281", NotJson{}},
      {"1\u2029", NotJson{}},
      {"\u30001", NotJson{}},
      {"\u20601", NotJson{}},
      {"\uFEFF1", NotJson{}},
      {"1\uFEFF", NotJson{}},
      {" \uFEFF{}", NotJson{}},
      {"\\n1", NotJson{}},
      {"&nbsp;1", NotJson{}},
  };
}

}  // namespace quillmark::test
