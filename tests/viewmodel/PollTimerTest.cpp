// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <chrono>
#include <cstddef>

#include <QCoreApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

#include "support/TokenFiles.h"
#include "viewmodel/DashboardViewModelRef.h"
#include "viewmodel/PollingTest.h"

namespace quillmark::test {
namespace {

using namespace std::chrono_literals;

/// These tests wait for the real interval between polls.
class PollTimerTest : public PollingTest {
 protected:
  [[nodiscard]] static bool seesPolls(const Backend& backend, std::ptrdiff_t count) {
    return waitUntil([&] {
      const auto requests = backend.requests();
      return std::ranges::count_if(requests, [](const auto& request) {
               return request.target() == "/api/status";
             }) >= count;
    });
  }

  /// The timers that were started since the test began. Timers, because measured times
  /// depend on the machine's load as well.
  [[nodiscard]] QList<QTimer*> timers() const {
    auto found = runningTimers();
    found.removeIf([&](auto* timer) { return before_.contains(timer); });
    return found;
  }

  static void expectEveryFiveSeconds(const QTimer& timer) {
    EXPECT_TRUE(timer.isActive());
    EXPECT_FALSE(timer.isSingleShot());
    EXPECT_EQ(timer.intervalAsDuration(), 5s);
    EXPECT_EQ(timer.timerType(), Qt::PreciseTimer);
  }

 private:
  [[nodiscard]] static QList<QTimer*> runningTimers() {
    return QCoreApplication::instance()->findChildren<QTimer*>();
  }

  const QList<QTimer*> before_ = runningTimers();
};

TEST_F(PollTimerTest, RepeatsEveryFiveSeconds) {
  const Backend backend(goodAnswers());
  const auto model = makeModel();
  EXPECT_TRUE(timers().isEmpty());
  model->startPolling();
  ASSERT_EQ(timers().size(), 1);
  expectEveryFiveSeconds(*timers().front());
  EXPECT_TRUE(seesPolls(backend, 3));
}

TEST_F(PollTimerTest, PollsTwicePerIntervalWhenStartedTwice) {
  const Backend backend(goodAnswers());
  const auto model = makeModel();
  model->startPolling();
  model->startPolling();
  ASSERT_EQ(timers().size(), 2);
  expectEveryFiveSeconds(*timers().front());
  expectEveryFiveSeconds(*timers().back());
  EXPECT_TRUE(seesPolls(backend, 4));
}

TEST_F(PollTimerTest, ReassignsEveryIntervalWithoutAToken) {
  removeTokens();
  const auto model = makeModel();
  const QSignalSpy assigned(model.get(), &DashboardViewModel::objectWillChange);
  model->startPolling();
  ASSERT_TRUE(waitUntil([&] { return assigned.count() == 8; }));
  EXPECT_EQ(summaryOf(*model), emptySummary);
}

TEST_F(PollTimerTest, ContinuesAfterTheViewHasReleasedTheModel) {
  const Backend backend(goodAnswers());
  auto view = std::make_unique<DashboardViewModelRef>();
  const QPointer<DashboardViewModel> model = view->viewModel();
  const QSignalSpy lastAssigned(model, &DashboardViewModel::inventoryChanged);
  model->startPolling();
  view.reset();
  EXPECT_TRUE(seesPolls(backend, 2));
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

TEST_F(PollTimerTest, EveryViewHasItsOwnModel) {
  const DashboardViewModelRef one;
  const DashboardViewModelRef other;
  EXPECT_NE(one.viewModel(), other.viewModel());
  EXPECT_EQ(one.viewModel(), one.viewModel());
}

}  // namespace
}  // namespace quillmark::test
