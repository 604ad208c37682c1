// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// What kept a body from becoming a record.
enum class DecodeFailure {
  keyNotFound,    ///< a required key is missing
  valueNotFound,  ///< a required key or a text in an array is null
  typeMismatch,   ///< a value of another JSON type
  dataCorrupted,  ///< no JSON, or a number out of its field's range
};

/// In words, such as "type mismatch". Any thread.
[[nodiscard]] constexpr std::string_view nameOf(DecodeFailure kind) {
  switch (kind) {
    case DecodeFailure::keyNotFound:
      return "key not found";
    case DecodeFailure::valueNotFound:
      return "value not found";
    case DecodeFailure::typeMismatch:
      return "type mismatch";
    case DecodeFailure::dataCorrupted:
      break;
  }
  return "data corrupted";
}

/// The first failure of a decode.
struct DecodeError {
  DecodeFailure kind = DecodeFailure::dataCorrupted;
  std::string path;    ///< keys to the value, as in `connections[3].local_port`; empty for the body
  std::string detail;  ///< in words, as in "string expected, number found"

  friend bool operator==(const DecodeError&, const DecodeError&) = default;
};

}  // namespace quillmark
