// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// soak_window POLLS TAB
//
// Polls POLLS times without a pause, with the tab TAB of the main window in front. Ends
// with 1 if memory, descriptors or threads leaked, with 2 if a poll got no data.

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
#include "main/PanelWindow.h"
#include "main/Renderer.h"
#include "main/ViewEngine.h"
#include "soak/Footprint.h"
#include "soak/SteadyAgent.h"
#include "support/TokenFiles.h"
#include "viewmodel/DashboardViewModel.h"

namespace {

using namespace quillmark;

constexpr long warmUp = 200;
constexpr long allowedKib = 8 * 1024;

/// The root view of the window, which has the view model and the selected tab.
QQuickItem* contentOf(const QQuickWindow& window) {
  for (auto* const item : window.findChildren<QQuickItem*>()) {
    if (item->property("viewModel").isValid() && item->property("selectedTab").isValid()) {
      return item;
    }
  }
  return nullptr;
}

/// The timer of the polls; null unless there is exactly one.
QTimer* pollTimer() {
  const auto timers = QCoreApplication::instance()->findChildren<QTimer*>();
  return timers.size() == 1 ? timers.first() : nullptr;
}

/// Makes the timer of the polls expire early, once for each poll. False if one got no
/// data.
bool pollTimes(const DashboardViewModel& model, QTimer& timer, long count) {
  for (long done = 0; done < count; ++done) {
    QEventLoop loop;
    QObject::connect(&model, &DashboardViewModel::inventoryChanged, &loop, &QEventLoop::quit,
                     Qt::QueuedConnection);
    timer.start(0);
    loop.exec();
    if (!model.status() || model.alerts().empty() || model.networkConnections().empty()) {
      std::fprintf(stderr, "poll %ld got no data\n", done);
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
  PanelWindow panel(engine);
  panel.present();

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
  // There are only the polls that this program starts.
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
