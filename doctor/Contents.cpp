// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Contents.h"

#include <cstdint>

#include "model/Codec.h"

namespace quillmark::doctor {
namespace {

constexpr std::size_t maxStatusCharacters = 40;

void count(Contents& contents, const char* fact, std::size_t number, const std::string& noun) {
  contents.summary += (contents.summary.empty() ? "" : ", ") + counted(number, noun);
  contents.entries[fact] = number;
}

void describe(Contents& contents, const AgentStatus& status, const TextSanitizer& sanitize) {
  contents.status = sanitize(status.status, maxStatusCharacters);
  contents.summary =
      "status \"" + *contents.status + "\", threats " + std::to_string(status.threat_count);
  contents.entries["threats"] = status.threat_count;
  if (status.status != "ok") {
    contents.mark = Mark::note;
    contents.summary += R"(, shown with a red dot: only "ok" counts as healthy)";
  }
}

void describe(Contents& contents, const AlertsResponse& body, const TextSanitizer&) {
  count(contents, "alerts", body.alerts.size(), "alert");
}

void describe(Contents& contents, const NetworkResponse& body, const TextSanitizer&) {
  count(contents, "connections", body.connections.size(), "connection");
}

void describe(Contents& contents, const InventoryData& body, const TextSanitizer&) {
  count(contents, "apps", body.apps.size(), "application");
  count(contents, "services", body.services.size(), "service");
  count(contents, "network_interfaces", body.network_interfaces.size(), "interface");
  count(contents, "permissions", body.permissions.size(), "permission");
}

template <Record R>
Contents read(std::string_view body, const TextSanitizer& sanitize) {
  Contents contents;
  const auto decoded = decode<R>(std::string(body));
  if (decoded) {
    describe(contents, *decoded, sanitize);
  } else {
    contents.error = decoded.error();
  }
  return contents;
}

}  // namespace

Contents readStatus(std::string_view body, const TextSanitizer& sanitize) {
  return read<AgentStatus>(body, sanitize);
}

Contents readAlerts(std::string_view body, const TextSanitizer& sanitize) {
  return read<AlertsResponse>(body, sanitize);
}

Contents readNetwork(std::string_view body, const TextSanitizer& sanitize) {
  return read<NetworkResponse>(body, sanitize);
}

Contents readInventory(std::string_view body, const TextSanitizer& sanitize) {
  return read<InventoryData>(body, sanitize);
}

}  // namespace quillmark::doctor
