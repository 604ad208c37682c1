// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Repeated.h"
#include "model/json/JsonCase.h"

namespace quillmark::test {
namespace {

JsonCase arrays(int depth) {
  List verdict{1};
  for (int i = 1; i < depth; ++i) {
    verdict = List{std::move(verdict)};
  }
  return {repeated(depth, "[") + '1' + repeated(depth, "]"), std::move(verdict), depth};
}

JsonCase objects(int depth) {
  return {repeated(depth, R"({"a":)") + '1' + repeated(depth, "}"), Object{}, depth};
}

JsonCase both(int levels) {
  return {repeated(levels, R"({"a":[)") + '1' + repeated(levels, "]}"), Object{}, 2 * levels};
}

}  // namespace

// Reaches the limit with a whole text, and with a text three levels down in a body.
std::vector<JsonCase> nestingCases() {
  std::vector<JsonCase> cases{both(200), both(254), both(255), both(256), both(257)};
  for (const int depth : {100, 508, 509, 510, 511, 512, 513, 1000, 100000}) {
    cases.push_back(depth > 1000 ? JsonCase{repeated(depth, "[") + repeated(depth, "]"), NotJson{}}
                                 : arrays(depth));
    cases.push_back(objects(depth));
    cases.push_back({repeated(depth, "["), NotJson{}});
    cases.push_back({repeated(depth, R"({"a":)"), NotJson{}});
    cases.push_back({repeated(depth, R"([{"":)"), NotJson{}});
  }
  return cases;
}

}  // namespace quillmark::test
