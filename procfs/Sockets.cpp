// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/Sockets.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <optional>

#include <arpa/inet.h>

#include "procfs/Number.h"
#include "procfs/SystemFile.h"
#include "procfs/Text.h"

namespace quillmark {
namespace {

constexpr unsigned tcpListen = 0x0A;
constexpr unsigned udpUnconnected = 0x07;

struct Table {
  std::string_view protocol;
  Transport transport;
};
constexpr Table tables[] = {{"tcp", Transport::tcp},
                            {"tcp6", Transport::tcp},
                            {"udp", Transport::udp},
                            {"udp6", Transport::udp}};

/// Converts an address as the kernel prints it: 32-bit words in host byte order,
/// one for IPv4, four for IPv6.
std::optional<std::string> addressText(std::string_view hex) {
  constexpr std::size_t digitsPerWord = 8;
  std::array<std::uint32_t, 4> network{};
  const bool isV4 = hex.size() == digitsPerWord;
  if (!isV4 && hex.size() != network.size() * digitsPerWord) {
    return std::nullopt;
  }
  for (std::size_t i = 0; i * digitsPerWord < hex.size(); ++i) {
    const auto word = parseNumber<std::uint32_t>(hex.substr(i * digitsPerWord, digitsPerWord), 16);
    if (!word) {
      return std::nullopt;
    }
    network[i] = *word;
  }
  std::array<char, INET6_ADDRSTRLEN> text{};
  inet_ntop(isV4 ? AF_INET : AF_INET6, network.data(), text.data(), text.size());
  return text.data();
}

std::optional<SocketEnd> readEnd(std::string_view field) {
  const std::size_t colon = field.find(':');
  if (colon == std::string_view::npos) {
    return std::nullopt;
  }
  auto address = addressText(field.substr(0, colon));
  const auto port = parseNumber<std::uint16_t>(field.substr(colon + 1), 16);
  if (!address || !port) {
    return std::nullopt;
  }
  return SocketEnd{std::move(*address), *port};
}

std::optional<Socket> readLine(std::string_view line, const Table& table) {
  const auto fields = words(line);
  if (fields.size() < 10) {
    return std::nullopt;
  }
  auto local = readEnd(fields[1]);
  auto remote = readEnd(fields[2]);
  const auto state = parseNumber<unsigned>(fields[3], 16);
  const auto inode = parseNumber<std::uint64_t>(fields[9]);
  if (!local || !remote || !state || !inode) {
    return std::nullopt;
  }
  return Socket{table.protocol,     table.transport, std::move(*local),
                std::move(*remote), *state,          *inode};
}

}  // namespace

std::vector<Socket> readSockets(const std::string& procRoot) {
  std::vector<Socket> sockets;
  for (const auto& table : tables) {
    const auto text = readSystemFile(procRoot + "/net/" + std::string(table.protocol)).value_or("");
    for (const auto line : split(text, '\n')) {
      if (auto socket = readLine(line, table)) {
        sockets.push_back(std::move(*socket));
      }
    }
  }
  return sockets;
}

std::string stateName(const Socket& socket) {
  static constexpr std::array<std::string_view, 13> names = {
      "",      "ESTABLISHED", "SYN_SENT", "SYN_RECV", "FIN_WAIT1", "FIN_WAIT2",   "TIME_WAIT",
      "CLOSE", "CLOSE_WAIT",  "LAST_ACK", "LISTEN",   "CLOSING",   "NEW_SYN_RECV"};
  if (socket.transport == Transport::udp && socket.state == udpUnconnected) {
    return "UNCONNECTED";
  }
  if (socket.state == 0 || socket.state >= names.size()) {
    return "UNKNOWN (" + std::to_string(socket.state) + ')';
  }
  return std::string(names[socket.state]);
}

bool isListening(const Socket& socket) {
  return socket.state == (socket.transport == Transport::tcp ? tcpListen : udpUnconnected);
}

Reach reachOf(const Socket& socket) {
  constexpr std::string_view v4InV6 = "::ffff:";
  std::string_view address = socket.local.address;
  if (address.starts_with(v4InV6)) {
    address.remove_prefix(v4InV6.size());
  }
  if (address == "0.0.0.0" || address == "::") {
    return Reach::allInterfaces;
  }
  return address.starts_with("127.") || address == "::1" ? Reach::thisMachine : Reach::oneAddress;
}

}  // namespace quillmark
