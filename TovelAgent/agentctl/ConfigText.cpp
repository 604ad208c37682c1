// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "agentctl/ConfigText.h"

namespace quillmark {

// clang-format off
std::string configText(const ConfigValues& values) {
  return R"([agent]
agent_id = ")" + values.agentId + R"("
machine_identifier = ")" + values.machineIdentifier + R"("
server_url = ")" + values.serverUrl + R"("
api_key = ")" + values.apiKey + R"("
dev_mode = false

[telemetry]
enabled = true
batch_size = 100
batch_interval_seconds = 30
collect_processes = true
collect_network = true
collect_services = true
collect_logs = true

[detection]
enabled = true
signature_enabled = true
heuristic_enabled = true
rule_enabled = true
anomaly_enabled = true

[protection]
enabled = true
auto_quarantine = true
auto_terminate = false
auto_block_network = false
quarantine_path = ")" + values.home + R"(/.quillmark/quarantine"

[av]
enabled = true
signature_path = ")" + values.home + R"(/.quillmark/signatures"
update_interval_seconds = 3600
heuristic_enabled = true

[logging]
level = "info"
file_path = ")" + values.home + R"(/.quillmark/logs/agent.log"
audit_path = ")" + values.home + R"(/.quillmark/logs/audit.log")";
}
// clang-format on

}  // namespace quillmark
