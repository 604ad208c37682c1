// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Finding.h"
#include "Harmless.h"

namespace quillmark::doctor {

/// Looks at the application bundle, which this program shares with the panel,
/// and at the agent's program in it.
void checkBundle(Findings& findings, const Harmless& harmless);

}  // namespace quillmark::doctor
