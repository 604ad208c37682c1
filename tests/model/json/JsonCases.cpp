// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/json/JsonCase.h"

namespace quillmark::test {

const std::vector<JsonCase>& jsonCases() {
  static const auto all = [] {
    std::vector<JsonCase> cases;
    for (const auto& some : {literalCases(), whiteSpaceCases(), goodNumberCases(), badNumberCases(),
                             goodStringCases(), badStringCases(), surrogateCases(), encodingCases(),
                             arrayCases(), objectCases(), nestingCases(), strayTextCases()}) {
      cases.insert(cases.end(), some.begin(), some.end());
    }
    return cases;
  }();
  return all;
}

}  // namespace quillmark::test
