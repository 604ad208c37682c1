// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

enum class Transport { tcp, udp };

/// From where a socket can be reached.
enum class Reach {
  thisMachine,    ///< from this machine only: it is bound to a loopback address
  oneAddress,     ///< from the network of the one address that it is bound to
  allInterfaces,  ///< from every network: it is bound to no address
};

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

/// From where `socket` can be reached, by its local address.
[[nodiscard]] Reach reachOf(const Socket& socket);

}  // namespace quillmark
