// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/json/Expectation.h"

#include <array>

namespace quillmark::test {
namespace {

/// In the order of Verdict's alternatives.
constexpr std::array typeNames{"nothing", "null",   "boolean", "number",
                               "number",  "string", "array",   "object"};
static_assert(typeNames.size() == std::variant_size_v<Verdict::variant>);

}  // namespace

Expectation::Failure Expectation::mismatch(std::string_view wanted, const Verdict& found) {
  const bool isNull = std::holds_alternative<Null>(found);
  return DecodeError{isNull ? DecodeFailure::valueNotFound : DecodeFailure::typeMismatch,
                     {},
                     std::string(wanted) + " expected, " + typeNames.at(found.index()) + " found"};
}

Expectation::Failure Expectation::read(const Verdict& found, std::string& text) {
  const auto* const string = std::get_if<std::string>(&found);
  if (string == nullptr) {
    return mismatch("string", found);
  }
  text = *string;
  return {};
}

Expectation::Failure Expectation::read(const Verdict& found, bool& flag) {
  const auto* const boolean = std::get_if<bool>(&found);
  if (boolean == nullptr) {
    return mismatch("boolean", found);
  }
  flag = *boolean;
  return {};
}

Expectation::Failure Expectation::read(const Verdict& found, std::int64_t& number) {
  if (std::holds_alternative<OtherNumber>(found)) {
    return DecodeError{DecodeFailure::dataCorrupted, {}, "signed 64-bit integer expected"};
  }
  const auto* const integer = std::get_if<std::int64_t>(&found);
  if (integer == nullptr) {
    return mismatch("integer", found);
  }
  number = *integer;
  return {};
}

}  // namespace quillmark::test
