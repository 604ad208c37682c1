// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/Renderer.h"

#include <cerrno>
#include <cstring>
#include <vector>

#include <QCoreApplication>
#include <QQuickWindow>

#include <unistd.h>

#include "platform/OperatingSystem.h"
#include "platform/ProcessLimits.h"

namespace quillmark {
namespace {

constexpr auto backendVariable = "QT_QUICK_BACKEND";

}  // namespace

void chooseRenderer() {
  if (!qEnvironmentVariableIsSet(backendVariable) &&
      !qEnvironmentVariableIsSet("QSG_RHI_BACKEND")) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  }
}

void restartInSoftware() {
  qputenv(backendVariable, "software");
  std::vector<QByteArray> texts;
  for (const auto& argument : QCoreApplication::arguments()) {
    texts.push_back(argument.toLocal8Bit());
  }
  std::vector<char*> arguments;
  arguments.reserve(texts.size() + 1);
  for (auto& text : texts) {
    arguments.push_back(text.data());
  }
  arguments.push_back(nullptr);
  // The new process treats the limit that it inherits as the user's.
  const InitialDescriptorLimit inheritedLimit;
  execv(programPath().c_str(), arguments.data());
  qFatal("The panel cannot start itself again: %s", std::strerror(errno));
}

}  // namespace quillmark
