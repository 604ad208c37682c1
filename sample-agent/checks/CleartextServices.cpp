// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "checks/CleartextServices.h"

#include <cstdint>
#include <map>
#include <string>

#include "platform/Utf8.h"
#include "scan/Risk.h"

namespace quillmark::sample {
namespace {

ThreatAlert alertOn(std::uint16_t port, const Process* owner) {
  const std::string service(cleartextService(port));
  const std::string number = std::to_string(port);
  ThreatAlert alert;
  alert.alert_type = "Cleartext service";
  alert.severity = "high";
  alert.title = "Port " + number + " (" + service + ") is open on all interfaces";
  // The port number alone does not prove which service listens.
  alert.description = "Port " + number +
                      " accepts connections from every network. It is the port of " + service +
                      ", over which everything travels unencrypted, passwords included.";
  if (owner != nullptr) {
    *alert.description += " It is served by process " + std::to_string(owner->pid) + " (" +
                          asUtf8(owner->name) + ").";
    if (!owner->executable.empty()) {
      alert.file_path = asUtf8(owner->executable);
    }
  }
  return alert;
}

}  // namespace

std::vector<ThreatAlert> exposedCleartextServices(const std::vector<Socket>& sockets,
                                                  const std::vector<Process>& processes) {
  const auto owners = socketOwners(processes);
  // IPv4 and IPv6 are two sockets, but one service.
  std::map<std::uint16_t, const Process*> ports;
  for (const auto& socket : sockets) {
    if (isExposedCleartextService(socket)) {
      const auto owner = owners.find(socket.inode);
      const Process*& known = ports[socket.local.port];
      if (known == nullptr && owner != owners.end()) {
        known = owner->second;
      }
    }
  }

  std::vector<ThreatAlert> alerts;
  alerts.reserve(ports.size());
  for (const auto& [port, owner] : ports) {
    alerts.push_back(alertOn(port, owner));
  }
  return alerts;
}

}  // namespace quillmark::sample
