// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Samples.h"

namespace quillmark::test {
namespace {

std::string bodyWithCount(const std::string& number) {
  return sampleWith<AgentStatus>("threat_count", number);
}

/// A success with this value.
testing::AssertionResult countIs(const std::string& number, std::int64_t expected) {
  auto status = sample<AgentStatus>();
  status.threat_count = expected;
  return decodesTo(bodyWithCount(number), status) << " for " << number;
}

testing::AssertionResult countFails(const std::string& number) {
  return failsWith<AgentStatus>(bodyWithCount(number), DecodeFailure::dataCorrupted, "threat_count")
         << " for " << number;
}

constexpr auto lowest = std::numeric_limits<std::int64_t>::min();
constexpr auto highest = std::numeric_limits<std::int64_t>::max();

TEST(Numbers, AreTakenOverTheWholeRange) {
  EXPECT_TRUE(countIs("0", 0));
  EXPECT_TRUE(countIs("-0", 0));
  EXPECT_TRUE(countIs("-1", -1));
  EXPECT_TRUE(countIs("9007199254740993", 9007199254740993));
  EXPECT_TRUE(countIs("9223372036854775807", highest));
  EXPECT_TRUE(countIs("-9223372036854775808", lowest));
}

TEST(Numbers, AreRefusedBeyondIt) {
  EXPECT_TRUE(countFails("9223372036854775808"));
  EXPECT_TRUE(countFails("18446744073709551615"));
  EXPECT_TRUE(countFails("18446744073709551616"));
  EXPECT_TRUE(countFails("-9223372036854775809"));
  EXPECT_TRUE(countFails("-18446744073709551616"));
  EXPECT_TRUE(countFails("123456789012345678901234567890"));
  EXPECT_TRUE(countFails("1e19"));
  EXPECT_TRUE(countFails("-1e19"));
  EXPECT_TRUE(countFails("1e400"));
  EXPECT_TRUE(countFails("-1e400"));
}

TEST(Numbers, MayBeWrittenWithAPointOrAnExponent) {
  EXPECT_TRUE(countIs("2.0", 2));
  EXPECT_TRUE(countIs("-2.000", -2));
  EXPECT_TRUE(countIs("0.0", 0));
  EXPECT_TRUE(countIs("-0.0", 0));
  EXPECT_TRUE(countIs("1e3", 1000));
  EXPECT_TRUE(countIs("1E+3", 1000));
  EXPECT_TRUE(countIs("-1.5e1", -15));
  EXPECT_TRUE(countIs("10e-1", 1));
  EXPECT_TRUE(countIs("1e18", 1000000000000000000));
}

TEST(Numbers, AreRefusedWithAFraction) {
  EXPECT_TRUE(countFails("2.5"));
  EXPECT_TRUE(countFails("-0.1"));
  EXPECT_TRUE(countFails("1e-1"));
  EXPECT_TRUE(countFails("1000000000.5"));
}

TEST(Numbers, AreRefusedAsText) {
  for (const std::string text : {R"("3")", R"("")", R"("1e3")"}) {
    EXPECT_TRUE(
        failsWith<AgentStatus>(bodyWithCount(text), DecodeFailure::typeMismatch, "threat_count"))
        << text;
  }
}

TEST(Numbers, AreJsonNumbersOnly) {
  for (const std::string text : {"+1", "01", "-01", ".5", "1.", "1e", "1e+", "0x10", "1_000", "NaN",
                                 "Infinity", "-Infinity", "-", "1 2"}) {
    EXPECT_TRUE(failsWith<AgentStatus>(bodyWithCount(text), DecodeFailure::dataCorrupted, ""))
        << text;
  }
}

TEST(Numbers, OutsideTheTableMayBeAnyNumber) {
  const std::vector<std::string> numbers{
      "1e400", "-1e400", "1e-400", "2.5", "18446744073709551616", std::string(5000, '9')};
  for (const auto& number : numbers) {
    EXPECT_TRUE(decodesTo(sampleAnd<AgentStatus>("other", number), sample<AgentStatus>()))
        << number;
  }
}

}  // namespace
}  // namespace quillmark::test
