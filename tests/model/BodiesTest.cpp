// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "model/Outcome.h"
#include "model/Repeated.h"
#include "model/Samples.h"

namespace quillmark::test {
namespace {

// Bodies as an agent sends them.

TEST(StatusBody, WithoutTheLastScanFails) {
  EXPECT_TRUE(failsWith<AgentStatus>(
      R"({"protection_enabled":true,"threat_count":0,"last_alert":"","status":"ok"})",
      DecodeFailure::keyNotFound, "last_scan"));
}

TEST(StatusBody, AcceptsNoNumberOrTextForABoolean) {
  for (const std::string value : {"0", "1", "1.0", R"("true")", R"("false")", R"("1")", R"("")"}) {
    EXPECT_TRUE(failsWith<AgentStatus>(sampleWith<AgentStatus>("protection_enabled", value),
                                       DecodeFailure::typeMismatch, "protection_enabled"))
        << value;
  }
  EXPECT_FALSE(decode<AgentStatus>(sampleWith<AgentStatus>("protection_enabled", "false"))
                   ->protection_enabled);
}

TEST(AlertBody, WithTheRequiredKeysAloneHasNoOtherValues) {
  const std::string json = R"({"alert_type":"malware","severity":"high"})";
  const auto alert = decode<ThreatAlert>(json);
  ASSERT_TRUE(alert);
  EXPECT_EQ(alert->title, std::nullopt);
  EXPECT_EQ(alert->description, std::nullopt);
  EXPECT_EQ(alert->file_path, std::nullopt);
  EXPECT_EQ(alert->timestamp, std::nullopt);
  EXPECT_EQ(encode(*alert), json);
}

TEST(AlertBody, DistinguishesAnEmptyTitleFromNone) {
  const auto titleOf = [](const std::string& title) {
    return decode<ThreatAlert>(R"({"alert_type":"a","severity":"b")" + title + "}")->title;
  };
  EXPECT_EQ(titleOf(""), std::nullopt);
  EXPECT_EQ(titleOf(R"(,"title":null)"), std::nullopt);
  EXPECT_EQ(titleOf(R"(,"title":"")"), "");
}

TEST(AlertBody, IgnoresAnIdOfTheAgent) {
  const auto alert = decode<ThreatAlert>(R"({"id":"mine","alert_type":"a","severity":"b"})");
  ASSERT_TRUE(alert);
  EXPECT_EQ(alert->alert_type, "a");
  EXPECT_EQ(alert->severity, "b");
  EXPECT_NE(alert->id(), "mine");
  EXPECT_EQ(encode(*alert), R"({"alert_type":"a","severity":"b"})");
}

TEST(NetworkBody, AcceptsNoNumbersForPortsAndProcesses) {
  for (const std::string key : {"local_port", "remote_port", "pid"}) {
    const std::string connection = sampleWith<NetworkConnection>(key, "443");
    EXPECT_TRUE(failsWith<NetworkConnection>(connection, DecodeFailure::typeMismatch, key));
    EXPECT_TRUE(failsWith<NetworkResponse>(objectOf({{"connections", arrayOf({connection})}}),
                                           DecodeFailure::typeMismatch, "connections[0]." + key));
  }
}

TEST(NetworkBody, ReadsTheProtocolFromItsJsonKeyOnly) {
  auto members = sampleMembers<NetworkConnection>();
  members.front().first = "connectionProtocol";
  EXPECT_TRUE(
      failsWith<NetworkConnection>(objectOf(members), DecodeFailure::keyNotFound, "protocol"));
}

TEST(InventoryBody, MayBeEmptyEverywhere) {
  EXPECT_TRUE(decodesTo(R"({"apps":[],"services":[],"network_interfaces":[],"permissions":[]})",
                        InventoryData{}));
}

TEST(ListBodies, MayBeEmpty) {
  EXPECT_TRUE(decodesTo(R"({"alerts":[]})", AlertsResponse{}));
  EXPECT_TRUE(decodesTo(R"({"connections":[]})", NetworkResponse{}));
}

TEST(ListBodies, KeepTheAgentsOrderAndItsDuplicates) {
  const auto inventory = decode<InventoryData>(
      R"({"apps":[{"name":"z"},{"name":"a"},{"name":"z"}],"services":["b","a","b"],)"
      R"("network_interfaces":[],"permissions":[]})");
  ASSERT_TRUE(inventory);
  EXPECT_EQ(inventory->apps, (std::vector{appNamed("z"), appNamed("a"), appNamed("z")}));
  EXPECT_EQ(inventory->services, (std::vector<std::string>{"b", "a", "b"}));
}

// Even with the shortest records, of which a body can have the most.
TEST(ListBodies, MayBeLong) {
  const auto list = [](const std::string& key, int count, const std::string& element) {
    return quoted(key) + ":[" + repeated(count - 1, element + ',') + element + ']';
  };
  const auto alerts = decode<AlertsResponse>(
      '{' + list("alerts", 400'000, R"({"alert_type":"a","severity":"b"})") + '}');
  ASSERT_TRUE(alerts);
  EXPECT_EQ(alerts->alerts.size(), 400'000U);
  EXPECT_EQ(alerts->alerts.back().severity, "b");

  const auto inventory = decode<InventoryData>('{' + list("apps", 500'000, R"({"name":"a"})") +
                                               ',' + list("services", 2'000'000, R"("")") +
                                               R"(,"network_interfaces":[],"permissions":[]})");
  ASSERT_TRUE(inventory);
  EXPECT_EQ(inventory->apps.size(), 500'000U);
  EXPECT_EQ(inventory->apps.back().name, "a");
  EXPECT_EQ(inventory->services.size(), 2'000'000U);
}

TEST(TextsOfTheAgent, AreKeptVerbatim) {
  const std::string json = R"({"name":" \u0000<b>a\u003Cb && c>d</b>\r\n\t\u202e\ud83d\ude00 é "})";
  const std::string text = std::string(" \0<b>a<b && c>d</b>\r\n\t", 22) + "\u202E\U0001F600 é ";
  EXPECT_TRUE(decodesTo(json, appNamed(text)));
}

}  // namespace
}  // namespace quillmark::test
