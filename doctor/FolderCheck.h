// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Finding.h"
#include "Harmless.h"

namespace quillmark::doctor {

/// Looks at what Start Agent needs of the home directory: a path that a shell
/// takes for one word, and the folder of the log.
void checkFolders(Findings& findings, const Harmless& harmless);

}  // namespace quillmark::doctor
