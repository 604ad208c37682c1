// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Repeated.h"
#include "model/Samples.h"

namespace quillmark::test {
namespace {

std::string nestedArrays(int depth) { return repeated(depth, "[") + repeated(depth, "]"); }

std::string nestedObjects(int depth) {
  return repeated(depth, R"({"a":)") + '1' + repeated(depth, "}");
}

testing::AssertionResult isGoodWithIgnored(const std::string& value) {
  return decodesTo(sampleAnd<AgentStatus>("ignored", value), sample<AgentStatus>());
}

testing::AssertionResult isNoJsonWithIgnored(const std::string& value) {
  return failsWith<AgentStatus>(sampleAnd<AgentStatus>("ignored", value),
                                DecodeFailure::dataCorrupted, "");
}

TEST(JsonNesting, WithoutBoundIsRefusedAndNothingWorse) {
  for (const int depth : {1000, 100000, 1000000}) {
    EXPECT_TRUE(isNoJsonWithIgnored(nestedArrays(depth))) << depth;
    EXPECT_TRUE(isNoJsonWithIgnored(nestedObjects(depth))) << depth;
    EXPECT_TRUE(isNoJsonWithIgnored(repeated(depth, "["))) << depth;
  }
}

TEST(JsonNesting, WithoutBoundIsRefusedAsTheBodyAsWell) {
  EXPECT_TRUE(failsWith<AgentStatus>(nestedArrays(100000), DecodeFailure::dataCorrupted, ""));
  EXPECT_TRUE(failsWith<AgentStatus>(nestedObjects(100000), DecodeFailure::dataCorrupted, ""));
}

TEST(JsonNesting, CountsDepthAlone) {
  const std::vector<std::string> pairs(100000, "[[],{}]");
  EXPECT_TRUE(isGoodWithIgnored(arrayOf(pairs)));
}

}  // namespace
}  // namespace quillmark::test
