// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Samples.h"

namespace quillmark::test {
namespace {

const std::string goodApps = R"("apps":[{"name":"a"}])";
const std::string goodTexts = R"("services":["s"],"network_interfaces":["n"],"permissions":["p"])";

InventoryData inventoryOf(std::vector<InstalledApp> apps) {
  return {std::move(apps), {"s"}, {"n"}, {"p"}};
}

testing::AssertionResult inventoryFails(const std::string& members, const DecodeError& expected) {
  return failsAs<InventoryData>('{' + members + '}', expected);
}

TEST(ListOrder, TellsTheEarlierListThoughItStandsLater) {
  EXPECT_TRUE(inventoryFails(
      R"("permissions":[1],"services":["s",2],"network_interfaces":3,)" + goodApps,
      {DecodeFailure::typeMismatch, "services[1]", "string expected, number found"}));
  EXPECT_TRUE(inventoryFails(R"("services":[1],"network_interfaces":[],"permissions":[])",
                             {DecodeFailure::keyNotFound, "apps", "required key missing"}));
  EXPECT_TRUE(inventoryFails(
      goodTexts + R"(,"x":{"apps":[]},"apps":[{"name":"a"},{"path":"p","version":1}])",
      {DecodeFailure::keyNotFound, "apps[1].name", "required key missing"}));
}

TEST(ListOrder, TellsTheEarlierElementBeforeTheEarlierKey) {
  EXPECT_TRUE(failsAs<NetworkResponse>(
      objectOf({{"connections", arrayOf({sampleWith<NetworkConnection>("risk_level", "1"),
                                         sampleWith<NetworkConnection>("protocol", "1")})}}),
      {DecodeFailure::typeMismatch, "connections[0].risk_level", "string expected, number found"}));
  EXPECT_TRUE(failsAs<AlertsResponse>(
      R"({"alerts":[{"title":1,"severity":null,"alert_type":"t"},{}]})",
      {DecodeFailure::valueNotFound, "alerts[0].severity", "string expected, null found"}));
}

TEST(ListOrder, TakesTheLastOfTwoLists) {
  EXPECT_TRUE(decodesTo(
      R"({"apps":[{"name":"x"},{"name":"y"}],)" + goodTexts + R"(,"apps":[{"name":"a"}]})",
      inventoryOf({appNamed("a")})));
  EXPECT_TRUE(decodesTo(R"({"services":["x","y"],)" + goodApps + "," + goodTexts + "}",
                        inventoryOf({appNamed("a")})));
  EXPECT_TRUE(
      decodesTo(R"({"apps":[{"name":"x"}],)" + goodTexts + R"(,"apps":[]})", inventoryOf({})));
}

TEST(ListOrder, ForgetsTheFailureOfAnEarlierList) {
  for (const std::string bad :
       {R"([{"name":1}])", R"([{"name":"x"},{}])", "[1]", "null", R"({"0":[]})", R"("x")"}) {
    EXPECT_TRUE(decodesTo(R"({"apps":)" + bad + "," + goodApps + "," + goodTexts + "}",
                          inventoryOf({appNamed("a")})))
        << bad;
  }
}

TEST(ListOrder, TellsTheFailureOfTheLastList) {
  EXPECT_TRUE(inventoryFails(
      goodApps + "," + goodTexts + R"(,"apps":[{"name":"x"},{"name":{}}])",
      {DecodeFailure::typeMismatch, "apps[1].name", "string expected, object found"}));
  EXPECT_TRUE(inventoryFails(R"("apps":[{"name":1}],)" + goodTexts + R"(,"apps":[{},2])",
                             {DecodeFailure::keyNotFound, "apps[0].name", "required key missing"}));
}

TEST(ListOrder, TakesTheLastOfTwoKeysInAnElement) {
  EXPECT_TRUE(
      decodesTo(R"({"apps":[{"name":1,"path":"p","name":"a","path":null}],)" + goodTexts + "}",
                inventoryOf({appNamed("a")})));
  EXPECT_TRUE(inventoryFails(
      R"("apps":[{"name":"a","name":null}],)" + goodTexts,
      {DecodeFailure::valueNotFound, "apps[0].name", "string expected, null found"}));
}

TEST(ListOrder, TakesNothingFromTheElementBefore) {
  EXPECT_TRUE(decodesTo(
      R"({"apps":[{"name":"a","path":"p","version":"v"},{"name":"b"}],)" + goodTexts + "}",
      inventoryOf({{"a", "v", std::nullopt, "p"}, appNamed("b")})));
  EXPECT_TRUE(failsAs<AlertsResponse>(
      R"({"alerts":[{"alert_type":"t","severity":"s"},{"alert_type":"t"}]})",
      {DecodeFailure::keyNotFound, "alerts[1].severity", "required key missing"}));
}

TEST(ListOrder, HasWhatIsNoJsonBeforeAll) {
  for (const std::string rest : {"]", "]}x", ",]}", R"(,"\ud800"]})", "]} {}"}) {
    EXPECT_TRUE(failsWith<NetworkResponse>(R"({"connections":[1,{},null)" + rest,
                                           DecodeFailure::dataCorrupted, ""))
        << rest;
  }
}

// Nothing that stands inside a value of the wrong type is looked at.
TEST(ListOrder, TellsTheOutermostOfNestedFaults) {
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
