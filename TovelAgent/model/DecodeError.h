// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include <boost/assert/source_location.hpp>

namespace quillmark {

/// Why a body cannot be decoded into a record.
enum class DecodeFailure {
  keyNotFound,    ///< a required key is missing
  valueNotFound,  ///< the value of a required key, or a string in an array, is null
  typeMismatch,   ///< a value has the wrong JSON type
  dataCorrupted,  ///< not JSON, over 512 levels deep, or a number out of range
};

/// The kind as text, such as "type mismatch". Any thread.
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
  std::string detail;  ///< such as "string expected, number found"

  friend bool operator==(const DecodeError&, const DecodeError&) = default;
};

/// Newer versions of Boost call this when a result is used as if it had a value.
// NOLINTNEXTLINE(readability-identifier-naming)
[[noreturn]] inline void throw_exception_from_error(const DecodeError& /*error*/,
                                                    const boost::source_location& /*place*/) {
  throw std::logic_error("no decoded record");
}

}  // namespace quillmark
