// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QObject>
#include <QQmlEngine>
#include <QVariant>

#include "viewmodel/AlertPresentation.h"
#include "viewmodel/AppPresentation.h"
#include "viewmodel/ConnectionPresentation.h"
#include "viewmodel/StatusPresentation.h"

namespace quillmark::test {

/// What rows and the header show, made of a record by the view model's own
/// rules, for tests in QML. An optional text that is undefined is no value.
class Sample : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 private:
  /// A long text is read from its record while it is shown.
  template <class Row>
  auto kept(Row row) {
    auto snapshot = std::make_shared<const Row>(std::move(row));
    rows_.push_back(snapshot);
    return present(Snapshot<Row>(std::move(snapshot)));
  }

 public:
  using QObject::QObject;

  Q_INVOKABLE [[nodiscard]] quillmark::AlertPresentation alert(const QString& severity,
                                                               const QString& type,
                                                               const QVariant& description) {
    return kept(ThreatAlert{type.toStdString(), severity.toStdString(), "title", text(description),
                            "/tmp/file", "2024-01-15T10:30:00Z"});
  }

  Q_INVOKABLE [[nodiscard]] quillmark::AppPresentation app(const QString& name,
                                                           const QVariant& version) {
    return kept(InstalledApp{name.toStdString(), text(version), "publisher", "/usr/bin/app"});
  }

  /// One address and port for both ends.
  Q_INVOKABLE [[nodiscard]] quillmark::ConnectionPresentation connection(const QString& address,
                                                                         const QString& port,
                                                                         const QString& state) {
    return kept(NetworkConnection{"tcp", address.toStdString(), port.toStdString(),
                                  address.toStdString(), port.toStdString(), state.toStdString(),
                                  "4711", "high"});
  }

  Q_INVOKABLE [[nodiscard]] static quillmark::StatusPresentation status(const QString& status,
                                                                        int threats,
                                                                        const QString& lastScan) {
    return present(
        AgentStatus{true, threats, "none", status.toStdString(), lastScan.toStdString()});
  }

  Q_INVOKABLE [[nodiscard]] static quillmark::StatusPresentation noStatus() {
    return present(std::optional<AgentStatus>());
  }

 private:
  static std::optional<std::string> text(const QVariant& value) {
    return value.isValid() ? std::optional(value.toString().toStdString()) : std::nullopt;
  }

  std::vector<std::shared_ptr<const void>> rows_;
};

}  // namespace quillmark::test
