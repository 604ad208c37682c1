// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Finding.h"
#include "TextSanitizer.h"

namespace quillmark::doctor {

/// Checks the agent's configuration as the Settings tab reads it, and lets
/// `sanitize` hide every key. Of keys and URLs, only the length is reported.
void checkConfig(Findings& findings, TextSanitizer& sanitize);

}  // namespace quillmark::doctor
