// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace quillmark {

/// One entry of a record's field table: the JSON key and the member it fills.
///
/// A key whose member is a `std::optional` may be absent or null; every other key
/// is required. A record lists its entries in encoding order, in a
/// `static constexpr` tuple named `fields`.
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
