// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Finding.h"
#include "Harmless.h"
#include "PortCheck.h"
#include "TokenCheck.h"

namespace quillmark::doctor {

/// What the panel gets to show of the agent's answers.
struct Shown {
  std::optional<std::string> status;  ///< the agent's word, harmless; absent: OFFLINE
  std::string offlineBecause;         ///< a clause
  std::vector<std::string> empty;     ///< what else stays empty, such as "alerts"
};

/// Asks the agent all that the panel asks, with the same token.
[[nodiscard]] Shown checkEndpoints(Findings& findings, const TokenInUse& inUse, const Port& port,
                                   const Harmless& harmless);

}  // namespace quillmark::doctor
