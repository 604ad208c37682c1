// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/DecodeError.h"
#include "model/RecordJson.h"
#include "model/json/JsonCase.h"

namespace quillmark::test {

/// The expected result when a text is decoded as a value of a certain type: that value,
/// or a failure. A failure without detail means that the text is not JSON; any message
/// of the parser is accepted.
class Expectation final {
 public:
  using Failure = std::optional<DecodeError>;

  /// For a text in a body with `levels` open brackets before it.
  template <class T>
  static Failure of(const JsonCase& text, int levels, T& value) {
    return isRefused(text, levels) ? noJson() : read(text.verdict, value);
  }

  /// For a text under a key that is ignored.
  static Failure ofIgnored(const JsonCase& text, int levels) {
    return isRefused(text, levels) ? noJson() : Failure{};
  }

  /// The failure with `step` before its path.
  static Failure under(const std::string& step, Failure failure) {
    const bool isOfBody = failure && failure->detail.empty();
    if (failure && !isOfBody) {
      const bool separate = !failure->path.empty() && failure->path.front() != '[';
      failure->path = step + (separate ? "." : "") + failure->path;
    }
    return failure;
  }

 private:
  static Failure noJson() { return DecodeError{DecodeFailure::dataCorrupted, {}, {}}; }

  static bool isRefused(const JsonCase& text, int levels) {
    return std::holds_alternative<NotJson>(text.verdict) || levels + text.depth > maxDepth;
  }

  static Failure mismatch(std::string_view wanted, const Verdict& found);

  static Failure read(const Verdict& found, std::string& text);
  static Failure read(const Verdict& found, bool& flag);
  static Failure read(const Verdict& found, std::int64_t& number);

  template <class T>
  static Failure read(const Verdict& found, std::optional<T>& value) {
    value.reset();
    return std::holds_alternative<Null>(found) ? Failure{} : read(found, value.emplace());
  }

  template <class T>
  static Failure read(const Verdict& found, std::vector<T>& elements) {
    elements.clear();
    const auto* const list = std::get_if<List>(&found);
    if (list == nullptr) {
      return mismatch("array", found);
    }
    for (const auto& element : *list) {
      if (auto failure = read(element, elements.emplace_back())) {
        return under('[' + std::to_string(elements.size() - 1) + ']', std::move(failure));
      }
    }
    return {};
  }

  template <Record R>
  static Failure read(const Verdict& found, R&) {
    if (!std::holds_alternative<Object>(found)) {
      // For a record, null is a wrong type like any other.
      auto failure = mismatch("object", found);
      failure->kind = DecodeFailure::typeMismatch;
      return failure;
    }
    for (const auto& key : keysOf<R>()) {
      if (!isOptional<R>(key)) {
        return DecodeError{DecodeFailure::keyNotFound, key, "required key missing"};
      }
    }
    return {};
  }
};

}  // namespace quillmark::test
