// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QQmlEngine>
#include <QString>

#include "model/AgentStatus.h"

namespace quillmark {

/// What the header shows, with or without a status of the agent.
struct StatusPresentation {
  Q_GADGET
  QML_VALUE_TYPE(statusPresentation)
  Q_PROPERTY(QString status MEMBER status CONSTANT)
  Q_PROPERTY(bool statusIsHealthy MEMBER statusIsHealthy CONSTANT)
  Q_PROPERTY(QString threats MEMBER threats CONSTANT)
  Q_PROPERTY(bool hasNoThreats MEMBER hasNoThreats CONSTANT)
  Q_PROPERTY(bool isConnected MEMBER isConnected CONSTANT)
  Q_PROPERTY(QString lastScan MEMBER lastScan CONSTANT)

 public:
  QString status;                ///< upper-cased, or "OFFLINE"
  bool statusIsHealthy = false;  ///< whether the text as received is exactly "ok"
  QString threats;               ///< a plain decimal integer
  bool hasNoThreats = false;
  bool isConnected = false;  ///< whether a status was received; only then is there a last scan
  QString lastScan;          ///< formatted, or the text as received
};

[[nodiscard]] StatusPresentation present(const std::optional<AgentStatus>& status);

}  // namespace quillmark
