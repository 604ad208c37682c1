// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Scanner.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "checks/CleartextServices.h"
#include "checks/DeletedExecutables.h"
#include "checks/WritableProgramFolders.h"
#include "model/Codec.h"
#include "scan/Capabilities.h"
#include "scan/Connections.h"
#include "scan/Interfaces.h"
#include "scan/Services.h"

namespace quillmark::sample {
namespace {

void append(std::vector<ThreatAlert>& alerts, std::vector<ThreatAlert> more) {
  alerts.insert(alerts.end(), std::make_move_iterator(more.begin()),
                std::make_move_iterator(more.end()));
}

}  // namespace

Scanner::Scanner(SystemPaths paths, const AgentConfig& config, const WalkLimits& limits)
    : paths_(std::move(paths)), config_(config), limits_(limits), applications_(paths_) {}

ScanResult Scanner::scan(std::chrono::system_clock::time_point now, const std::stop_token& stop) {
  ScanResult result;
  const auto processes = readProcesses(paths_.proc);
  const auto sockets = config_.collectNetwork ? readSockets(paths_.proc) : std::vector<Socket>{};

  std::vector<ThreatAlert> findings;
  if (config_.detection) {
    findings = runChecks(processes, sockets, stop, result.notes);
  }
  AlertsResponse alerts{history_.withFirstSeen(std::move(findings), now)};

  InventoryData inventory;
  inventory.apps = applications_.read();
  if (config_.collectServices) {
    inventory.services = runningServices(processes, sockets);
  }
  inventory.network_interfaces = networkInterfaces(paths_.proc);
  inventory.permissions = effectiveCapabilities(paths_.proc);

  result.bodies = std::make_shared<const AnswerBodies>(
      AnswerBodies{encodedStatus(alerts.alerts, now), encode(alerts),
                   encode(NetworkResponse{connectionsOf(sockets, processes)}), encode(inventory)});
  return result;
}

std::vector<ThreatAlert> Scanner::runChecks(const std::vector<Process>& processes,
                                            const std::vector<Socket>& sockets,
                                            const std::stop_token& stop,
                                            std::vector<std::string>& notes) const {
  auto alerts = deletedExecutables(processes, paths_.proc);
  append(alerts, writableProgramFolders(paths_.searchPath));
  append(alerts, exposedCleartextServices(sockets, processes));
  for (const auto& root : paths_.setUidRoots) {
    auto search = setUidFiles(root, limits_, stop);
    if (!search.complete) {
      notes.push_back("the search for set-user-ID files in " + root +
                      " reached its limit; not all files were looked at");
    }
    append(alerts, std::move(search.alerts));
  }
  return alerts;
}

std::string Scanner::encodedStatus(const std::vector<ThreatAlert>& alerts,
                                   std::chrono::system_clock::time_point now) const {
  AgentStatus status;
  status.protection_enabled = config_.protection;
  status.threat_count = std::count_if(alerts.begin(), alerts.end(), isThreat);
  status.last_alert = config_.detection ? "No alerts" : "Detection is switched off";
  if (!alerts.empty()) {
    status.last_alert = alerts.front().title.value_or(alerts.front().alert_type);
  }
  status.status = "ok";
  status.last_scan = rfc3339(now);
  return encode(status);
}

}  // namespace quillmark::sample
