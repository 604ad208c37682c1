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

/// A number that is accepted but is not a signed integer of 64 bits.
struct OtherNumber {};

/// An object without keys of any record's table.
struct Object {};

/// The meaning of a text as JSON: strings and integers have their values, arrays the
/// meanings of their elements.
struct Verdict : std::variant<NotJson, Null, bool, std::int64_t, OtherNumber, std::string,
                              std::vector<Verdict>, Object> {
  using variant::variant;
};

using List = std::vector<Verdict>;

/// A small text and its verdict. Where JSON parsers differ (duplicate keys, lone
/// surrogates, depth, numbers too large for a double and an integer of 64 bits), the
/// verdict is this system's.
///
/// No text has a comma outside brackets: inside a list, it would be two valid elements.
struct JsonCase {
  std::string text;
  Verdict verdict;
  int depth = 0;  ///< brackets open at once; set only if near the limit
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
