// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QGuiApplication>

#include "client/TaskExecutor.h"
#include "main/QuillmarkAgentApp.h"
#include "main/Renderer.h"

int main(int argc, char* argv[]) {
  quillmark::chooseRenderer();
  const QGuiApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("quillmark-agent"));
  QCoreApplication::setApplicationVersion(QStringLiteral(QUILLMARK_VERSION));

  const quillmark::TaskExecutor executor;
  quillmark::QuillmarkAgentApp panel;
  return panel.run();
}
