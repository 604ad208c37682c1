// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "EndpointCheck.h"
#include "Finding.h"
#include "PortCheck.h"

namespace quillmark::doctor {

/// What the panel shows and why, in one sentence, and the one thing to do first: what
/// keeps the agent from starting if nothing listens on its port, else the first step of
/// the worst findings.
[[nodiscard]] Conclusion conclude(const Findings& findings, const Shown& shown, const Port& port);

}  // namespace quillmark::doctor
