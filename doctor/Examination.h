// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Conclusion.h"
#include "Finding.h"

namespace quillmark::doctor {

struct Report {
  Findings findings;
  Conclusion conclusion;
};

/// Runs every check once; takes little longer than `queryTimeout` at most.
/// Changes nothing and starts nothing.
[[nodiscard]] Report examine();

}  // namespace quillmark::doctor
