// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Finding.h"
#include "Harmless.h"
#include "PortCheck.h"

namespace quillmark::doctor {

/// Looks for what the Settings tab takes for an agent, and what Stop Agent would
/// end: every process with the agent's file name anywhere on its command line,
/// as `pgrep -f` and `pkill -f` find them. Neither is run.
void checkProbe(Findings& findings, const Port& port, const Harmless& harmless);

}  // namespace quillmark::doctor
