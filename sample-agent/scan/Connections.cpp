// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/Connections.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <tuple>

#include "AgentAddress.h"
#include "scan/Risk.h"

namespace quillmark::sample {
namespace {

bool isAgentEnd(const SocketEnd& end) {
  return end.port == agentPort && end.address == agentAddress;
}

bool isExchangeWithAgent(const Socket& socket) {
  return !isListening(socket) && (isAgentEnd(socket.local) || isAgentEnd(socket.remote));
}

std::string portText(std::uint16_t port) { return port == 0 ? "*" : std::to_string(port); }

auto orderOf(const Socket& socket) {
  return std::tie(socket.local.port, socket.protocol, socket.local.address, socket.remote.address,
                  socket.remote.port);
}

}  // namespace

std::vector<NetworkConnection> connectionsOf(std::vector<Socket> sockets,
                                             const std::vector<Process>& processes) {
  std::erase_if(sockets, isExchangeWithAgent);
  std::stable_sort(sockets.begin(), sockets.end(), [](const Socket& a, const Socket& b) {
    // The kernel's order changes whenever a connection is opened or closed.
    return std::tuple{!isListening(a), orderOf(a)} < std::tuple{!isListening(b), orderOf(b)};
  });

  const auto owners = socketOwners(processes);
  std::vector<NetworkConnection> connections;
  connections.reserve(sockets.size());
  for (auto& socket : sockets) {
    NetworkConnection& connection = connections.emplace_back();
    connection.connectionProtocol = socket.protocol;
    connection.local_port = portText(socket.local.port);
    connection.remote_port = portText(socket.remote.port);
    connection.state = stateName(socket);
    connection.risk_level = riskLevel(socket);
    if (const auto owner = owners.find(socket.inode); socket.inode != 0 && owner != owners.end()) {
      connection.pid = std::to_string(owner->second->pid);
    }
    connection.local_address = std::move(socket.local.address);
    connection.remote_address = std::move(socket.remote.address);
  }
  return connections;
}

}  // namespace quillmark::sample
