// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Records.h"
#include "model/Samples.h"

namespace quillmark::test {
namespace {

template <class R>
class RecordEncode : public testing::Test {};
TYPED_TEST_SUITE(RecordEncode, AllRecords, RecordNames);

TYPED_TEST(RecordEncode, WritesEveryKeyInTableOrder) {
  EXPECT_EQ(encode(sample<TypeParam>()), objectOf(sampleMembers<TypeParam>()));
}

TYPED_TEST(RecordEncode, LeavesOutFieldsWithoutAValue) {
  const auto record = sampleOfRequired<TypeParam>();
  Members members = sampleMembers<TypeParam>();
  std::erase_if(members, [](const auto& member) { return isOptional<TypeParam>(member.first); });
  EXPECT_EQ(encode(record), objectOf(members));
}

TYPED_TEST(RecordEncode, WritesRequiredFieldsEvenWhenEmpty) {
  TypeParam record;
  Members members = JsonText::membersOf(record);
  for (const auto& key : keysOf<TypeParam>()) {
    const bool written = std::any_of(members.begin(), members.end(),
                                     [&](const auto& member) { return member.first == key; });
    EXPECT_EQ(written, !isOptional<TypeParam>(key)) << key;
  }
  EXPECT_EQ(encode(record), objectOf(members));
}

TYPED_TEST(RecordEncode, DecodesToTheSame) {
  EXPECT_TRUE(decodesTo(encode(sample<TypeParam>()), sample<TypeParam>()));
  EXPECT_TRUE(decodesTo(encode(sampleOfRequired<TypeParam>()), sampleOfRequired<TypeParam>()));
}

// Copies share nothing: a change of one does not change the other.
TYPED_TEST(RecordEncode, OfACopyIsIndependent) {
  auto original = sample<TypeParam>();
  const auto copy = original;
  original = TypeParam{};
  EXPECT_EQ(copy, sample<TypeParam>());
  EXPECT_EQ(encode(copy), objectOf(sampleMembers<TypeParam>()));
  EXPECT_NE(encode(original), encode(copy));
}

TEST(EncodedText, IsEscapedWhereJsonRequiresIt) {
  EXPECT_EQ(encode(appNamed("\"\\/\b\f\n\r\t\x01\x1F\x7F")),
            R"({"name":"\"\\/\b\f\n\r\t\u0001\u001f)"
            "\x7F\"}");
}

TEST(EncodedText, IsOtherwiseWrittenUnchanged) {
  const std::string text = "<b>&amp; é € 😀 \u202E\u2028\uFEFF";
  EXPECT_EQ(encode(appNamed(text)), objectOf({{"name", quoted(text)}}));
}

TEST(EncodedText, DecodesToTheSame) {
  std::string every;
  for (char c = 0; c < 0x7F; ++c) {
    every += c;
  }
  every += "\x7F é € 😀";
  const ThreatAlert alert{every, "", every, "", std::string(1, '\0'), std::nullopt};
  EXPECT_TRUE(decodesTo(encode(alert), alert));
}

TEST(EncodedText, OfAMegabyteDecodesToTheSame) {
  const InstalledApp app = appNamed(std::string(1 << 20, '"'));
  EXPECT_TRUE(decodesTo(encode(app), app));
}

}  // namespace
}  // namespace quillmark::test
