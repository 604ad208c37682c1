// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <boost/json/value.hpp>

#include "model/DecodeError.h"
#include "model/Field.h"

namespace quillmark {

/// Fills values from parsed JSON, each by its type. Every `read` returns
/// whether it succeeded; after a failure `error()` tells the first one. The
/// path is put together only on the way back from a failure, so that a good
/// body pays nothing for it.
class JsonReader final {
 public:
  template <Record R>
  bool read(const boost::json::value& json, R& record) {
    const auto* const object = json.if_object();
    if (object == nullptr) {
      return notAnObject(json);
    }
    return std::apply(
        [&](const auto&... field) { return (readField(*object, field, record) && ...); },
        R::fields);
  }

  template <class T>
  bool read(const boost::json::value& json, std::vector<T>& elements) {
    const auto* const array = json.if_array();
    if (array == nullptr) {
      return mismatch("array", json);
    }
    elements.reserve(array->size());
    for (const auto& element : *array) {
      if (!read(element, elements.emplace_back())) {
        return within('[' + std::to_string(elements.size() - 1) + ']');
      }
    }
    return true;
  }

  bool read(const boost::json::value& json, std::string& text) {
    const auto* const string = json.if_string();
    if (string == nullptr) {
      return mismatch("string", json);
    }
    text.assign(string->data(), string->size());
    return true;
  }

  bool read(const boost::json::value& json, bool& flag) {
    const auto* const boolean = json.if_bool();
    if (boolean == nullptr) {
      return mismatch("boolean", json);
    }
    flag = *boolean;
    return true;
  }

  bool read(const boost::json::value& json, std::int64_t& number) {
    if (!json.is_number()) {
      return mismatch("integer", json);
    }
    if (const auto* const integer = json.if_int64()) {
      number = *integer;
      return true;
    }
    // 2.0 and 1e3 are integers as well. Below 2^63 on either side the
    // conversion is exact; an unsigned that came here is beyond it, and what
    // reads as -2^63 may be a number beyond it that was rounded.
    constexpr double limit = 9223372036854775808.0;
    const auto* const real = json.if_double();
    if (real == nullptr || !(*real > -limit && *real < limit) || std::trunc(*real) != *real) {
      return fail(DecodeFailure::dataCorrupted, "a whole number of 64 bits expected");
    }
    number = static_cast<std::int64_t>(*real);
    return true;
  }

  [[nodiscard]] const DecodeError& error() const { return error_; }

 private:
  template <class Owner, class Value>
  bool readField(const boost::json::object& object, const Field<Owner, Value>& field,
                 Owner& record) {
    const auto* const json = object.if_contains(field.key);
    if (json == nullptr) {
      return fail(DecodeFailure::keyNotFound, "required key missing") || within(field.key);
    }
    return read(*json, record.*field.member) || within(field.key);
  }

  template <class Owner, class Value>
  bool readField(const boost::json::object& object, const Field<Owner, std::optional<Value>>& field,
                 Owner& record) {
    const auto* const json = object.if_contains(field.key);
    if (json == nullptr || json->is_null()) {
      return true;
    }
    return read(*json, (record.*field.member).emplace()) || within(field.key);
  }

  bool mismatch(std::string_view expected, const boost::json::value& found);
  bool notAnObject(const boost::json::value& found);
  bool fail(DecodeFailure kind, std::string detail);
  bool within(std::string_view step);

  DecodeError error_;
};

}  // namespace quillmark
