// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstddef>
#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "model/Codec.h"
#include "model/Pieces.h"
#include "model/Records.h"
#include "model/Repeated.h"
#include "model/Samples.h"
#include "model/json/Expectation.h"

namespace quillmark::test {
namespace {

/// Whether `json` comes out the same in pieces of these sizes. Of a text with
/// several faults the parser may tell another.
template <Record R>
testing::AssertionResult isSameInPieces(std::string_view json,
                                        std::initializer_list<std::size_t> pieceSizes) {
  const auto whole = decode<R>(json);
  for (const auto pieceSize : pieceSizes) {
    const auto inPieces = decodedInPieces<R>(json, pieceSize, pieceSize != 2);
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

// Long texts are like short ones, and take a while under a sanitizer.
bool isLong(const JsonCase& text) { return text.text.size() > 1'000; }

TYPED_TEST(TextsInPieces, AreTheSameAsBodies) {
  for (const auto& text : jsonCases()) {
    EXPECT_TRUE(isLong(text) ? isSameInPieces<TypeParam>(text.text, {100})
                             : isSameInPieces<TypeParam>(text.text, {1, 2, 3}));
  }
}

TYPED_TEST(TextsInPieces, AreTheSameInEveryField) {
  for (const auto& key : keysOf<TypeParam>()) {
    for (const auto& text : jsonCases()) {
      if (!isLong(text)) {
        EXPECT_TRUE(isSameInPieces<TypeParam>(sampleWith<TypeParam>(key, text.text), {1}));
      }
    }
  }
}

/// Whether `record` comes out the same, its length told or not.
template <Record R>
testing::AssertionResult comesOut(const R& record) {
  const auto json = encode(record);
  for (const bool isLengthTold : {true, false}) {
    const auto decoded = decodedInPieces<R>(json, 10'000, isLengthTold);
    if (!decoded || *decoded != record) {
      return testing::AssertionFailure() << "its length told: " << isLengthTold;
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

TEST(LongTextsInPieces, AreTheSameWhateverLengthWasTold) {
  ThreatAlert alert = sample<ThreatAlert>();
  alert.alert_type.assign(5'000'000, 'x');
  const auto json = encode(alert);
  for (const auto left : {std::size_t{0}, json.size(), std::numeric_limits<std::size_t>::max()}) {
    Decoder<ThreatAlert> decoder;
    decoder.take(std::string_view(json).substr(0, 2'000'000), left);
    decoder.take(std::string_view(json).substr(2'000'000), left);
    const auto decoded = decoder.finish();
    EXPECT_TRUE(decoded && *decoded == alert) << left;
  }
}

TEST(LongListsInPieces, AreTheSame) {
  NetworkResponse response;
  response.connections.resize(10'000, sample<NetworkConnection>());
  response.connections.back() = {};
  EXPECT_TRUE(comesOut(response));
}

// A list that says nothing may not cost ten times what was sent.
TEST(ListsOfNothing, AreRefusedOnceTheyAreLong) {
  const auto listOf = [](int count, const std::string& element) {
    return R"({"apps":[],"network_interfaces":[],"permissions":[],"services":[)" +
           repeated(count - 1, element + ",") + element + "]}";
  };
  EXPECT_TRUE(decode<InventoryData>(listOf(100'000, R"("")")));
  EXPECT_FALSE(decode<InventoryData>(listOf(2'000'000, R"("")")));
  EXPECT_TRUE(decode<InventoryData>(listOf(2'000'000, R"("a.service")")));
}

}  // namespace
}  // namespace quillmark::test
