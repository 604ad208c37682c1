// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>

#include "Finding.h"
#include "Harmless.h"

namespace quillmark::doctor {

/// Who takes the panel's questions.
struct Port {
  bool isOpen = false;
  std::optional<int> stranger;  ///< the process that holds the port and is no agent
};

/// What a person can do when nothing listens.
inline constexpr auto startAgentStep =
    "Start the agent: Start Agent on the panel's Settings tab, or its own service.";

[[nodiscard]] Port checkPort(Findings& findings, const Harmless& harmless);

}  // namespace quillmark::doctor
