// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <atomic>
#include <chrono>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include <QSignalSpy>

#include "viewmodel/PollingTest.h"

namespace quillmark::test {
namespace {

using namespace std::chrono_literals;

/// The complete good answer to `target`, for handlers that also do something else.
std::string answerTo(const std::string& target) { return goodAnswers().at(target); }

/// Other good answers, which differ from `goodAnswers` in all four fields.
std::map<std::string, std::string> otherAnswers() {
  const std::string alert = R"({"alert_type":"malware","severity":"low"})";
  const std::string app = R"({"name":"editor"})";
  return {
      {"/api/status", okAnswer(R"({"protection_enabled":true,"threat_count":0,"last_alert":"",)"
                               R"("status":"other","last_scan":""})")},
      {"/api/alerts", okAnswer(R"({"alerts":[)" + alert + "," + alert + "]}")},
      {"/api/network", okAnswer(networkBodyOf(3))},
      {"/api/inventory", okAnswer(R"({"apps":[)" + app + "," + app + "," + app + "," + app +
                                  R"(],"services":[],"network_interfaces":[],"permissions":[]})")}};
}

class PollOrderTest : public PollingTest {
 protected:
  void note(const std::string& what) {
    const std::lock_guard lock(mutex_);
    noted_.push_back(what);
  }

  std::mutex mutex_;
  std::vector<std::string> noted_;
};

// Each answer is delayed, so that overlapping requests would be detected.
TEST_F(PollOrderTest, RequestsComeOneAfterAnother) {
  const Backend backend([this](const ReceivedRequest& request, Connection& connection) {
    note("begin " + request.target());
    connection.pause(20ms);
    note("end " + request.target());
    connection.send(answerTo(request.target()));
  });
  const auto model = makeModel();
  poll(*model);
  EXPECT_EQ(noted_,
            (std::vector<std::string>{"begin /api/status", "end /api/status", "begin /api/alerts",
                                      "end /api/alerts", "begin /api/network", "end /api/network",
                                      "begin /api/inventory", "end /api/inventory"}));
}

TEST_F(PollOrderTest, AFailedRequestDoesNotEndThePoll) {
  const Backend backend([](const ReceivedRequest&, Connection&) {});
  const auto model = makeModel();
  poll(*model);
  std::vector<std::string> targets;
  for (const auto& request : backend.requests()) {
    targets.push_back(request.target());
  }
  EXPECT_EQ(targets, (std::vector<std::string>{"/api/status", "/api/alerts", "/api/network",
                                               "/api/inventory"}));
}

TEST_F(PollOrderTest, NothingIsAssignedBeforeTheLastRequestCompleted) {
  std::atomic<bool> released = false;
  const Backend backend([&](const ReceivedRequest& request, Connection& connection) {
    if (request.target() == "/api/inventory") {
      note("inventory asked");
      for (int i = 0; i < 10000 && !released; ++i) {
        connection.pause(10ms);
      }
    }
    connection.send(answerTo(request.target()));
  });
  const auto model = makeModel();
  const QSignalSpy assigned(model.get(), &DashboardViewModel::objectWillChange);
  model->startPolling();
  ASSERT_TRUE(waitUntil([this] {
    const std::lock_guard lock(mutex_);
    return !noted_.empty();
  }));
  EXPECT_EQ(assigned.count(), 0);
  EXPECT_EQ(summaryOf(*model), emptySummary);
  released = true;
  EXPECT_TRUE(waitUntil([&] { return assigned.count() == 4; }));
}

// With a silent backend, polls pile up: no poll waits for another, and a waiting poll
// blocks no thread.
TEST_F(PollOrderTest, PollsDoNotWaitForEachOther) {
  constexpr std::size_t polls = 50;
  const Backend backend(
      [](const ReceivedRequest&, Connection& connection) { connection.staySilent(); });
  const auto model = makeModel();
  for (std::size_t i = 0; i < polls; ++i) {
    model->startPolling();
  }
  EXPECT_TRUE(waitUntil([&] { return backend.requests().size() == polls; }));
  EXPECT_EQ(backend.requests().back().target(), "/api/status");
}

TEST_F(PollOrderTest, ThePollThatFinishesLastWins) {
  std::atomic<int> statusRequests = 0;
  std::atomic<bool> released = false;
  const Backend backend([&](const ReceivedRequest& request, Connection& connection) {
    const bool isHeld = request.target() == "/api/status" && ++statusRequests == 1;
    for (int i = 0; isHeld && i < 10000 && !released; ++i) {
      connection.pause(10ms);
    }
    connection.send(released ? otherAnswers().at(request.target()) : answerTo(request.target()));
  });
  const auto model = makeModel();
  model->startPolling();
  ASSERT_TRUE(waitUntil([&] { return statusRequests == 1; }));
  poll(*model);
  EXPECT_EQ(summaryOf(*model), goodSummary);

  const QSignalSpy lastAssigned(model.get(), &DashboardViewModel::inventoryChanged);
  released = true;
  ASSERT_TRUE(waitUntil([&] { return lastAssigned.count() == 1; }));
  EXPECT_EQ(summaryOf(*model), "other 2 3 4");
}

}  // namespace
}  // namespace quillmark::test
