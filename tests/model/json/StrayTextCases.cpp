// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/json/JsonCase.h"

namespace quillmark::test {

// Comments, and other texts that another program on the agent's port may send.
std::vector<JsonCase> strayTextCases() {
  return {
      {"// comment\n1", NotJson{}},
      {"1 // comment", NotJson{}},
      {"1 // comment\n", NotJson{}},
      {"/* comment */ 1", NotJson{}},
      {"1 /* comment */", NotJson{}},
      {"/* comment */", NotJson{}},
      {"[1, // comment\n2]", NotJson{}},
      {"[/**/]", NotJson{}},
      {"[1/**/]", NotJson{}},
      {"{/**/}", NotJson{}},
      {R"({"a":/**/1})", NotJson{}},
      {R"({"a"/**/:1})", NotJson{}},
      {"# comment\n1", NotJson{}},
      {"1 # comment", NotJson{}},
      {"; comment\n1", NotJson{}},
      {"-- comment\n1", NotJson{}},
      {"<!-- comment -->1", NotJson{}},
      {"/", NotJson{}},
      {"\\", NotJson{}},
      {":", NotJson{}},
      {",", NotJson{}},
      {"*", NotJson{}},
      {"()", NotJson{}},
      {"a=1", NotJson{}},
      {"a: 1", NotJson{}},
      {"---\na: 1", NotJson{}},
      {"[agent]", NotJson{}},
      {"data: {}", NotJson{}},
      {"callback({})", NotJson{}},
      {"while(1);{}", NotJson{}},
      {")]}'\n{}", NotJson{}},
      {"for(;;);[]", NotJson{}},
      {"<html></html>", NotJson{}},
      {"<?xml version=\"1.0\"?><a/>", NotJson{}},
      {"HTTP/1.1 200 OK\r\n\r\n{}", NotJson{}},
      {"SSH-2.0-OpenSSH_9.2\r\n", NotJson{}},
      {"2\r\n{}\r\n0\r\n\r\n", NotJson{}},
      {"\x15\x03\x01", NotJson{}},
  };
}

}  // namespace quillmark::test
