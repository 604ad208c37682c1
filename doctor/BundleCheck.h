// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Finding.h"
#include "TextSanitizer.h"

namespace quillmark::doctor {

/// Checks the application bundle, which this program shares with the panel, and
/// the agent's program in it.
void checkBundle(Findings& findings, const TextSanitizer& sanitize);

}  // namespace quillmark::doctor
