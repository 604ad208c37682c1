// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>

#include "Finding.h"
#include "TextSanitizer.h"

namespace quillmark::doctor {

/// Which process, if any, receives the panel's requests.
struct Port {
  bool isOpen = false;
  std::optional<int> otherProgram;  ///< the process that holds the port, if it is no agent
};

/// The step when nothing listens on the port.
inline constexpr auto startAgentStep =
    "Start the agent: Start Agent on the panel's Settings tab, or its own service.";

/// Checks whether something listens on the agent's port, whether it is an agent, and
/// whether other machines can reach it. Reads /proc; connects to nothing.
[[nodiscard]] Port checkPort(Findings& findings, const TextSanitizer& sanitize);

}  // namespace quillmark::doctor
