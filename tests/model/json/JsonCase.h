// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace quillmark::test {

/// No JSON text at all.
struct NotJson {};

struct Null {};

/// A number of 64 bits, whole or not, that is no whole number with a sign.
struct OtherNumber {};

/// An object, of which no key is in any record's table.
struct Object {};

/// What a text says as JSON. The strings and whole numbers are what it means,
/// the arrays what their elements mean.
struct Verdict : std::variant<NotJson, Null, bool, std::int64_t, OtherNumber, std::string,
                              std::vector<Verdict>, Object> {
  using variant::variant;
};

using List = std::vector<Verdict>;

/// A small text and its verdict. Where the JSON grammar's readers differ (twice
/// the same key, lone surrogates, depth, numbers that neither a double nor an
/// integer of 64 bits holds), the verdict is this system's.
///
/// No text has a comma outside brackets: two of them in a list would be good.
struct JsonCase {
  std::string text;
  Verdict verdict;
  int depth = 0;  ///< brackets open at once; told only where it comes near the limit
};

/// Levels of brackets in a body beyond which it is refused.
inline constexpr int maxDepth = 512;

std::vector<JsonCase> literalCases();
std::vector<JsonCase> whiteSpaceCases();
std::vector<JsonCase> goodNumberCases();
std::vector<JsonCase> badNumberCases();
std::vector<JsonCase> goodStringCases();
std::vector<JsonCase> badStringCases();
std::vector<JsonCase> surrogateCases();
std::vector<JsonCase> encodingCases();
std::vector<JsonCase> arrayCases();
std::vector<JsonCase> objectCases();
std::vector<JsonCase> nestingCases();
std::vector<JsonCase> strayTextCases();

/// All of them.
const std::vector<JsonCase>& jsonCases();

}  // namespace quillmark::test
