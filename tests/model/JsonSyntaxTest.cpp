// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Samples.h"

namespace quillmark::test {
namespace {

using namespace std::string_literals;

const std::string goodBody = objectOf(sampleMembers<AgentStatus>());

testing::AssertionResult isNoJson(const std::string& body) {
  return failsWith<AgentStatus>(body, DecodeFailure::dataCorrupted, "") << "\nbody: " << body;
}

testing::AssertionResult isGood(const std::string& body) {
  return decodesTo(body, sample<AgentStatus>()) << "\nbody: " << body;
}

TEST(JsonSyntax, IsCheckedInKeys) {
  for (const auto& key : {"\xFF"s, "\\ud800"s, "a\nb"s}) {
    EXPECT_TRUE(isNoJson(sampleAnd<AgentStatus>(key, "1")));
  }
}

TEST(JsonSyntax, IsCheckedToTheEnd) {
  for (std::size_t size = 0; size < goodBody.size(); ++size) {
    EXPECT_TRUE(isNoJson(goodBody.substr(0, size)));
  }
}

TEST(JsonSyntax, AllowsNothingAfterTheValue) {
  for (const auto& rest : {"x"s, "{}"s, ","s, "}"s, "\0"s, "\n\xEF\xBB\xBF"s, goodBody}) {
    EXPECT_TRUE(isNoJson(goodBody + rest));
  }
}

TEST(JsonSyntax, AllowsBlanksAroundTheValue) {
  EXPECT_TRUE(isGood(" \t\r\n" + goodBody + " \t\r\n"));
}

TEST(JsonSyntax, AllowsNoOtherWhiteSpaceAroundIt) {
  for (const auto& space : {"\xEF\xBB\xBF"s, "\xC2\xA0"s, "\f"s, "\v"s}) {
    EXPECT_TRUE(isNoJson(space + goodBody));
    EXPECT_TRUE(isNoJson(goodBody + space));
  }
}

TEST(JsonSyntax, IsNotThatOfOtherEncodings) {
  std::string wide;
  for (const char c : goodBody) {
    wide += {c, '\0'};
  }
  EXPECT_TRUE(isNoJson(wide));
  EXPECT_TRUE(isNoJson("\xFF\xFE" + wide));
}

}  // namespace
}  // namespace quillmark::test
