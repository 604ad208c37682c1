// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Finding.h"
#include "TextSanitizer.h"

namespace quillmark::doctor {

/// Checks what Start Agent needs of the home directory: a path that a shell reads
/// as one word without quotes, and the folder of the log.
void checkFolders(Findings& findings, const TextSanitizer& sanitize);

}  // namespace quillmark::doctor
