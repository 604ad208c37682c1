// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "TextSanitizer.h"

namespace quillmark::doctor {

/// Hides the keys of the configuration at `path`, whether or not the panel could read it: of
/// every line with "api_key" both the whole value and the part that the Settings tab reads.
void hideKeys(const std::string& path, TextSanitizer& sanitize);

/// Hides the lines of the token file at `path`, whether or not the panel could read it.
void hideTokens(const std::string& path, TextSanitizer& sanitize);

}  // namespace quillmark::doctor
