// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string_view>

namespace quillmark::sample {

// Where the interface is served. Loopback only: nothing here is meant for
// another machine.
inline constexpr std::string_view agentAddress = "127.0.0.1";
inline constexpr std::uint16_t agentPort = 7823;

// The Host fields under which a client may ask for it. Any other name means
// that a web page has pointed its own name at this machine.
inline constexpr std::string_view agentHosts[] = {"127.0.0.1:7823", "localhost:7823"};

}  // namespace quillmark::sample
