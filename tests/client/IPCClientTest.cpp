// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/IPCClient.h"

#include <map>
#include <string>

#include <gtest/gtest.h>

#include "client/AllGets.h"
#include "client/WithTokenFiles.h"
#include "support/Bodies.h"

namespace quillmark::test {
namespace {

/// A client with a token, against the agent's own port.
class IPCClientGets : public WithTokenFiles {
 protected:
  IPCClientGets() { writeFile(systemTokenPath(), "token\n"); }

  static AllGets getAllFrom(const Backend::Handler& handler) {
    const Backend backend(handler);
    const IPCClient client;
    return getAll(client);
  }

  /// From an agent that answers everything with `answer`.
  static AllGets getAllFor(const std::string& answer) {
    return getAllFrom(
        [&](const ReceivedRequest&, Connection& connection) { connection.send(answer); });
  }
};

constexpr auto noRecord = std::nullopt;

TEST_F(IPCClientGets, YieldTheRecords) {
  const Backend backend(goodAnswers());
  const IPCClient client;
  EXPECT_EQ(completed(client.getStatus()),
            (AgentStatus{true, 3, "none", "ok", "2024-01-15T10:30:00Z"}));
  EXPECT_EQ(completed(client.getAlerts()),
            (std::vector<ThreatAlert>{
                {"malware", "high", std::nullopt, "found", std::nullopt, std::nullopt}}));
  EXPECT_EQ(completed(client.getNetwork()),
            (std::vector<NetworkConnection>{{"tcp", "127.0.0.1", "7823", "10.0.0.5", "443",
                                             "ESTABLISHED", std::nullopt, std::nullopt}}));
  EXPECT_EQ(completed(client.getInventory()),
            (InventoryData{
                {{"editor", "2.4.1", std::nullopt, std::nullopt}}, {"cron", "ssh"}, {"lo"}, {}}));
}

TEST_F(IPCClientGets, AskForOneTargetEach) {
  const Backend backend(goodAnswers());
  const IPCClient client;
  static_cast<void>(completed(client.getStatus()));
  static_cast<void>(completed(client.getAlerts()));
  static_cast<void>(completed(client.getNetwork()));
  static_cast<void>(completed(client.getInventory()));

  std::vector<std::string> texts;
  for (const auto& request : backend.requests()) {
    texts.push_back(request.text);
  }
  const std::string rest =
      " HTTP/1.1\r\nHost: 127.0.0.1:7823\r\nX-Agent-Token: token\r\nConnection: close\r\n\r\n";
  EXPECT_EQ(texts,
            (std::vector<std::string>{"GET /api/status" + rest, "GET /api/alerts" + rest,
                                      "GET /api/network" + rest, "GET /api/inventory" + rest}));
  EXPECT_EQ(backend.connections(), 4);
}

TEST_F(IPCClientGets, DistinguishAnEmptyListFromNone) {
  EXPECT_EQ(
      getAllFor(okAnswer(R"({"alerts":[],"connections":[]})")),
      (AllGets{noRecord, std::vector<ThreatAlert>{}, std::vector<NetworkConnection>{}, noRecord}));
}

TEST_F(IPCClientGets, KeepTheAgentsOrder) {
  const auto gets = getAllFor(okAnswer(networkBodyOf(5000)));
  ASSERT_TRUE(gets.network);
  ASSERT_EQ(gets.network->size(), 5000U);
  for (std::size_t i = 0; i < gets.network->size(); ++i) {
    EXPECT_EQ(gets.network->at(i).local_port, std::to_string(i));
  }
}

TEST_F(IPCClientGets, YieldNothingWithoutAnAgent) {
  const IPCClient client;
  EXPECT_EQ(getAll(client), AllGets{});
}

TEST_F(IPCClientGets, YieldNothingForAnErrorBody) {
  for (const std::string status : {"401 Unauthorized", "500 Internal Server Error", "200 OK"}) {
    EXPECT_EQ(getAllFor(answer(status, R"({"error":"unauthorized"})")), AllGets{}) << status;
  }
}

TEST_F(IPCClientGets, YieldNothingForAStatusWithoutTheLastScan) {
  auto answers = goodAnswers();
  answers["/api/status"] =
      okAnswer(R"({"protection_enabled":true,"threat_count":3,"last_alert":"none","status":"ok"})");
  const Backend backend(answers);
  const IPCClient client;
  const auto gets = getAll(client);
  EXPECT_EQ(gets.status, noRecord);
  EXPECT_NE(gets.alerts, noRecord);
  EXPECT_NE(gets.network, noRecord);
  EXPECT_NE(gets.inventory, noRecord);
}

TEST_F(IPCClientGets, YieldNothingForOneBadElement) {
  EXPECT_EQ(getAllFor(okAnswer(R"({"connections":[{"protocol":"tcp","local_address":"a",)"
                               R"("local_port":443,"remote_address":"b","remote_port":"1",)"
                               R"("state":"s"}]})")),
            AllGets{});
}

TEST_F(IPCClientGets, YieldNothingForOtherBodies) {
  for (const std::string body : {"", "<html></html>", "{", "null", "[]"}) {
    EXPECT_EQ(getAllFor(okAnswer(body)), AllGets{}) << body;
  }
}

TEST_F(IPCClientGets, YieldNothingWhenTheTransferBreaks) {
  EXPECT_EQ(getAllFor(""), AllGets{});
  EXPECT_EQ(getAllFor("HTTP/1.1 204 No Content\r\n\r\n"), AllGets{});
  EXPECT_EQ(getAllFor("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n" + statusBody), AllGets{});
  EXPECT_EQ(getAllFrom([](const ReceivedRequest&, Connection& connection) { connection.reset(); }),
            AllGets{});
}

}  // namespace
}  // namespace quillmark::test
