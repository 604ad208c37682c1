// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Records.h"
#include "model/Samples.h"

namespace quillmark::test {
namespace {

template <class R>
class RecordDecode : public testing::Test {};
TYPED_TEST_SUITE(RecordDecode, AllRecords, RecordNames);

TYPED_TEST(RecordDecode, FillsEveryField) {
  EXPECT_TRUE(decodesTo(objectOf(sampleMembers<TypeParam>()), sample<TypeParam>()));
}

TYPED_TEST(RecordDecode, AcceptsKeysInAnyOrder) {
  auto members = sampleMembers<TypeParam>();
  std::reverse(members.begin(), members.end());
  EXPECT_TRUE(decodesTo(objectOf(members), sample<TypeParam>()));
}

TYPED_TEST(RecordDecode, FailsOnlyForMissingRequiredKeys) {
  for (const auto& key : keysOf<TypeParam>()) {
    const std::string json = sampleWithout<TypeParam>(key);
    if (isOptional<TypeParam>(key)) {
      const auto decoded = decode<TypeParam>(json);
      ASSERT_TRUE(decoded) << key;
      EXPECT_EQ(JsonText::of(*decoded), json) << "no value, and nothing else changed";
    } else {
      EXPECT_TRUE(failsWith<TypeParam>(json, DecodeFailure::keyNotFound, key));
    }
  }
}

TYPED_TEST(RecordDecode, AcceptsNullForOptionalKeysOnly) {
  for (const auto& key : keysOf<TypeParam>()) {
    const std::string json = sampleWith<TypeParam>(key, "null");
    if (isOptional<TypeParam>(key)) {
      const auto decoded = decode<TypeParam>(json);
      ASSERT_TRUE(decoded) << key;
      EXPECT_EQ(JsonText::of(*decoded), sampleWithout<TypeParam>(key)) << "as if absent";
    } else {
      EXPECT_TRUE(failsWith<TypeParam>(json, DecodeFailure::valueNotFound, key));
    }
  }
}

TYPED_TEST(RecordDecode, IgnoresKeysOutsideTheTable) {
  auto members = sampleMembers<TypeParam>();
  members.insert(members.begin(), {"id", R"("not yours")"});
  members.emplace_back("Status", "null");
  members.emplace_back("", R"([1e300,{"deep":[{}]},18446744073709551615])");
  EXPECT_TRUE(decodesTo(objectOf(members), sample<TypeParam>()));
}

// A key is its exact text: no other case, no blanks around it.
TYPED_TEST(RecordDecode, ComparesKeysLiterally) {
  for (const auto& key : keysOf<TypeParam>()) {
    if (isOptional<TypeParam>(key)) {
      continue;
    }
    for (const auto& other : {" " + key, key + " ", "X" + key, key + R"(\u0000)"}) {
      auto members = sampleMembers<TypeParam>();
      std::find_if(members.begin(), members.end(), [&](const auto& member) {
        return member.first == key;
      })->first = other;
      EXPECT_TRUE(failsWith<TypeParam>(objectOf(members), DecodeFailure::keyNotFound, key));
    }
  }
}

}  // namespace
}  // namespace quillmark::test
