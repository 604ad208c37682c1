// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "model/Field.h"

namespace quillmark::test {

/// The members of a JSON object in order: keys, each with its value's text.
using Members = std::vector<std::pair<std::string, std::string>>;

inline std::string quoted(const std::string& text) { return '"' + text + '"'; }

/// A JSON array of these texts.
inline std::string arrayOf(const std::vector<std::string>& elements) {
  std::string text(1, '[');
  for (const auto& element : elements) {
    text += text.size() == 1 ? "" : ",";
    text += element;
  }
  return text += ']';
}

inline std::string objectOf(const Members& members) {
  std::string text(1, '{');
  for (const auto& [key, value] : members) {
    text += text.size() == 1 ? "" : ",";
    text += quoted(key) + ':' + value;
  }
  return text += '}';
}

template <Record R, class Visitor>
void forEachField(const Visitor& visit) {
  std::apply([&](const auto&... field) { (visit(field), ...); }, R::fields);
}

template <Record R>
std::vector<std::string> keysOf() {
  std::vector<std::string> keys;
  forEachField<R>([&](const auto& field) { keys.emplace_back(field.key); });
  return keys;
}

/// Writes JSON by string concatenation, so that the codec's output can be compared with
/// a text that is independent of it. Texts are not escaped.
struct JsonText {
  static std::string of(bool flag) { return flag ? "true" : "false"; }
  static std::string of(std::int64_t number) { return std::to_string(number); }
  static std::string of(const std::string& text) { return quoted(text); }

  template <class T>
  static std::string of(const std::vector<T>& elements) {
    std::vector<std::string> texts;
    for (const auto& element : elements) {
      texts.push_back(of(element));
    }
    return arrayOf(texts);
  }

  template <Record R>
  static std::string of(const R& record) {
    return objectOf(membersOf(record));
  }

  template <Record R>
  static Members membersOf(const R& record) {
    Members members;
    forEachField<R>([&](const auto& field) { add(members, field.key, record.*field.member); });
    return members;
  }

 private:
  template <class T>
  static void add(Members& members, std::string_view key, const T& value) {
    members.emplace_back(key, of(value));
  }

  template <class T>
  static void add(Members& members, std::string_view key, const std::optional<T>& value) {
    if (value) {
      add(members, key, *value);
    }
  }
};

/// Whether an object without `key` is a valid R.
template <Record R>
bool isOptional(std::string_view key) {
  bool found = false;
  forEachField<R>([&]<class Value>(const Field<R, Value>& field) {
    found |= field.key == key && requires(Value value) { value.has_value(); };
  });
  return found;
}

}  // namespace quillmark::test
