// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string_view>

#include "procfs/Sockets.h"

namespace quillmark::sample {

/// What usually answers on a TCP port over which passwords travel unencrypted,
/// such as "Telnet"; empty for every other port.
[[nodiscard]] std::string_view cleartextService(std::uint16_t port);

/// Whether anyone who reaches this machine may talk to a cleartext service on it.
[[nodiscard]] bool isExposedCleartextService(const Socket& socket);

/// "high": a cleartext service that listens on all interfaces. "medium": any
/// other listener on all interfaces, and a cleartext service on one address
/// that other machines reach. "low": everything else.
[[nodiscard]] std::string_view riskLevel(const Socket& socket);

}  // namespace quillmark::sample
