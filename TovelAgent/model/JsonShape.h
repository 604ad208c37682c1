// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "model/Field.h"

namespace quillmark {

struct JsonShape;

/// One key of an object, and the place of its value in a record.
struct JsonMember {
  std::string_view key;
  const JsonShape* shape;
  void* (*place)(void* record);  ///< an optional holds a value from then on
  void (*forget)(void* record);  ///< an optional holds none; null if required
};

/// How JSON fills the values of one type, with the type itself forgotten: so
/// one parser, compiled once, serves every record. All places are those of
/// values of that type.
struct JsonShape {
  enum class Kind { boolean, integer, string, array, object };

  static constexpr std::size_t maxMembers = 64;

  Kind kind;
  std::span<const JsonMember> members = {};  ///< of an object, in table order; at most that many

  // Of an array.
  const JsonShape* element = nullptr;
  std::size_t elementSize = 0;  ///< in bytes, without what an element points to
  void (*clear)(void* array) = nullptr;
  void (*reserve)(void* array, std::size_t count) = nullptr;
  void* (*append)(void* array) = nullptr;  ///< the place of one more element
};

/// The shape of `T`, which is what a record may hold: a flag, a whole number, a
/// text, a list of these or a record.
template <class T>
struct JsonShapeOf;

template <>
struct JsonShapeOf<bool> {
  static constexpr JsonShape shape{JsonShape::Kind::boolean};
};

template <>
struct JsonShapeOf<std::int64_t> {
  static constexpr JsonShape shape{JsonShape::Kind::integer};
};

template <>
struct JsonShapeOf<std::string> {
  static constexpr JsonShape shape{JsonShape::Kind::string};
};

template <class T>
struct JsonShapeOf<std::vector<T>> {
  static std::vector<T>& at(void* array) { return *static_cast<std::vector<T>*>(array); }

  static constexpr JsonShape shape{
      .kind = JsonShape::Kind::array,
      .element = &JsonShapeOf<T>::shape,
      .elementSize = sizeof(T),
      .clear = [](void* array) { at(array).clear(); },
      .reserve = [](void* array, std::size_t count) { at(array).reserve(count); },
      .append = [](void* array) -> void* { return &at(array).emplace_back(); }};
};

template <Record R>
struct JsonShapeOf<R> {
  template <std::size_t I>
  static auto& valueOf(void* record) {
    return static_cast<R*>(record)->*std::get<I>(R::fields).member;
  }

  template <std::size_t I, class Value>
  static constexpr JsonMember member(Value R::* /*required*/) {
    static_assert(!Record<Value>, "a key that comes twice would mix two values");
    return {std::get<I>(R::fields).key, &JsonShapeOf<Value>::shape,
            [](void* record) -> void* { return &valueOf<I>(record); }, nullptr};
  }

  template <std::size_t I, class Value>
  static constexpr JsonMember member(std::optional<Value> R::* /*optional*/) {
    return {std::get<I>(R::fields).key, &JsonShapeOf<Value>::shape,
            [](void* record) -> void* { return &valueOf<I>(record).emplace(); },
            [](void* record) { valueOf<I>(record).reset(); }};
  }

  static constexpr auto members = []<std::size_t... I>(std::index_sequence<I...>) {
    return std::array{member<I>(std::get<I>(R::fields).member)...};
  }
  (std::make_index_sequence<std::tuple_size_v<decltype(R::fields)>>());

  static_assert(members.size() <= JsonShape::maxMembers);

  static constexpr JsonShape shape{.kind = JsonShape::Kind::object, .members = members};
};

}  // namespace quillmark
