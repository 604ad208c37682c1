// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include <boost/json/value.hpp>

#include "model/Field.h"

namespace quillmark {

/// Converts a value to JSON according to its type, and a record according to its field table.
class JsonWriter final {
 public:
  template <Record R>
  [[nodiscard]] static boost::json::value write(const R& record) {
    boost::json::object object;
    std::apply([&](const auto&... field) { (writeField(object, field, record), ...); }, R::fields);
    return object;
  }

  template <class T>
  [[nodiscard]] static boost::json::value write(const std::vector<T>& elements) {
    boost::json::array array;
    array.reserve(elements.size());
    for (const auto& element : elements) {
      array.push_back(write(element));
    }
    return array;
  }

  [[nodiscard]] static boost::json::value write(const std::string& text) {
    return boost::json::string(text);
  }
  [[nodiscard]] static boost::json::value write(bool flag) { return flag; }
  [[nodiscard]] static boost::json::value write(std::int64_t number) { return number; }

 private:
  template <class Owner, class Value>
  static void writeField(boost::json::object& object, const Field<Owner, Value>& field,
                         const Owner& record) {
    object.emplace(field.key, write(record.*field.member));
  }

  template <class Owner, class Value>
  static void writeField(boost::json::object& object,
                         const Field<Owner, std::optional<Value>>& field, const Owner& record) {
    if (const auto& value = record.*field.member) {
      object.emplace(field.key, write(*value));
    }
  }
};

}  // namespace quillmark
