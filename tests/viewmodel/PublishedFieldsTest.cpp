// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <optional>
#include <ostream>
#include <string>

#include "support/TokenFiles.h"
#include "viewmodel/PollingTest.h"

namespace quillmark::test {
namespace {

using PublishedFieldsTest = PollingTest;

TEST_F(PublishedFieldsTest, AreEmptyBeforeTheFirstPollCompletes) {
  const Backend backend(
      [](const ReceivedRequest&, Connection& connection) { connection.staySilent(); });
  const auto model = makeModel();
  EXPECT_EQ(summaryOf(*model), emptySummary);
  EXPECT_FALSE(model->hasInventory());
  EXPECT_FALSE(model->statusPresentation().isConnected);

  model->startPolling();
  ASSERT_TRUE(waitUntil([&] { return !backend.requests().empty(); }));
  EXPECT_EQ(summaryOf(*model), emptySummary);
}

TEST_F(PublishedFieldsTest, HoldTheRecordsOfTheLastPoll) {
  const Backend backend(goodAnswers());
  const auto model = makeModel();
  poll(*model);
  EXPECT_EQ(model->status(), (AgentStatus{true, 3, "none", "ok", "2024-01-15T10:30:00Z"}));
  EXPECT_EQ(model->alerts(), (std::vector<ThreatAlert>{{"malware", "high", {}, "found", {}, {}}}));
  EXPECT_EQ(model->networkConnections(),
            (std::vector<NetworkConnection>{
                {"tcp", "127.0.0.1", "7823", "10.0.0.5", "443", "ESTABLISHED", {}, {}}}));
  ASSERT_TRUE(model->hasInventory());
  EXPECT_EQ(*model->inventory(),
            (InventoryData{{{"editor", "2.4.1", {}, {}}}, {"cron", "ssh"}, {"lo"}, {}}));
  EXPECT_EQ(model->statusPresentation().status, QStringLiteral("OK"));
}

struct Endpoint {
  const char* target;
  const char* summary;  // with this endpoint's request failed
};

void PrintTo(const Endpoint& endpoint, std::ostream* out) { *out << endpoint.target; }

class OneEndpointFailsTest : public PollingTest, public testing::WithParamInterface<Endpoint> {
 protected:
  // A good poll, then one in which this endpoint gives `answer`.
  std::string summaryAfter(const std::string& answer) {
    std::optional<Backend> backend;
    backend.emplace(goodAnswers());
    const auto model = makeModel();
    poll(*model);
    EXPECT_EQ(summaryOf(*model), goodSummary);

    backend.reset();
    backend.emplace(goodAnswersBut(GetParam().target, answer));
    poll(*model);
    return summaryOf(*model);
  }
};

TEST_P(OneEndpointFailsTest, ClearsItsFieldOnlyWhenTheBodyDoesNotDecode) {
  EXPECT_EQ(summaryAfter(okAnswer("{\"broken\":")), GetParam().summary);
}

TEST_P(OneEndpointFailsTest, ClearsItsFieldOnlyWhenTheBodyIsAnError) {
  EXPECT_EQ(summaryAfter(answer("500 Internal Server Error", R"({"error":"no"})")),
            GetParam().summary);
}

TEST_P(OneEndpointFailsTest, ClearsItsFieldOnlyWhenTheConnectionCloses) {
  EXPECT_EQ(summaryAfter(""), GetParam().summary);
}

INSTANTIATE_TEST_SUITE_P(Endpoints, OneEndpointFailsTest,
                         testing::Values(Endpoint{"/api/status", "- 1 1 1"},
                                         Endpoint{"/api/alerts", "ok 0 1 1"},
                                         Endpoint{"/api/network", "ok 1 0 1"},
                                         Endpoint{"/api/inventory", "ok 1 1 -"}));

TEST_F(PublishedFieldsTest, AreAllClearedWhenTheBackendHasEnded) {
  const auto model = makeModel();
  {
    const Backend backend(goodAnswers());
    poll(*model);
    ASSERT_EQ(summaryOf(*model), goodSummary);
  }
  poll(*model);
  EXPECT_EQ(summaryOf(*model), emptySummary);
}

TEST_F(PublishedFieldsTest, ReturnWithTheBackend) {
  const auto model = makeModel();
  poll(*model);
  ASSERT_EQ(summaryOf(*model), emptySummary);
  const Backend backend(goodAnswers());
  poll(*model);
  EXPECT_EQ(summaryOf(*model), goodSummary);
}

TEST_F(PublishedFieldsTest, DoNotDistinguishAnEmptyListFromNone) {
  const Backend backend(goodAnswersBut("/api/alerts", okAnswer(R"({"alerts":[]})")));
  const auto model = makeModel();
  poll(*model);
  EXPECT_TRUE(model->alerts().empty());
}

TEST_F(PublishedFieldsTest, StayEmptyAndSendNoRequestsWithoutAToken) {
  removeTokens();
  const Backend backend(goodAnswers());
  const auto model = makeModel();
  // Too late: the token is read when the model is constructed.
  writeFile(systemTokenPath(), "secret\n");
  poll(*model);
  poll(*model);
  EXPECT_EQ(summaryOf(*model), emptySummary);
  EXPECT_EQ(backend.connections(), 0);
}

}  // namespace
}  // namespace quillmark::test
