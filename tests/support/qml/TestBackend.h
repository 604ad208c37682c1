// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <map>
#include <mutex>
#include <optional>
#include <string>

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include "support/Backend.h"

namespace quillmark::test {

/// The test server and a token file, for QML tests. Gives good answers until others
/// are set. Only inside the sandbox.
class TestBackend : public QObject {
  Q_OBJECT
  QML_ELEMENT

 public:
  explicit TestBackend(QObject* parent = nullptr);
  ~TestBackend() override;

  /// Answers `target` with this body from now on.
  Q_INVOKABLE void answer(const QString& target, const QString& body);
  /// Answers `target` with an error from now on.
  Q_INVOKABLE void fail(const QString& target);
  /// Gives good answers again.
  Q_INVOKABLE void recover();

  /// The targets of the requests so far, in their order.
  Q_INVOKABLE [[nodiscard]] QStringList requests() const;

  /// A network body with `count` connections, numbered by their local ports.
  Q_INVOKABLE [[nodiscard]] static QString connectionsBody(int count, const QString& state);

  /// Deletes the timers of all view models, so that a poll happens only when a test
  /// starts it.
  Q_INVOKABLE static void endTimers();

 private:
  void set(const QString& target, std::string answer);

  std::mutex mutex_;
  std::map<std::string, std::string> answers_;
  std::optional<Backend> backend_;
};

}  // namespace quillmark::test
