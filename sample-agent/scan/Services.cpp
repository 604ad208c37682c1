// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/Services.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <unordered_set>

#include "platform/Utf8.h"

namespace quillmark::sample {
namespace {

bool isDaemon(const Process& process) {
  return process.session == process.pid && process.terminal == 0 && process.parent <= 1;
}

std::unordered_set<std::uint64_t> listeningInodes(const std::vector<Socket>& sockets) {
  std::unordered_set<std::uint64_t> inodes;
  for (const auto& socket : sockets) {
    if (socket.transport == Transport::tcp && isListening(socket)) {
      inodes.insert(socket.inode);
    }
  }
  return inodes;
}

}  // namespace

std::vector<std::string> runningServices(const std::vector<Process>& processes,
                                         const std::vector<Socket>& sockets) {
  const auto listening = listeningInodes(sockets);
  const auto listens = [&](const Process& process) {
    return std::any_of(process.sockets.begin(), process.sockets.end(),
                       [&](std::uint64_t inode) { return listening.contains(inode); });
  };

  std::set<std::string> services;
  for (const auto& process : processes) {
    if (!process.unit.empty()) {
      services.insert(asUtf8(process.unit));
    } else if (isDaemon(process) || listens(process)) {
      services.insert(asUtf8(process.name));
    }
  }
  return {services.begin(), services.end()};
}

}  // namespace quillmark::sample
