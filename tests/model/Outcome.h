// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

#include <gtest/gtest.h>

#include "model/Codec.h"

namespace quillmark::test {

inline std::string_view nameOf(DecodeFailure kind) {
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

/// Whether `json` decodes, and to what.
template <Record R>
testing::AssertionResult decodesTo(std::string_view json, const R& expected) {
  const auto decoded = decode<R>(json);
  if (!decoded) {
    return testing::AssertionFailure() << nameOf(decoded.error().kind) << " at \""
                                       << decoded.error().path << "\": " << decoded.error().detail;
  }
  if (*decoded != expected) {
    return testing::AssertionFailure() << "another record: " << encode(*decoded);
  }
  return testing::AssertionSuccess();
}

/// Whether `json` fails to decode, of this kind and at this place.
template <Record R>
testing::AssertionResult failsWith(std::string_view json, DecodeFailure kind,
                                   std::string_view path) {
  const auto decoded = decode<R>(json);
  if (decoded) {
    return testing::AssertionFailure() << "decoded: " << encode(*decoded);
  }
  const auto& error = decoded.error();
  if (error.kind != kind || error.path != path || error.detail.empty()) {
    return testing::AssertionFailure()
           << nameOf(error.kind) << " at \"" << error.path << "\": " << error.detail;
  }
  return testing::AssertionSuccess();
}

}  // namespace quillmark::test
