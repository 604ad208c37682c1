// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/StatusPresentation.h"

#include "viewmodel/DisplayText.h"
#include "viewmodel/FormatDate.h"

namespace quillmark {

StatusPresentation present(const std::optional<AgentStatus>& status) {
  const auto threatCount = status ? status->threat_count : 0;

  StatusPresentation header;
  header.status = status ? displayText(status->status).toUpper() : QStringLiteral("OFFLINE");
  header.statusIsHealthy = status && status->status == "ok";
  header.threats = QString::number(threatCount);
  header.hasNoThreats = threatCount == 0;
  header.isConnected = status.has_value();
  header.lastScan = status ? formatDate(displayText(status->last_scan)) : QString();
  return header;
}

}  // namespace quillmark
