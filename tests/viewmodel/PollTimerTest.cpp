// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <vector>

#include <QPointer>
#include <QSignalSpy>

#include "support/TokenFiles.h"
#include "viewmodel/DashboardViewModelRef.h"
#include "viewmodel/PollingTest.h"

namespace quillmark::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// These tests last as long as the polls are apart.
class PollTimerTest : public PollingTest {
 protected:
  /// When the first `count` polls began, as the backend saw it.
  static std::vector<Clock::time_point> pollsSeenBy(const Backend& backend, std::size_t count) {
    const auto polls = [&] {
      std::vector<Clock::time_point> times;
      for (const auto& request : backend.requests()) {
        if (request.target() == "/api/status") {
          times.push_back(request.at);
        }
      }
      return times;
    };
    EXPECT_TRUE(waitUntil([&] { return polls().size() >= count; }));
    return polls();
  }

  static void expectOneInterval(Clock::time_point from, Clock::time_point to) {
    EXPECT_GE(to - from, 4500ms);
    EXPECT_LE(to - from, 6s);
  }
};

TEST_F(PollTimerTest, RepeatsEveryFiveSeconds) {
  const Backend backend(goodAnswers());
  const auto model = makeModel();
  model->startPolling();
  const auto times = pollsSeenBy(backend, 3);
  ASSERT_EQ(times.size(), 3U);
  expectOneInterval(times[0], times[1]);
  expectOneInterval(times[1], times[2]);
}

TEST_F(PollTimerTest, PollsTwicePerIntervalWhenStartedTwice) {
  const Backend backend(goodAnswers());
  const auto model = makeModel();
  model->startPolling();
  model->startPolling();
  const auto times = pollsSeenBy(backend, 4);
  ASSERT_EQ(times.size(), 4U);
  EXPECT_LT(times[1] - times[0], 1s);
  expectOneInterval(times[0], times[2]);
  expectOneInterval(times[1], times[3]);
}

TEST_F(PollTimerTest, ReassignsEveryIntervalWithoutAToken) {
  removeTokens();
  const auto model = makeModel();
  const QSignalSpy assigned(model.get(), &DashboardViewModel::objectWillChange);
  model->startPolling();
  ASSERT_TRUE(waitUntil([&] { return assigned.count() == 4; }));
  const auto first = Clock::now();
  ASSERT_TRUE(waitUntil([&] { return assigned.count() == 8; }));
  expectOneInterval(first, Clock::now());
  EXPECT_EQ(summaryOf(*model), emptySummary);
}

TEST_F(PollTimerTest, GoesOnAfterTheViewGaveTheModelUp) {
  const Backend backend(goodAnswers());
  auto view = std::make_unique<DashboardViewModelRef>();
  const QPointer<DashboardViewModel> model = view->viewModel();
  const QSignalSpy lastAssigned(model, &DashboardViewModel::inventoryChanged);
  model->startPolling();
  view.reset();
  EXPECT_EQ(pollsSeenBy(backend, 2).size(), 2U);
  ASSERT_TRUE(waitUntil([&] { return lastAssigned.count() == 2; }));
  ASSERT_FALSE(model.isNull());
  EXPECT_EQ(summaryOf(*model), goodSummary);
}

TEST_F(PollTimerTest, DoesNotKeepAModelThatNeverPolled) {
  auto view = std::make_unique<DashboardViewModelRef>();
  const QPointer<DashboardViewModel> model = view->viewModel();
  ASSERT_FALSE(model.isNull());
  view.reset();
  EXPECT_TRUE(model.isNull());
}

TEST_F(PollTimerTest, EveryViewHasAModelOfItsOwn) {
  const DashboardViewModelRef one;
  const DashboardViewModelRef other;
  EXPECT_NE(one.viewModel(), other.viewModel());
  EXPECT_EQ(one.viewModel(), one.viewModel());
}

}  // namespace
}  // namespace quillmark::test
