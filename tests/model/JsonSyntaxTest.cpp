// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Samples.h"

namespace quillmark::test {
namespace {

using namespace std::string_literals;

const std::string goodBody = objectOf(sampleMembers<AgentStatus>());

/// A good body in which a key that nobody reads has this value.
std::string bodyWithIgnored(const std::string& value) {
  return sampleAnd<AgentStatus>("ignored", value);
}

testing::AssertionResult isNoJson(const std::string& body) {
  return failsWith<AgentStatus>(body, DecodeFailure::dataCorrupted, "") << "\nbody: " << body;
}

testing::AssertionResult isGood(const std::string& body) {
  return decodesTo(body, sample<AgentStatus>()) << "\nbody: " << body;
}

/// Pieces that are no JSON value, whether anybody reads them or not.
const std::vector<std::string> brokenValues{"",
                                            "tru",
                                            "TRUE",
                                            "nul",
                                            "undefined",
                                            "NaN",
                                            "1.",
                                            "01",
                                            "'text'",
                                            "\"open",
                                            "\"a\nb\"",
                                            "\"a\tb\"",
                                            R"("\x")",
                                            R"("\u12")",
                                            R"("\u12G4")",
                                            "[1,]",
                                            "[,1]",
                                            "[1 2]",
                                            "[1",
                                            "]",
                                            R"({"a":1,})",
                                            R"({"a" 1})",
                                            R"({a:1})",
                                            R"({1:1})",
                                            R"({"a"})",
                                            R"({,})",
                                            "{]",
                                            "// comment\n1",
                                            "/* c */ 1",
                                            "1,,2",
                                            "\"\xFF\"",
                                            "\"\xC0\x80\"",
                                            "\"\xE2\x82\"",
                                            "\"\xED\xA0\x80\"",
                                            "\"\xF4\x90\x80\x80\"",
                                            R"("\ud800")",
                                            R"("\ud800x")",
                                            R"("\udc00")",
                                            R"("\ud800\ud800")",
                                            R"("\ud83d\u0041")",
                                            "\"a\0b\""s,
                                            "\0"s};

TEST(JsonSyntax, IsCheckedInWhatIsRead) {
  for (const auto& value : brokenValues) {
    EXPECT_TRUE(isNoJson(sampleWith<AgentStatus>("status", value)));
  }
}

TEST(JsonSyntax, IsCheckedInWhatIsIgnored) {
  for (const auto& value : brokenValues) {
    EXPECT_TRUE(isNoJson(bodyWithIgnored(value)));
    EXPECT_TRUE(isNoJson(bodyWithIgnored(R"([{"deep":[0,)" + value + "]}]"))) << value;
  }
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

TEST(JsonSyntax, NeedsAValue) {
  EXPECT_TRUE(isNoJson(""));
  EXPECT_TRUE(isNoJson(" \n"));
}

TEST(JsonSyntax, IsNotThatOfOtherEncodings) {
  std::string wide;
  for (const char c : goodBody) {
    wide += {c, '\0'};
  }
  EXPECT_TRUE(isNoJson(wide));
  EXPECT_TRUE(isNoJson("\xFF\xFE" + wide));
}

TEST(JsonSyntax, AllowsEveryValueInWhatIsIgnored) {
  for (const auto& value : {R"("\u0000\ud83d\ude00\/")"s, "[]"s, "{}"s, "null"s,
                            R"({"":{"":[[],{}]}})"s, "\"\xEF\xBF\xBF\""s}) {
    EXPECT_TRUE(isGood(bodyWithIgnored(value)));
  }
}

}  // namespace
}  // namespace quillmark::test
