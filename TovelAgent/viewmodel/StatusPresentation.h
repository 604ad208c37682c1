// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>

#include <QQmlEngine>
#include <QString>

#include "model/AgentStatus.h"

namespace quillmark {

/// What the header shows of the agent's status, or when there is no status.
struct StatusPresentation {
  Q_GADGET
  QML_VALUE_TYPE(statusPresentation)
  Q_PROPERTY(QString status MEMBER status CONSTANT)
  Q_PROPERTY(bool statusIsHealthy MEMBER statusIsHealthy CONSTANT)
  Q_PROPERTY(QString threats MEMBER threats CONSTANT)
  Q_PROPERTY(bool threatsAreHealthy MEMBER threatsAreHealthy CONSTANT)
  Q_PROPERTY(bool hasLastScan MEMBER hasLastScan CONSTANT)
  Q_PROPERTY(QString lastScan MEMBER lastScan CONSTANT)

 public:
  QString status;                ///< upper-cased, or "OFFLINE"
  bool statusIsHealthy = false;  ///< whether the text as received is exactly "ok"
  QString threats;               ///< a plain decimal integer
  bool threatsAreHealthy = false;
  bool hasLastScan = false;
  QString lastScan;
};

[[nodiscard]] StatusPresentation present(const std::optional<AgentStatus>& status);

}  // namespace quillmark
