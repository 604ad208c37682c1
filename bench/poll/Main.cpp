// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench_poll ROWS ROUNDS
//
// Polls a server on the agent's port that answers with ROWS rows in each list, in
// each round as the panel does and in the minimal way. Prints one line per round, in
// milliseconds: the panel's time from the start of a poll to the change of the fourth
// field, the UI thread's part of it, and the time of the minimal way.

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include "client/TaskExecutor.h"
#include "decode/SampleBodies.h"
#include "model/Codec.h"
#include "poll/Floor.h"
#include "support/Backend.h"
#include "support/Bodies.h"
#include "support/TokenFiles.h"
#include "viewmodel/DashboardViewModel.h"

namespace {

using namespace quillmark;
using Clock = std::chrono::steady_clock;

const std::array<std::string, 4> targets{"/api/status", "/api/alerts", "/api/network",
                                         "/api/inventory"};

double milliseconds(Clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

AlertsResponse sampleAlerts(std::size_t count) {
  AlertsResponse result;
  for (std::size_t index = 0; index < count; ++index) {
    result.alerts.push_back({"file", index % 2 == 0 ? "high" : "low", "A title",
                             "A description of what was found", "/tmp/" + std::to_string(index),
                             "2026-01-02T03:04:05Z"});
  }
  return result;
}

std::map<std::string, std::string> answersOf(std::size_t rows) {
  return {{targets[0], test::okAnswer(test::statusBody)},
          {targets[1], test::okAnswer(encode(sampleAlerts(rows)))},
          {targets[2], test::okAnswer(encode(bench::sampleConnections(rows)))},
          {targets[3], test::okAnswer(encode(bench::sampleInventory(rows)))}};
}

/// Measures how long the UI thread is busy.
class WorkMeter final {
 public:
  WorkMeter() {
    auto* const dispatcher = QAbstractEventDispatcher::instance();
    QObject::connect(dispatcher, &QAbstractEventDispatcher::awake,
                     [this] { awakeSince_ = Clock::now(); });
    QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock,
                     [this] { worked_ += Clock::now() - awakeSince_; });
  }

  /// The busy time since the last call. Call on the UI thread only.
  [[nodiscard]] Clock::duration take() {
    const auto now = Clock::now();
    const auto result = worked_ + (now - awakeSince_);
    worked_ = {};
    awakeSince_ = now;
    return result;
  }

 private:
  Clock::time_point awakeSince_ = Clock::now();
  Clock::duration worked_{};
};

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 3) {
    std::fputs("usage: bench_poll ROWS ROUNDS\n", stderr);
    return 2;
  }
  const auto rows = std::strtoul(argv[1], nullptr, 10);
  const auto rounds = std::strtoul(argv[2], nullptr, 10);

  // Qt's own event loop signals when it sleeps; GLib's does so from outside the wait.
  qputenv("QT_NO_GLIB", "1");
  QCoreApplication application(argc, argv);
  test::Backend backend(answersOf(rows));
  test::writeFile(test::homeTokenPath(), "token");
  const TaskExecutor executor;
  const auto model = DashboardViewModel::create();
  WorkMeter meter;
  for (unsigned long round = 0; round < rounds; ++round) {
    QEventLoop loop;
    const auto done = QObject::connect(model.get(), &DashboardViewModel::inventoryChanged, &loop,
                                       &QEventLoop::quit);
    static_cast<void>(meter.take());
    const auto start = Clock::now();
    model->startPolling();
    loop.exec();
    const auto polled = Clock::now() - start;
    const auto worked = meter.take();
    QObject::disconnect(done);
    // One poll per round: prevent the next one after five seconds.
    qDeleteAll(application.findChildren<QTimer*>());

    const auto plainStart = Clock::now();
    if (bench::leastPoll(targets) == 0) {
      return 1;
    }
    std::printf("%.4f %.4f %.4f\n", milliseconds(polled), milliseconds(worked),
                milliseconds(Clock::now() - plainStart));
  }
}
