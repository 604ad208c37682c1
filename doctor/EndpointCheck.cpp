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

PanelData checkEndpoints(Findings& findings, const TokenInUse& token, const Port& port,
                         const TextSanitizer& sanitize) {
  if (!token.value) {
    for (const auto& endpoint : endpoints) {
      findings.push_back(notAsked(endpoint, token.whyNotSent));
    }
    return {.status = std::nullopt, .offlineBecause = token.whyNotSent, .failedParts = {}};
  }
  std::vector<std::string_view> paths;
  for (const auto& endpoint : endpoints) {
    paths.push_back(endpoint.path);
  }
  const auto all = queryAgent(*token.value, paths);

  PanelData data;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const auto& endpoint = endpoints[i];
    auto verdict = judge(endpoint, all[i], port, sanitize);
    if (endpoint.path == statusPath) {
      data.status = verdict.status;
      data.offlineBecause = verdict.reason;
    } else if (!verdict.reason.empty()) {
      data.failedParts.emplace_back(endpoint.shownName);
    }
    findings.push_back(std::move(verdict.finding));
  }
  return data;
}

}  // namespace quillmark::doctor
