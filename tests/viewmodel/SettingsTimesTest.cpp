// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>

#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "agentctl/WithAgents.h"
#include "viewmodel/SettingsState.h"

namespace quillmark::test {
namespace {

using namespace std::chrono_literals;

/// When the tab searches for agents, and which operations block until they are done.
class SettingsTimes : public WithAgents {
 protected:
  /// Starts a process that the probe takes for an agent.
  static void startAnAgent() {
    ASSERT_TRUE(startProcessWithTheName());
    ASSERT_TRUE(waitUntil([] { return isRunning(); }));
  }

  /// The order of the agent's change of status and of two timers with this delay, which
  /// start before and after `operation`. The order, not the time, because a busy machine
  /// delays all three alike.
  QStringList orderAround(std::chrono::milliseconds delay, void (SettingsState::*operation)()) {
    QStringList order;
    QObject::connect(&state, &SettingsState::isAgentRunningChanged, &state,
                     [&] { order.append(QStringLiteral("probe")); });
    const auto note = [&](const char* name) {
      QTimer::singleShot(delay, Qt::PreciseTimer, &state,
                         [&order, name] { order.append(QLatin1String(name)); });
    };
    note("earlier timer");
    (state.*operation)();
    note("later timer");
    const auto isOver = [&] { return order.contains(QLatin1String("later timer")); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return isOver() && order.size() == 3; }, 60'000));
    return order;
  }

  const QStringList exact{QStringLiteral("earlier timer"), QStringLiteral("probe"),
                          QStringLiteral("later timer")};
  SettingsState state;
};

TEST_F(SettingsTimes, LookForAnAgentTwoSecondsAfterStart) {
  startAnAgent();
  testing::internal::CaptureStderr();
  EXPECT_EQ(orderAround(2s, &SettingsState::startAgent), exact);
  const auto errors = testing::internal::GetCapturedStderr();
  EXPECT_NE(errors.find("Contents/MacOS: No such file or directory"), std::string::npos)
      << "this program is in no bundle, so the shell must report an error: " << errors;
  EXPECT_TRUE(state.isAgentRunning());
  EXPECT_EQ(state.agentStatusLine(), "Agent is running");
}

TEST_F(SettingsTimes, LookForAnAgentOneSecondAfterStop) {
  startAnAgent();
  state.refresh();
  EXPECT_EQ(orderAround(1s, &SettingsState::stopAgent), exact);
  EXPECT_FALSE(state.isAgentRunning());
}

TEST_F(SettingsTimes, FindTheAgentAsSoonAsTheTabAppears) {
  startAnAgent();
  state.refresh();
  EXPECT_TRUE(state.isAgentRunning());
}

// While waiting, no Qt event is handled.
TEST_F(SettingsTimes, StopTheAgentAtOnce) {
  startAnAgent();
  state.stopAgent();
  EXPECT_TRUE(waitUntil(isAlone));
}

}  // namespace
}  // namespace quillmark::test
