// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Records.h"
#include "model/Samples.h"
#include "model/json/Expectation.h"

namespace quillmark::test {
namespace {

/// Whether `body`, in which the text stands, comes out as told: a failure, or
/// else the record.
template <Record R>
testing::AssertionResult comesOut(const JsonCase& text, const std::string& body,
                                  const Expectation::Failure& failure, const R& record) {
  auto result = failure ? failsAs<R>(body, *failure) : decodesTo(body, record);
  return result ? std::move(result)
                : result << "\nwanted: " << (failure ? toText(*failure) : "a value")
                         << "\ntext: " << testing::PrintToString(text.text.substr(0, 80));
}

template <class T>
inline constexpr bool isList = false;
template <class T>
inline constexpr bool isList<std::vector<T>> = true;

/// Calls `visit` with every list among R's fields.
template <Record R, class Visitor>
void forEachList(const Visitor& visit) {
  forEachField<R>([&]<class V>(const Field<R, V>& field) {
    if constexpr (isList<V>) {
      visit(field);
    }
  });
}

template <class R>
class JsonTable : public testing::Test {};
TYPED_TEST_SUITE(JsonTable, AllRecords, RecordNames);

TYPED_TEST(JsonTable, HoldsForBodies) {
  for (const auto& text : jsonCases()) {
    TypeParam record;
    const auto failure = Expectation::of(text, 0, record);
    EXPECT_TRUE(comesOut(text, text.text, failure, record));
  }
}

TYPED_TEST(JsonTable, HoldsForEveryField) {
  forEachField<TypeParam>([](const auto& field) {
    const std::string key(field.key);
    for (const auto& text : jsonCases()) {
      auto record = sample<TypeParam>();
      const auto failure = Expectation::under(key, Expectation::of(text, 1, record.*field.member));
      EXPECT_TRUE(comesOut(text, sampleWith<TypeParam>(key, text.text), failure, record)) << key;
    }
  });
}

TYPED_TEST(JsonTable, HoldsForWhatIsIgnored) {
  for (const auto& text : jsonCases()) {
    const auto failure = Expectation::ofIgnored(text, 1);
    auto members = sampleMembers<TypeParam>();
    members.insert(members.begin(), {"ignored", text.text});
    EXPECT_TRUE(comesOut(text, objectOf(members), failure, sample<TypeParam>()));
    EXPECT_TRUE(
        comesOut(text, sampleAnd<TypeParam>("ignored", text.text), failure, sample<TypeParam>()));
  }
}

TYPED_TEST(JsonTable, HoldsDeepInWhatIsIgnored) {
  for (const auto& text : jsonCases()) {
    const auto failure = Expectation::ofIgnored(text, 4);
    const std::string ignored = R"([{"deep":[0,)" + text.text + "]}]";
    EXPECT_TRUE(
        comesOut(text, sampleAnd<TypeParam>("ignored", ignored), failure, sample<TypeParam>()));
  }
}

TYPED_TEST(JsonTable, HoldsForElementsOfLists) {
  forEachList<TypeParam>([](const auto& field) {
    const std::string key(field.key);
    for (const auto& text : jsonCases()) {
      auto record = sample<TypeParam>();
      auto& elements = record.*field.member;
      const auto good = elements;
      const std::string list =
          arrayOf({JsonText::of(good.front()), text.text, JsonText::of(good.back())});
      elements.emplace(elements.begin() + 1);
      const auto failure = Expectation::under(key + "[1]", Expectation::of(text, 2, elements[1]));
      EXPECT_TRUE(comesOut(text, sampleWith<TypeParam>(key, list), failure, record)) << key;
    }
  });
}

TYPED_TEST(JsonTable, HoldsForFieldsOfElements) {
  forEachList<TypeParam>([]<class R, class E>(const Field<R, std::vector<E>>& list) {
    if constexpr (Record<E>) {
      forEachField<E>([&](const auto& field) {
        const std::string key(field.key);
        const std::string path = std::string(list.key) + "[0]." + key;
        for (const auto& text : jsonCases()) {
          auto record = sample<R>();
          auto& elements = record.*list.member;
          elements.assign(1, sample<E>());
          const auto failure =
              Expectation::under(path, Expectation::of(text, 3, elements.front().*field.member));
          const std::string body =
              sampleWith<R>(list.key, arrayOf({sampleWith<E>(key, text.text)}));
          EXPECT_TRUE(comesOut(text, body, failure, record)) << path;
        }
      });
    }
  });
}

// Otherwise one of them would be pinned twice, and perhaps to different verdicts.
TEST(JsonTableItself, HoldsNoTextTwice) {
  std::set<std::string> seen;
  for (const auto& text : jsonCases()) {
    EXPECT_TRUE(seen.insert(text.text).second) << testing::PrintToString(text.text.substr(0, 80));
  }
  EXPECT_GE(seen.size(), 300U);
}

}  // namespace
}  // namespace quillmark::test
