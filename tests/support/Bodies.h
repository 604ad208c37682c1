// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <map>
#include <string>

namespace quillmark::test {

/// Good bodies, one for each endpoint.
inline const std::string statusBody =
    R"({"protection_enabled":true,"threat_count":3,"last_alert":"none","status":"ok",)"
    R"("last_scan":"2024-01-15T10:30:00Z"})";
inline const std::string alertsBody =
    R"({"alerts":[{"alert_type":"malware","severity":"high","description":"found"}]})";
inline const std::string networkBody =
    R"({"connections":[{"protocol":"tcp","local_address":"127.0.0.1","local_port":"7823",)"
    R"("remote_address":"10.0.0.5","remote_port":"443","state":"ESTABLISHED"}]})";
inline const std::string inventoryBody =
    R"({"apps":[{"name":"editor","version":"2.4.1"}],"services":["cron","ssh"],)"
    R"("network_interfaces":["lo"],"permissions":[]})";

/// A network body with `count` connections, whose local ports are 0, 1, 2 and so on;
/// `state` is the same for all.
[[nodiscard]] std::string networkBodyOf(int count, const std::string& state = "LISTEN");

/// Complete 200 answers with the good bodies, by target.
[[nodiscard]] std::map<std::string, std::string> goodAnswers();

}  // namespace quillmark::test
