// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Finding.h"
#include "PortCheck.h"
#include "TextSanitizer.h"
#include "TokenCheck.h"

namespace quillmark::doctor {

/// What the panel shows of the agent's answers.
struct PanelData {
  std::optional<std::string> status;     ///< the agent's status text, sanitized; no value: OFFLINE
  std::string offlineBecause;            ///< the reason, as a clause
  std::vector<std::string> failedParts;  ///< what else it cannot show, such as "alerts"
};

/// Sends the panel's requests to the agent, with the same token; none without a token.
[[nodiscard]] PanelData checkEndpoints(Findings& findings, const TokenInUse& token,
                                       const Port& port, const TextSanitizer& sanitize);

}  // namespace quillmark::doctor
