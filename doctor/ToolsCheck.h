// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Finding.h"

namespace quillmark::doctor {

/// Looks for the programs by which the Settings tab starts, stops and finds an
/// agent. Without them it does nothing, or finds none, and does not say why.
void checkTools(Findings& findings);

}  // namespace quillmark::doctor
