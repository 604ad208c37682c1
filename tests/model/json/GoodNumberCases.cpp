// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <limits>

#include "model/json/JsonCase.h"

namespace quillmark::test {
namespace {

constexpr auto lowest = std::numeric_limits<std::int64_t>::min();
constexpr auto highest = std::numeric_limits<std::int64_t>::max();
const std::string zeros(5000, '0');

std::vector<JsonCase> wholeNumberCases() {
  return {
      {"0", 0},
      {"-0", 0},
      {"1", 1},
      {"-1", -1},
      {"9", 9},
      {"10", 10},
      {"1234567890", 1234567890},
      {"4294967296", 4294967296},
      {"9007199254740993", 9007199254740993},
      {"-9007199254740993", -9007199254740993},
      {"999999999999999999", 999999999999999999},
      {"9223372036854775806", highest - 1},
      {"9223372036854775807", highest},
      {"-9223372036854775807", lowest + 1},
      {"-9223372036854775808", lowest},
      {"2.0", 2},
      {"-2.000", -2},
      {"0.0", 0},
      {"-0.0", 0},
      {"0." + zeros, 0},
      {"1." + zeros, 1},
      {"1e3", 1000},
      {"1E3", 1000},
      {"1e+3", 1000},
      {"1E+3", 1000},
      {"1e0", 1},
      {"1e-0", 1},
      {"1e00003", 1000},
      {"-1.5e1", -15},
      {"1.25e2", 125},
      {"10e-1", 1},
      {"100E-2", 1},
      {"0e0", 0},
      {"-0e3", 0},
      {"0e-400", 0},
      {"0.0e10", 0},
      {"1e18", 1000000000000000000},
      {"9e18", 9000000000000000000},
      {"-9e18", -9000000000000000000},
      {"9223372036854774784.0", 9223372036854774784},
      {"-9223372036854774784.0", -9223372036854774784},
      // More precise than a double: the parser rounds them.
      {"9007199254740993.0", 9007199254740992},
      {"1e-400", 0},
      {"-1e-400", 0},
      {"1e-999999999", 0},
      {"1e-2147483648", 0},
      {"0e400", 0},
      {"0e99999999999999999999", 0},
  };
}

std::vector<JsonCase> otherNumberCases() {
  return {
      {"0.5", OtherNumber{}},
      {"2.5", OtherNumber{}},
      {"-0.1", OtherNumber{}},
      {"1e-1", OtherNumber{}},
      {"1.5e0", OtherNumber{}},
      {"123.456e2", OtherNumber{}},
      {"1000000000.5", OtherNumber{}},
      {"4503599627370495.5", OtherNumber{}},
      {"1.0000000000000002", OtherNumber{}},
      {"1e-7", OtherNumber{}},
      {"1e-300", OtherNumber{}},
      {"9223372036854775808", OtherNumber{}},
      {"9223372036854775807.0", OtherNumber{}},
      {"9223372036854775808.0", OtherNumber{}},
      {"18446744073709551615", OtherNumber{}},
      {"-9223372036854775808.0", OtherNumber{}},
      {"1e19", OtherNumber{}},
      {"-1e19", OtherNumber{}},
      {"9.3e18", OtherNumber{}},
      {"1e308", OtherNumber{}},
      {"1.7976931348623157e308", OtherNumber{}},
  };
}

}  // namespace

std::vector<JsonCase> goodNumberCases() {
  auto cases = wholeNumberCases();
  const auto others = otherNumberCases();
  cases.insert(cases.end(), others.begin(), others.end());
  return cases;
}

}  // namespace quillmark::test
