// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>

#include <QObject>
#include <QQmlEngine>
#include <QVariant>

#include "viewmodel/AlertPresentation.h"
#include "viewmodel/AppPresentation.h"
#include "viewmodel/ConnectionPresentation.h"
#include "viewmodel/Settled.h"
#include "viewmodel/StatusPresentation.h"

namespace quillmark::test {

/// Sample records as the view model presents them to rows and the header, for QML
/// tests. In place of an optional text, undefined means no value.
class Sample : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

  static auto presented(const auto& record) {
    return settled(Turns::ofProcess(), [&] { return present(record); });
  }

 public:
  using QObject::QObject;

  Q_INVOKABLE [[nodiscard]] static quillmark::AlertPresentation alert(const QString& severity,
                                                                      const QString& type,
                                                                      const QVariant& description) {
    return presented(ThreatAlert{type.toStdString(), severity.toStdString(), "title",
                                 text(description), "/tmp/file", "2024-01-15T10:30:00Z"});
  }

  Q_INVOKABLE [[nodiscard]] static quillmark::AppPresentation app(const QString& name,
                                                                  const QVariant& version) {
    return presented(InstalledApp{name.toStdString(), text(version), "publisher", "/usr/bin/app"});
  }

  /// `address` and `port` are used for both ends.
  Q_INVOKABLE [[nodiscard]] static quillmark::ConnectionPresentation connection(
      const QString& address, const QString& port, const QString& state) {
    return presented(NetworkConnection{"tcp", address.toStdString(), port.toStdString(),
                                       address.toStdString(), port.toStdString(),
                                       state.toStdString(), "4711", "high"});
  }

  Q_INVOKABLE [[nodiscard]] static quillmark::StatusPresentation status(const QString& status,
                                                                        int threats,
                                                                        const QString& lastScan) {
    return presented(
        AgentStatus{true, threats, "none", status.toStdString(), lastScan.toStdString()});
  }

  Q_INVOKABLE [[nodiscard]] static quillmark::StatusPresentation noStatus() {
    return presented(std::optional<AgentStatus>());
  }

 private:
  static std::optional<std::string> text(const QVariant& value) {
    return value.isValid() ? std::optional(value.toString().toStdString()) : std::nullopt;
  }
};

}  // namespace quillmark::test
