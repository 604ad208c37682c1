// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Finding.h"
#include "TokenCheck.h"

namespace quillmark::doctor {

/// Checks for panels of this user that were started before the token's file was written. A
/// panel reads the token only when a window opens.
void checkPanels(Findings& findings, const TokenInUse& token);

}  // namespace quillmark::doctor
