// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "model/Codec.h"

namespace quillmark::test {

/// A failure as readable text.
inline std::string toText(const DecodeError& error) {
  return std::string(nameOf(error.kind)) + " at \"" + error.path + "\": " + error.detail;
}

/// Whether `json` decodes to `expected`.
template <Record R>
testing::AssertionResult decodesTo(std::string_view json, const R& expected) {
  const auto decoded = decode<R>(std::string(json));
  if (!decoded) {
    return testing::AssertionFailure() << toText(decoded.error());
  }
  if (*decoded != expected) {
    return testing::AssertionFailure() << "another record: " << encode(*decoded);
  }
  return testing::AssertionSuccess();
}

/// Whether `json` fails to decode with exactly this error; an empty detail stands for
/// any detail that is not empty.
template <Record R>
testing::AssertionResult failsAs(std::string_view json, const DecodeError& expected) {
  const auto decoded = decode<R>(std::string(json));
  if (decoded) {
    return testing::AssertionFailure() << "decoded: " << encode(*decoded);
  }
  const auto& error = decoded.error();
  const bool isThatDetail =
      expected.detail.empty() ? !error.detail.empty() : error.detail == expected.detail;
  if (error.kind != expected.kind || error.path != expected.path || !isThatDetail) {
    return testing::AssertionFailure() << toText(error);
  }
  return testing::AssertionSuccess();
}

/// Whether `json` fails to decode with an error of this kind and path.
template <Record R>
testing::AssertionResult failsWith(std::string_view json, DecodeFailure kind,
                                   std::string_view path) {
  return failsAs<R>(json, {kind, std::string(path), {}});
}

}  // namespace quillmark::test
