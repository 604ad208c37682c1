// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "procfs/Sockets.h"

namespace quillmark::sample::test {

// Sockets without a peer; by default one that listens.

inline Socket tcpSocket(std::string address, std::uint16_t port, unsigned state = 0x0A) {
  return {"tcp", Transport::tcp, {std::move(address), port}, {"0.0.0.0", 0}, state, 0};
}

inline Socket udpSocket(std::string address, std::uint16_t port, unsigned state = 0x07) {
  return {"udp", Transport::udp, {std::move(address), port}, {"0.0.0.0", 0}, state, 0};
}

}  // namespace quillmark::sample::test
