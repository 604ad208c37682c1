// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "model/Codec.h"
#include "model/Records.h"
#include "model/Samples.h"
#include "model/json/Expectation.h"

namespace quillmark::test {
namespace {

template <Record R>
Decoded<R> decodedInPieces(std::string_view json, std::size_t pieceSize,
                           std::optional<std::size_t> left = {}) {
  Decoder<R> decoder;
  for (; !json.empty(); json.remove_prefix(std::min(pieceSize, json.size()))) {
    decoder.take(json.substr(0, pieceSize), left);
  }
  return decoder.finish();
}

/// Whether `json` comes out the same in pieces of every size up to a few bytes.
/// Of a text with several faults the parser may tell another.
template <Record R>
testing::AssertionResult isSameInPieces(std::string_view json) {
  const auto whole = decode<R>(json);
  for (std::size_t pieceSize = 1; pieceSize <= 3; ++pieceSize) {
    const auto inPieces = decodedInPieces<R>(json, pieceSize);
    const bool isSame = whole
                            ? inPieces && *inPieces == *whole
                            : inPieces.has_error() && inPieces.error().kind == whole.error().kind &&
                                  inPieces.error().path == whole.error().path;
    if (!isSame) {
      return testing::AssertionFailure()
             << "pieces of " << pieceSize << ": " << json.substr(0, 200);
    }
  }
  return testing::AssertionSuccess();
}

template <class R>
class TextsInPieces : public testing::Test {};
TYPED_TEST_SUITE(TextsInPieces, AllRecords, RecordNames);

TYPED_TEST(TextsInPieces, AreTheSameAsBodies) {
  for (const auto& text : jsonCases()) {
    EXPECT_TRUE(isSameInPieces<TypeParam>(text.text));
  }
}

TYPED_TEST(TextsInPieces, AreTheSameInEveryField) {
  for (const auto& key : keysOf<TypeParam>()) {
    for (const auto& text : jsonCases()) {
      if (text.text.size() < 1'000) {
        EXPECT_TRUE(isSameInPieces<TypeParam>(sampleWith<TypeParam>(key, text.text)));
      }
    }
  }
}

/// Whether `record` comes out however many bytes were announced, be it true or not.
template <Record R>
testing::AssertionResult comesOut(const R& record) {
  const auto json = encode(record);
  for (const auto left :
       {std::optional<std::size_t>(), std::optional<std::size_t>(0), std::optional(json.size())}) {
    const auto decoded = decodedInPieces<R>(json, 10'000, left);
    if (!decoded || *decoded != record) {
      return testing::AssertionFailure()
             << (left ? std::to_string(*left) : "nothing") << " announced";
    }
  }
  return testing::AssertionSuccess();
}

TEST(LongTextsInPieces, AreTheSame) {
  AlertsResponse response{{sample<ThreatAlert>()}};
  response.alerts[0].alert_type.assign(5'000'000, 'x');
  response.alerts[0].description.emplace(5'000'000, '\n');
  EXPECT_TRUE(comesOut(response));
}

TEST(LongListsInPieces, AreTheSame) {
  NetworkResponse response;
  response.connections.resize(10'000, sample<NetworkConnection>());
  response.connections.back() = {};
  EXPECT_TRUE(comesOut(response));
}

}  // namespace
}  // namespace quillmark::test
