// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string_view>

#include "procfs/Sockets.h"

namespace quillmark::sample {

/// The service that usually listens on this TCP port and transmits passwords
/// unencrypted, such as "Telnet"; empty for every other port.
[[nodiscard]] std::string_view cleartextService(std::uint16_t port);

/// Whether the socket is a cleartext service that listens on all interfaces.
[[nodiscard]] bool isExposedCleartextService(const Socket& socket);

/// "high": a cleartext service that listens on all interfaces. "medium": any
/// other listener on all interfaces, and a cleartext service on one address
/// that other machines can reach. "low": everything else.
[[nodiscard]] std::string_view riskLevel(const Socket& socket);

}  // namespace quillmark::sample
