// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QGuiApplication>

#include <sys/resource.h>

#include "client/TaskExecutor.h"
#include "main/QuillmarkAgentApp.h"
#include "main/Renderer.h"

namespace {

/// A core dump would hold the access token and the API key that is being typed.
/// Only the soft limit goes: what the panel starts may raise it for itself.
void leaveNoCoreDump() {
  rlimit limit{};
  if (getrlimit(RLIMIT_CORE, &limit) == 0) {
    limit.rlim_cur = 0;
    setrlimit(RLIMIT_CORE, &limit);
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  leaveNoCoreDump();
  quillmark::chooseRenderer();
  const QGuiApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("quillmark-agent"));
  QCoreApplication::setApplicationVersion(QStringLiteral(QUILLMARK_VERSION));

  const quillmark::TaskExecutor executor;
  quillmark::QuillmarkAgentApp panel;
  return panel.run();
}
