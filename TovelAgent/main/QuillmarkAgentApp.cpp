// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/QuillmarkAgentApp.h"

#include <thread>

#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlEngine>

#include "main/PanelWindow.h"
#include "main/SingleInstance.h"
#include "main/ViewEngine.h"
#include "viewmodel/FormatDate.h"

namespace quillmark {

int QuillmarkAgentApp::run() {
  SingleInstance instance;
  if (instance.handOverOrListen()) {
    return 0;
  }

  // Listing the fonts and formatting the first date are slow. Both run in parallel with
  // loading the views, which need the fonts at their first text and a date after the
  // first poll.
  std::jthread warmUp([] {
    static_cast<void>(QFontDatabase::families());
    static_cast<void>(formatDate(QStringLiteral("2000-01-01T00:00:00Z")));
  });

  QGuiApplication::setDesktopFileName(SingleInstance::applicationId);
  // Without a window the panel keeps running, and a second launch opens one.
  QGuiApplication::setQuitOnLastWindowClosed(false);

  QQmlEngine engine;
  prepareForViews(engine);
  QObject::connect(&engine, &QQmlEngine::quit, qGuiApp, &QCoreApplication::quit);

  PanelWindow window(engine);
  QObject::connect(&instance, &SingleInstance::activated, &window, &PanelWindow::present);
  // Queued, so that the caller gets its reply first.
  QObject::connect(&instance, &SingleInstance::quitRequested, qGuiApp, &QCoreApplication::quit,
                   Qt::QueuedConnection);

  window.open();
  appDelegate.applicationDidFinishLaunching();
  window.present();
  // It reads the environment, which from now on a call over the bus may change.
  warmUp.join();
  return QCoreApplication::exec();
}

}  // namespace quillmark
