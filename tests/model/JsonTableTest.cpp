// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Samples.h"
#include "model/json/Expectation.h"

namespace quillmark::test {
namespace {

/// Whether `body` fails with `failure`, or decodes to `record` if that is none.
template <Record R>
testing::AssertionResult hasOutcome(const std::string& body, const Expectation::Failure& failure,
                                    const R& record) {
  return failure ? failsAs<R>(body, *failure) << "\nwanted: " << toText(*failure)
                 : decodesTo(body, record);
}

template <class Check>
void forEachText(const Check& check) {
  for (const auto& text : jsonCases()) {
    SCOPED_TRACE(testing::PrintToString(text.text.substr(0, 80)));
    check(text);
  }
}

template <Record R>
void expectInEveryField(const JsonCase& text) {
  forEachField<R>([&](const auto& field) {
    const std::string key(field.key);
    auto record = sample<R>();
    const auto failure = Expectation::under(key, Expectation::of(text, 1, record.*field.member));
    EXPECT_TRUE(hasOutcome(sampleWith<R>(key, text.text), failure, record)) << key;
  });
}

/// The text is between the list's two elements.
template <class T>
void expectAsElement(const JsonCase& text, const std::string& key,
                     std::vector<T> InventoryData::*list) {
  auto record = sample<InventoryData>();
  auto& elements = record.*list;
  const std::string json =
      arrayOf({JsonText::of(elements.front()), text.text, JsonText::of(elements.back())});
  elements.emplace(elements.begin() + 1);
  const auto failure = Expectation::under(key + "[1]", Expectation::of(text, 2, elements[1]));
  EXPECT_TRUE(hasOutcome(sampleWith<InventoryData>(key, json), failure, record)) << key;
}

TEST(JsonTable, HoldsForABody) {
  forEachText([](const JsonCase& text) {
    AlertsResponse record;
    const auto failure = Expectation::of(text, 0, record);
    EXPECT_TRUE(hasOutcome(text.text, failure, record));
  });
}

// These have fields of all types.
TEST(JsonTable, HoldsForFields) {
  forEachText([](const JsonCase& text) {
    expectInEveryField<AgentStatus>(text);
    expectInEveryField<InstalledApp>(text);
    expectInEveryField<InventoryData>(text);
  });
}

TEST(JsonTable, HoldsForElementsOfLists) {
  forEachText([](const JsonCase& text) {
    expectAsElement(text, "apps", &InventoryData::apps);
    expectAsElement(text, "services", &InventoryData::services);
  });
}

TEST(JsonTable, HoldsForFieldsOfElements) {
  forEachText([](const JsonCase& text) {
    AlertsResponse record{{sample<ThreatAlert>()}};
    const auto failure =
        Expectation::under("alerts[0].title", Expectation::of(text, 3, record.alerts[0].title));
    const auto body =
        objectOf({{"alerts", arrayOf({sampleWith<ThreatAlert>("title", text.text)})}});
    EXPECT_TRUE(hasOutcome(body, failure, record));
  });
}

TEST(JsonTable, HoldsForWhatIsIgnored) {
  const auto record = sample<AgentStatus>();
  const auto members = objectOf(sampleMembers<AgentStatus>()).substr(1);
  forEachText([&](const JsonCase& text) {
    const auto failure = Expectation::ofIgnored(text, 1);
    EXPECT_TRUE(hasOutcome(R"({"ignored":)" + text.text + ',' + members, failure, record));
    EXPECT_TRUE(hasOutcome(sampleAnd<AgentStatus>("ignored", text.text), failure, record));
    EXPECT_TRUE(hasOutcome(sampleAnd<AgentStatus>("ignored", R"([{"deep":[0,)" + text.text + "]}]"),
                           Expectation::ofIgnored(text, 4), record));
  });
}

// A text that is there twice could have two different expectations.
TEST(JsonTableItself, HasNoTextTwice) {
  std::set<std::string> seen;
  for (const auto& text : jsonCases()) {
    EXPECT_TRUE(seen.insert(text.text).second) << testing::PrintToString(text.text.substr(0, 80));
  }
  EXPECT_GE(seen.size(), 300U);
}

}  // namespace
}  // namespace quillmark::test
