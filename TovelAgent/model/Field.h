// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace quillmark {

/// One line of a record's field table: the JSON key and the member it fills.
///
/// The member's type says the rest: `std::optional` is a key that may be absent
/// or null, every other type is a required key. A record lists its lines, in
/// the order in which they are encoded, in a `static constexpr` tuple named
/// `fields`.
template <class Owner, class Value>
struct Field {
  std::string_view key;
  Value Owner::*member;
};

template <class Owner, class Value>
Field(std::string_view, Value Owner::*) -> Field<Owner, Value>;

/// A type that declares a field table.
template <class T>
concept Record = requires {
  T::fields;
};

}  // namespace quillmark
