// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Records.h"
#include "model/Samples.h"

namespace quillmark::test {
namespace {

/// One way to make a member of a body invalid.
struct Fault {
  std::optional<std::string> value;  ///< no value: the key is left out
  DecodeFailure kind;
  std::string detail;  ///< without the expected type
};

const std::vector<Fault> faults{
    {std::nullopt, DecodeFailure::keyNotFound, "required key missing"},
    {"null", DecodeFailure::valueNotFound, " expected, null found"},
    {"{}", DecodeFailure::typeMismatch, " expected, object found"},
};

bool isInvalid(const Fault& fault, bool isOptionalKey) {
  return !isOptionalKey || fault.kind == DecodeFailure::typeMismatch;
}

void apply(const Fault& fault, const std::string& key, Members& members) {
  const auto member = std::find_if(members.begin(), members.end(),
                                   [&](const auto& candidate) { return candidate.first == key; });
  if (fault.value) {
    member->second = *fault.value;
  } else {
    members.erase(member);
  }
}

template <Record R>
testing::AssertionResult reports(const Members& members, const Fault& fault,
                                 const std::string& path) {
  const auto decoded = decode<R>(objectOf(members));
  if (decoded) {
    return testing::AssertionFailure() << "decoded: " << encode(*decoded);
  }
  const auto& error = decoded.error();
  if (error.kind != fault.kind || error.path != path || !error.detail.ends_with(fault.detail)) {
    return testing::AssertionFailure() << toText(error) << "\nbody: " << objectOf(members);
  }
  return testing::AssertionSuccess();
}

template <class R>
class FailureOrder : public testing::Test {};
TYPED_TEST_SUITE(FailureOrder, AllRecords, RecordNames);

// Of two faults, the one that comes first in the table is reported, in any order in the
// body.
TYPED_TEST(FailureOrder, IsThatOfTheTable) {
  const auto keys = keysOf<TypeParam>();
  for (auto first = keys.begin(); first != keys.end(); ++first) {
    for (auto second = first + 1; second != keys.end(); ++second) {
      for (const auto& fault : faults) {
        for (const auto& other : faults) {
          if (!isInvalid(fault, isOptional<TypeParam>(*first))) {
            continue;
          }
          auto members = sampleMembers<TypeParam>();
          apply(fault, *first, members);
          apply(other, *second, members);
          EXPECT_TRUE(reports<TypeParam>(members, fault, *first)) << *second;
          std::reverse(members.begin(), members.end());
          EXPECT_TRUE(reports<TypeParam>(members, fault, *first)) << *second;
        }
      }
    }
  }
}

TYPED_TEST(FailureOrder, HasInvalidJsonBeforeAll) {
  auto members = sampleMembers<TypeParam>();
  for (auto& member : members) {
    member.second = "{}";
  }
  const std::string bad = objectOf(members);
  for (std::size_t size = 0; size < bad.size(); ++size) {
    EXPECT_TRUE(failsWith<TypeParam>(bad.substr(0, size), DecodeFailure::dataCorrupted, ""));
  }
  for (const std::string rest : {"}", "x", ",", "[]", "\xFF"}) {
    EXPECT_TRUE(failsWith<TypeParam>(bad + rest, DecodeFailure::dataCorrupted, ""));
  }
  members.emplace_back("ignored", R"("\ud800")");
  EXPECT_TRUE(failsWith<TypeParam>(objectOf(members), DecodeFailure::dataCorrupted, ""));
}

// Of several values under one key the last one counts, as if it were alone.
TYPED_TEST(FailureOrder, UsesTheLastOfDuplicateKeys) {
  for (const auto& [key, good] : sampleMembers<TypeParam>()) {
    for (const auto& other : {std::string("null"), std::string(R"({"a":[1,"b"]})"), good}) {
      auto members = sampleMembers<TypeParam>();
      members.insert(members.begin(), {{key, other}, {key, "{}"}, {key, "null"}});
      EXPECT_TRUE(decodesTo(objectOf(members), sample<TypeParam>())) << key << ": " << other;
    }
    for (const auto& fault : faults) {
      if (!fault.value || !isInvalid(fault, isOptional<TypeParam>(key))) {
        continue;
      }
      auto members = sampleMembers<TypeParam>();
      members.insert(members.begin(), {key, "{}"});
      members.insert(members.begin(), {key, "null"});
      members.emplace_back(key, *fault.value);
      EXPECT_TRUE(reports<TypeParam>(members, fault, key));
    }
  }
}

TYPED_TEST(FailureOrder, HasNoValueIfTheLastOfDuplicateKeysIsNull) {
  for (const auto& key : keysOf<TypeParam>()) {
    if (isOptional<TypeParam>(key)) {
      const auto decoded = decode<TypeParam>(sampleAnd<TypeParam>(key, "null"));
      ASSERT_TRUE(decoded) << key;
      EXPECT_EQ(JsonText::of(*decoded), sampleWithout<TypeParam>(key));
    }
  }
}

TYPED_TEST(FailureOrder, DetectsDuplicateKeysInAnySpelling) {
  for (const auto& [key, good] : sampleMembers<TypeParam>()) {
    const std::string escaped = "\\u00" + std::string(key[0] < 'p' ? "6" : "7") +
                                "0123456789abcdef"[key[0] & 15] + key.substr(1);
    auto members = sampleMembers<TypeParam>();
    members.insert(members.begin(), {escaped, "{}"});
    EXPECT_TRUE(decodesTo(objectOf(members), sample<TypeParam>())) << escaped;
    EXPECT_TRUE(failsWith<TypeParam>(sampleAnd<TypeParam>(escaped, "{}"),
                                     DecodeFailure::typeMismatch, key));
  }
}

// The keys of a table mean nothing at another level.
TYPED_TEST(FailureOrder, IgnoresItsKeysInsideOtherValues) {
  const std::string good = objectOf(sampleMembers<TypeParam>());
  auto invalid = sampleMembers<TypeParam>();
  for (auto& member : invalid) {
    member.second = "{}";
  }
  const std::string bad = objectOf(invalid);
  for (const auto& ignored : {bad, arrayOf({bad, bad}), objectOf({{"deep", bad}})}) {
    auto members = sampleMembers<TypeParam>();
    members.insert(members.begin(), {"ignored", ignored});
    members.emplace_back("", ignored);
    EXPECT_TRUE(decodesTo(objectOf(members), sample<TypeParam>()));
  }
  const auto first = keysOf<TypeParam>().front();
  EXPECT_TRUE(
      failsWith<TypeParam>(objectOf({{"ignored", good}}), DecodeFailure::keyNotFound, first));
  EXPECT_TRUE(failsAs<TypeParam>(
      arrayOf({good}), {DecodeFailure::typeMismatch, {}, "object expected, array found"}));
}

}  // namespace
}  // namespace quillmark::test
