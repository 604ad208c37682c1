// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Finding.h"

namespace quillmark::doctor {

/// Checks for the programs with which the Settings tab starts, stops and finds an
/// agent. Without `pgrep` the tab finds no agent and does not say why; without the others
/// it shows an error.
void checkTools(Findings& findings);

}  // namespace quillmark::doctor
