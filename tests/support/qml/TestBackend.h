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

/// The real backend for tests in QML, with a token for whoever asks it. There
/// from its construction on, with a good answer to each request until another
/// is set; inside the sandbox alone.
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

  /// The targets of the requests that came in, in their order.
  Q_INVOKABLE [[nodiscard]] QStringList requests() const;

  /// A network body of so many connections, numbered by their local ports.
  Q_INVOKABLE [[nodiscard]] static QString connectionsBody(int count, const QString& state);

  /// Ends the timers of every view model. Polls then happen one at a time, when
  /// a test asks for them.
  Q_INVOKABLE static void endTimers();

 private:
  void set(const QString& target, std::string answer);

  std::mutex mutex_;
  std::map<std::string, std::string> answers_;
  std::optional<Backend> backend_;
};

}  // namespace quillmark::test
