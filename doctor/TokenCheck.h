// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>

#include "Finding.h"
#include "Harmless.h"

namespace quillmark::doctor {

/// The token that a panel which starts now would use.
struct TokenInUse {
  std::optional<std::string> token;  ///< without one the panel asks the agent nothing
  std::string path;                  ///< the file that it comes from, if there is one
  std::string refusal;               ///< why there is none to be sent, as a clause
};

/// Looks at every place of the token, and lets `harmless` hide what it finds.
[[nodiscard]] TokenInUse checkTokens(Findings& findings, Harmless& harmless);

}  // namespace quillmark::doctor
