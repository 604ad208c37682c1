// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>

#include "Finding.h"
#include "TextSanitizer.h"

namespace quillmark::doctor {

/// The token that a panel started now would use.
struct TokenInUse {
  std::optional<std::string> value;  ///< no value: the panel sends no requests
  std::string path;                  ///< the file that it comes from; empty if none can be read
  std::string whyNotSent;            ///< why no token can be sent, as a clause
};

/// Checks every token file, and lets `sanitize` hide the tokens in them.
[[nodiscard]] TokenInUse checkTokens(Findings& findings, TextSanitizer& sanitize);

}  // namespace quillmark::doctor
