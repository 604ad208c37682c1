// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Samples.h"

namespace quillmark::test {
namespace {

/// Good elements, and `element` between them.
template <Record R>
std::string arrayWith(std::size_t index, const std::string& element) {
  std::vector<std::string> elements(index + 2, objectOf(sampleMembers<R>()));
  elements[index] = element;
  return arrayOf(elements);
}

std::string networkBody(std::size_t index, const std::string& connection) {
  return objectOf({{"connections", arrayWith<NetworkConnection>(index, connection)}});
}

TEST(DecodePath, LeadsThroughArraysAndKeys) {
  const auto mismatch = DecodeFailure::typeMismatch;
  EXPECT_TRUE(
      failsWith<NetworkResponse>(networkBody(3, sampleWith<NetworkConnection>("local_port", "443")),
                                 mismatch, "connections[3].local_port"));
  EXPECT_TRUE(failsWith<InventoryData>(
      sampleWith<InventoryData>(
          "apps", arrayWith<InstalledApp>(12, sampleWith<InstalledApp>("path", "[]"))),
      mismatch, "apps[12].path"));
  EXPECT_TRUE(failsWith<AlertsResponse>(
      R"({"alerts":[{"alert_type":"a","severity":"b","title":7}]})", mismatch, "alerts[0].title"));
}

TEST(DecodePath, LeadsToAnElementThatIsNoObject) {
  for (const std::string element : {"1", "true", R"("text")", "[]", "null"}) {
    EXPECT_TRUE(failsWith<NetworkResponse>(networkBody(2, element), DecodeFailure::typeMismatch,
                                           "connections[2]"))
        << element;
  }
}

TEST(DecodePath, LeadsToAMissingKey) {
  EXPECT_TRUE(failsWith<NetworkResponse>(networkBody(1, sampleWithout<NetworkConnection>("state")),
                                         DecodeFailure::keyNotFound, "connections[1].state"));
}

TEST(DecodePath, LeadsToARequiredNull) {
  EXPECT_TRUE(failsWith<NetworkResponse>(
      networkBody(0, sampleWith<NetworkConnection>("remote_address", "null")),
      DecodeFailure::valueNotFound, "connections[0].remote_address"));
}

TEST(DecodePath, LeadsIntoArraysOfTexts) {
  for (const std::string key : {"services", "network_interfaces", "permissions"}) {
    EXPECT_TRUE(failsWith<InventoryData>(sampleWith<InventoryData>(key, R"(["a","b",3])"),
                                         DecodeFailure::typeMismatch, key + "[2]"));
    EXPECT_TRUE(failsWith<InventoryData>(sampleWith<InventoryData>(key, R"([null,"b"])"),
                                         DecodeFailure::valueNotFound, key + "[0]"));
  }
}

TEST(DecodePath, IsThatOfTheFirstBadElement) {
  const std::string bad = sampleWith<NetworkConnection>("pid", "1");
  EXPECT_TRUE(failsWith<NetworkResponse>(objectOf({{"connections", arrayOf({bad, "3", bad})}}),
                                         DecodeFailure::typeMismatch, "connections[0].pid"));
}

TEST(DecodePath, IsEmptyForInvalidJson) {
  EXPECT_TRUE(failsWith<NetworkResponse>(R"({"connections":[)", DecodeFailure::dataCorrupted, ""));
}

TEST(DecodePath, IsThatOfTheEarlierElementBeforeTheEarlierKey) {
  EXPECT_TRUE(failsAs<NetworkResponse>(
      objectOf({{"connections", arrayOf({sampleWith<NetworkConnection>("risk_level", "1"),
                                         sampleWith<NetworkConnection>("protocol", "1")})}}),
      {DecodeFailure::typeMismatch, "connections[0].risk_level", "string expected, number found"}));
  EXPECT_TRUE(failsAs<AlertsResponse>(
      R"({"alerts":[{"title":1,"severity":null,"alert_type":"t"},{}]})",
      {DecodeFailure::valueNotFound, "alerts[0].severity", "string expected, null found"}));
}

// The contents of a value of the wrong type are not checked.
TEST(DecodePath, IsThatOfTheOutermostOfNestedFaults) {
  EXPECT_TRUE(failsAs<AlertsResponse>(
      R"({"alerts":{"alerts":[{"alert_type":1}]}})",
      {DecodeFailure::typeMismatch, "alerts", "array expected, object found"}));
  EXPECT_TRUE(failsAs<AlertsResponse>(
      R"({"alerts":[[{"alert_type":"t","severity":"s"}]]})",
      {DecodeFailure::typeMismatch, "alerts[0]", "object expected, array found"}));
  EXPECT_TRUE(failsAs<AlertsResponse>(
      R"({"alerts":[{"alert_type":{"alert_type":"t","severity":"s"},"severity":"s"}]})",
      {DecodeFailure::typeMismatch, "alerts[0].alert_type", "string expected, object found"}));
}

}  // namespace
}  // namespace quillmark::test
