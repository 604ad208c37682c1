// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string_view>

namespace quillmark::sample {

// Where the interface is served. Loopback only: other machines must not reach it.
inline constexpr std::string_view agentAddress = "127.0.0.1";
inline constexpr std::uint16_t agentPort = 7823;

// The accepted Host fields. Any other one indicates DNS rebinding: a web page whose
// domain name resolves to this machine.
inline constexpr std::string_view agentHosts[] = {"127.0.0.1:7823", "localhost:7823"};

}  // namespace quillmark::sample
