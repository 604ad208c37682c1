// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Finding.h"
#include "PortCheck.h"
#include "TextSanitizer.h"

namespace quillmark::doctor {

/// Reports every process that the Settings tab takes for an agent and that Stop
/// Agent would end: those with the agent's file name anywhere on the command line,
/// as `pgrep -f` and `pkill -f` match. Runs neither of the two.
void checkProbe(Findings& findings, const Port& port, const TextSanitizer& sanitize);

}  // namespace quillmark::doctor
