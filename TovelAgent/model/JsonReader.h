// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include <simdjson.h>

#include "model/DecodeError.h"
#include "model/Field.h"

namespace quillmark {

/// Fills a value from parsed JSON according to the value's type, and a record
/// according to its field table. The value must be newly created, because texts are
/// appended to it: that takes 5 % less time than to assign them. Every `read` returns false at the
/// first failure; `takeFailure()` then returns that failure.
class JsonReader final {
 public:
  using Element = simdjson::dom::element;

  template <Record R>
  [[nodiscard]] bool read(Element json, R& record) {
    simdjson::dom::object object;
    if (json.get(object) != simdjson::SUCCESS) {
      // Null is a mismatch, too: only scalars and arrays report `valueNotFound`.
      return fail(DecodeFailure::typeMismatch, expected("object", json));
    }
    const auto values = valuesOf<R>(object);
    std::size_t index = 0;
    return std::apply(
        [&](const auto&... field) { return (readField(values[index++], field, record) && ...); },
        R::fields);
  }

  template <class T>
  [[nodiscard]] bool read(Element json, std::vector<T>& elements) {
    simdjson::dom::array array;
    if (json.get(array) != simdjson::SUCCESS) {
      return mismatch("array", json);
    }
    elements.reserve(array.size());
    for (const Element element : array) {
      if (!read(element, elements.emplace_back())) {
        return failWithin('[' + std::to_string(elements.size() - 1) + ']');
      }
    }
    return true;
  }

  [[nodiscard]] bool read(Element json, std::string& text) {
    std::string_view value;
    if (json.get(value) != simdjson::SUCCESS) {
      return mismatch("string", json);
    }
    text.append(value);
    return true;
  }

  [[nodiscard]] bool read(Element json, bool& flag) {
    return json.get(flag) == simdjson::SUCCESS || mismatch("boolean", json);
  }

  [[nodiscard]] bool read(Element json, std::int64_t& number) {
    if (!json.is_number()) {
      return mismatch("integer", json);
    }
    if (json.get(number) == simdjson::SUCCESS) {
      return true;
    }
    // 2.0 and 1e3 are integers too. Between -2^63 and 2^63 the conversion is exact;
    // -2^63 itself is rejected: it may be a smaller number that was rounded.
    constexpr double limit = 9223372036854775808.0;
    double value = 0;
    if (json.get(value) == simdjson::SUCCESS && value > -limit && value < limit &&
        std::trunc(value) == value) {
      number = static_cast<std::int64_t>(value);
      return true;
    }
    return fail(DecodeFailure::dataCorrupted, "signed 64-bit integer expected");
  }

  /// The first failure. Call once, after a `read` returned false.
  [[nodiscard]] DecodeError takeFailure() { return std::move(failure_); }

 private:
  /// The values of a record's keys, in table order. For a duplicate key the last
  /// value is used.
  template <Record R>
  static auto valuesOf(simdjson::dom::object object) {
    static constexpr auto keys =
        std::apply([](const auto&... field) { return std::array{field.key...}; }, R::fields);
    std::array<std::optional<Element>, keys.size()> values;
    // The key after the last match is compared first: most agents send keys in table order,
    // so that it usually matches.
    std::size_t next = 0;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
      for (std::size_t i = 0; i < keys.size(); ++i) {
        const std::size_t index = (next + i) % keys.size();
        if (entry.key_equals(keys[index])) {
          values[index] = entry.value();
          next = index + 1;
          break;
        }
      }
    }
    return values;
  }

  template <class Owner, class Value>
  bool readField(const std::optional<Element>& json, const Field<Owner, Value>& field,
                 Owner& record) {
    const bool isRead = json ? read(*json, record.*field.member)
                             : fail(DecodeFailure::keyNotFound, "required key missing");
    return isRead || failWithin(field.key);
  }

  template <class Owner, class Value>
  bool readField(const std::optional<Element>& json,
                 const Field<Owner, std::optional<Value>>& field, Owner& record) {
    return !json || json->is_null() || read(*json, (record.*field.member).emplace()) ||
           failWithin(field.key);
  }

  bool mismatch(std::string_view type, Element json) {
    return fail(json.is_null() ? DecodeFailure::valueNotFound : DecodeFailure::typeMismatch,
                expected(type, json));
  }

  bool fail(DecodeFailure kind, std::string detail) {
    failure_ = {kind, {}, std::move(detail)};
    return false;
  }

  /// Puts the enclosing key or index `step` in front of the failure's path.
  bool failWithin(std::string_view step) {
    const bool needsDot = !failure_.path.empty() && failure_.path.front() != '[';
    failure_.path.insert(0, std::string(step) + (needsDot ? "." : ""));
    return false;
  }

  static std::string expected(std::string_view type, Element found);

  DecodeError failure_;
};

}  // namespace quillmark
