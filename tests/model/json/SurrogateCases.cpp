// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/json/JsonCase.h"

namespace quillmark::test {

std::vector<JsonCase> surrogateCases() {
  return {
      {R"("\ud83d\ude00")", "😀"},
      {R"("\uD83D\uDE00")", "😀"},
      {R"("\uD83d\ude00x")", "😀x"},
      {R"("\ud800\udc00")", "\U00010000"},
      {R"("\udbff\udfff")", "\U0010FFFF"},
      {R"("\ud800\udc00\ud800\udc00")", "\U00010000\U00010000"},
      {R"("\ud800")", NotJson{}},
      {R"("\udbff")", NotJson{}},
      {R"("\udc00")", NotJson{}},
      {R"("\udfff")", NotJson{}},
      {R"("\uD800")", NotJson{}},
      {R"("x\ud83d")", NotJson{}},
      {R"("x\ude00")", NotJson{}},
      {R"("\ud800x")", NotJson{}},
      {R"("\ud800\n")", NotJson{}},
      {R"("\ud800\\")", NotJson{}},
      {R"("\ud83d\\ude00")", NotJson{}},
      {R"("\ud83d ude00")", NotJson{}},
      {R"("\ud83d \ude00")", NotJson{}},
      {R"("\ud83d\u0041")", NotJson{}},
      {R"("\ud83d\ue000")", NotJson{}},
      {R"("\ud83d\ud7ff")", NotJson{}},
      {R"("\ud800\ud800")", NotJson{}},
      {R"("\ud800\udbff")", NotJson{}},
      {R"("\ude00\ud83d")", NotJson{}},
      {R"("\udc00\udc00")", NotJson{}},
      {R"("\ud83d\ude00\ude00")", NotJson{}},
      {R"("\ud83d\u")", NotJson{}},
      {R"("\ud83d\ude0")", NotJson{}},
      {R"("\ud83d\uDEGG")", NotJson{}},
      {R"("\ud83d)", NotJson{}},
      {R"("\ud83d\)", NotJson{}},
      {R"("\ud83d\u)", NotJson{}},
      {R"("\ud83d\ude00)", NotJson{}},
      {"\"\\ud83d\xED\xB8\x80\"", NotJson{}},
      {R"({"\ud800":1})", NotJson{}},
      {R"({"\udc00":1})", NotJson{}},
  };
}

}  // namespace quillmark::test
