// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdlib>
#include <string>

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

#include "agentctl/Processes.h"
#include "platform/TemporaryFolder.h"
#include "support/TokenFiles.h"

namespace quillmark::test {

/// A temporary home directory, for as long as this object exists, and processes that
/// the Settings tab takes for agents. For QML tests; only inside the sandbox.
class TestHome : public QObject {
  Q_OBJECT
  QML_ELEMENT

 public:
  explicit TestHome(QObject* parent = nullptr) : QObject(parent), before_(std::getenv("HOME")) {
    setenv("HOME", folder_.path().c_str(), 1);
  }
  ~TestHome() override { setenv("HOME", before_.c_str(), 1); }

  /// Writes a file; returns its URL, as a file dialog does.
  Q_INVOKABLE [[nodiscard]] QUrl write(const QString& name, const QString& text) const {
    const auto path = folder_ / name.toStdString();
    writeFile(path, text.toStdString());
    return QUrl::fromLocalFile(QString::fromStdString(path));
  }

  Q_INVOKABLE [[nodiscard]] static bool startAgent() { return startProcessWithTheName(); }
  Q_INVOKABLE static void endAgents() { endProcessesWithTheName(); }

 private:
  TemporaryFolder folder_;
  std::string before_;
};

}  // namespace quillmark::test
