// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <tuple>

#include "model/Field.h"

namespace quillmark {

/// The agent's status; the body of "/api/status".
struct AgentStatus {
  bool protection_enabled = false;  ///< whether the agent acts on what it finds
  std::int64_t threat_count = 0;    ///< shown as received, even if negative
  std::string last_alert;           ///< free text
  std::string status;               ///< only "ok" means healthy
  std::string last_scan;            ///< usually an RFC 3339 time; other text is shown unchanged

  static constexpr auto fields = std::tuple{
      Field{"protection_enabled", &AgentStatus::protection_enabled},
      Field{"threat_count", &AgentStatus::threat_count},
      Field{"last_alert", &AgentStatus::last_alert}, Field{"status", &AgentStatus::status},
      Field{"last_scan", &AgentStatus::last_scan}};

  friend bool operator==(const AgentStatus&, const AgentStatus&) = default;
};

}  // namespace quillmark
