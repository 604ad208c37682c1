// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/json/JsonCase.h"

namespace quillmark::test {

using namespace std::string_literals;

std::vector<JsonCase> literalCases() {
  return {
      {"true", true},
      {"false", false},
      {"null", Null{}},
      {"True", NotJson{}},
      {"TRUE", NotJson{}},
      {"tRUE", NotJson{}},
      {"truE", NotJson{}},
      {"False", NotJson{}},
      {"FALSE", NotJson{}},
      {"Null", NotJson{}},
      {"NULL", NotJson{}},
      {"t", NotJson{}},
      {"tru", NotJson{}},
      {"f", NotJson{}},
      {"fals", NotJson{}},
      {"n", NotJson{}},
      {"nul", NotJson{}},
      {"truee", NotJson{}},
      {"falsefalse", NotJson{}},
      {"nullx", NotJson{}},
      {"true false", NotJson{}},
      {"truefalse", NotJson{}},
      {"nullnull", NotJson{}},
      {"null0", NotJson{}},
      {"t rue", NotJson{}},
      {"nu\nll", NotJson{}},
      {"true,", NotJson{}},
      {"true\0"s, NotJson{}},
      {"-true", NotJson{}},
      {"!true", NotJson{}},
      {"yes", NotJson{}},
      {"on", NotJson{}},
      {"nil", NotJson{}},
      {"none", NotJson{}},
      {"None", NotJson{}},
      {"undefined", NotJson{}},
      {"NaN", NotJson{}},
      {"nan", NotJson{}},
      {"-NaN", NotJson{}},
      {"Infinity", NotJson{}},
      {"-Infinity", NotJson{}},
      {"+Infinity", NotJson{}},
      {"inf", NotJson{}},
  };
}

}  // namespace quillmark::test
