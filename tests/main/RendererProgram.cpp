// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>

#include <QGuiApplication>
#include <QQuickWindow>

#include "main/Renderer.h"

// Prints whether it chose the renderer, the renderer in the environment, and its
// arguments. With the argument "restart" it first restarts itself with the software
// renderer.
int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  quillmark::chooseRenderer();
  const QGuiApplication application(argc, argv);
  const auto backend = qEnvironmentVariable("QT_QUICK_BACKEND");
  const auto arguments = QCoreApplication::arguments().mid(1);
  if (arguments.contains(QStringLiteral("restart")) && backend != QStringLiteral("software")) {
    quillmark::restartInSoftware();
    std::puts("not restarted");
    return 1;
  }
  const bool isLeftToQt = QQuickWindow::sceneGraphBackend().isEmpty();
  std::printf("%s,%s", isLeftToQt ? "left to Qt" : "chosen", qUtf8Printable(backend));
  for (const auto& argument : arguments) {
    std::printf(",%s", qUtf8Printable(argument));
  }
}
