// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// soak_window POLLS TAB
//
// The main window, with that tab in front, over as many polls as asked for, one
// after another without a pause. Ends with 1 if they left anything behind, 2 if
// a poll brought nothing.

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <QEventLoop>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>

#include "client/TaskExecutor.h"
#include "main/Renderer.h"
#include "main/ViewEngine.h"
#include "main/WindowGroup.h"
#include "soak/Footprint.h"
#include "soak/SteadyAgent.h"
#include "support/TokenFiles.h"
#include "viewmodel/DashboardViewModel.h"

namespace {

using namespace quillmark;

constexpr long warmUp = 200;
constexpr long allowedKib = 8 * 1024;

/// The root view of the one window: it keeps the view model and the tab.
QQuickItem* contentOf(const QQuickWindow& window) {
  for (auto* const item : window.findChildren<QQuickItem*>()) {
    if (item->property("viewModel").isValid() && item->property("selectedTab").isValid()) {
      return item;
    }
  }
  return nullptr;
}

/// The one timer of the polls; null unless there is exactly one.
QTimer* pollTimer() {
  const auto timers = QCoreApplication::instance()->findChildren<QTimer*>();
  return timers.size() == 1 ? timers.first() : nullptr;
}

/// Has the timer of the polls run out early, once for each. False if one brought
/// nothing.
bool pollTimes(const DashboardViewModel& model, QTimer& timer, long count) {
  for (long done = 0; done < count; ++done) {
    QEventLoop loop;
    QObject::connect(&model, &DashboardViewModel::inventoryChanged, &loop, &QEventLoop::quit,
                     Qt::QueuedConnection);
    timer.start(0);
    loop.exec();
    if (!model.status() || model.alerts().empty() || model.networkConnections().empty()) {
      std::fprintf(stderr, "poll %ld brought nothing\n", done);
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char* argv[]) {
  const long polls = argc == 3 ? std::strtol(argv[1], nullptr, 10) : 0;
  if (polls <= 0) {
    std::fputs("usage: soak_window POLLS TAB\n", stderr);
    return 2;
  }
  const test::SteadyAgent agent(test::changingAnswers());
  test::writeFile(test::homeTokenPath(), "token");
  chooseRenderer();
  const QGuiApplication application(argc, argv);
  const TaskExecutor executor;
  QQmlEngine engine;
  prepareForViews(engine);
  WindowGroup windows(engine);
  windows.present();

  auto* const window = qobject_cast<QQuickWindow*>(QGuiApplication::topLevelWindows().first());
  auto* const content = window == nullptr ? nullptr : contentOf(*window);
  auto* const timer = pollTimer();
  if (content == nullptr || timer == nullptr) {
    std::fprintf(stderr, "no %s\n", content == nullptr ? "root view" : "single timer");
    return 2;
  }
  content->setProperty("selectedTab", QString::fromLatin1(argv[2]));
  const auto* const model =
      qobject_cast<DashboardViewModel*>(content->property("viewModel").value<QObject*>());
  // Each poll is asked for, and only that.
  QObject::connect(timer, &QTimer::timeout, timer, &QTimer::stop);
  long frames = 0;
  QObject::connect(window, &QQuickWindow::frameSwapped, window, [&] { ++frames; });

  if (!pollTimes(*model, *timer, warmUp)) {
    return 2;
  }
  frames = 0;
  const auto before = test::Footprint::now();
  const auto start = std::chrono::steady_clock::now();
  if (!pollTimes(*model, *timer, polls)) {
    return 2;
  }
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  const bool held = test::report(std::string("window, ") + argv[2], polls, taken.count(), before,
                                 test::Footprint::now(), allowedKib);
  std::fprintf(stderr, "%ld frames\n", frames);
  return held && pollTimer() == timer && frames > 0 ? 0 : 1;
}
