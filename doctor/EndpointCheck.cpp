// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "EndpointCheck.h"

#include <string_view>
#include <utility>

#include "AgentQuery.h"
#include "EndpointVerdict.h"
#include "client/AgentUrl.h"

namespace quillmark::doctor {
namespace {

constexpr Endpoint endpoints[] = {{"status", statusPath, readStatus, "status"},
                                  {"alerts", alertsPath, readAlerts, "alerts"},
                                  {"network", networkPath, readNetwork, "connections"},
                                  {"inventory", inventoryPath, readInventory, "inventory"}};

}  // namespace

Shown checkEndpoints(Findings& findings, const TokenInUse& inUse, const Port& port,
                     const TextSanitizer& sanitize) {
  if (!inUse.token) {
    for (const auto& endpoint : endpoints) {
      findings.push_back(notAsked(endpoint, inUse.refusal));
    }
    return {.status = std::nullopt, .offlineBecause = inUse.refusal, .failedParts = {}};
  }
  std::vector<std::string_view> paths;
  for (const auto& endpoint : endpoints) {
    paths.push_back(endpoint.path);
  }
  const auto all = queryAgent(*inUse.token, paths);

  Shown shown;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const auto& endpoint = endpoints[i];
    auto verdict = judge(endpoint, all[i], port, sanitize);
    if (endpoint.path == statusPath) {
      shown.status = verdict.status;
      shown.offlineBecause = verdict.reason;
    } else if (!verdict.reason.empty()) {
      shown.failedParts.emplace_back(endpoint.shownAs);
    }
    findings.push_back(std::move(verdict.finding));
  }
  return shown;
}

}  // namespace quillmark::doctor
