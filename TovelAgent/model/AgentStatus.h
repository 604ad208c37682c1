// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <tuple>

#include "model/Field.h"

namespace quillmark {

/// How the agent is doing; the body of "/api/status".
struct AgentStatus {
  bool protection_enabled = false;  ///< whether the agent acts on what it finds
  std::int64_t threat_count = 0;    ///< as the agent counts; may be negative
  std::string last_alert;           ///< free text
  std::string status;               ///< "ok" is the one healthy word
  std::string last_scan;            ///< by custom an RFC 3339 time, shown as it is otherwise

  static constexpr auto fields = std::tuple{
      Field{"protection_enabled", &AgentStatus::protection_enabled},
      Field{"threat_count", &AgentStatus::threat_count},
      Field{"last_alert", &AgentStatus::last_alert}, Field{"status", &AgentStatus::status},
      Field{"last_scan", &AgentStatus::last_scan}};

  friend bool operator==(const AgentStatus&, const AgentStatus&) = default;
};

}  // namespace quillmark
