// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

enum class Transport { tcp, udp };

/// Which machines can reach a local address.
enum class Reach { thisMachine, oneAddress, allInterfaces };

struct SocketEnd {
  std::string address;
  std::uint16_t port = 0;
};

/// One TCP or UDP socket of this network namespace.
struct Socket {
  std::string_view protocol;  ///< "tcp", "tcp6", "udp" or "udp6"
  Transport transport = Transport::tcp;
  SocketEnd local;
  SocketEnd remote;
  unsigned state = 0;       ///< the kernel's number
  std::uint64_t inode = 0;  ///< 0 when no process holds it any more
};

/// All sockets in `procRoot`/net/{tcp,tcp6,udp,udp6}, in the kernel's order.
/// Malformed lines are skipped.
[[nodiscard]] std::vector<Socket> readSockets(const std::string& procRoot);

/// The state's name: for TCP as the kernel calls it, for UDP "ESTABLISHED" or
/// "UNCONNECTED".
[[nodiscard]] std::string stateName(const Socket& socket);

/// Whether the socket accepts traffic from any peer: TCP in state LISTEN, UDP that
/// is not connected.
[[nodiscard]] bool isListening(const Socket& socket);

[[nodiscard]] Reach reachOf(const Socket& socket);

}  // namespace quillmark
