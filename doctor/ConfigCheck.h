// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Finding.h"
#include "Harmless.h"

namespace quillmark::doctor {

/// Looks at the agent's configuration as the Settings tab reads it, and lets
/// `harmless` hide every key. Keys and URLs are told by their length alone.
void checkConfig(Findings& findings, Harmless& harmless);

}  // namespace quillmark::doctor
