// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace quillmark::sample {

/// What the kernel lets the agent do beyond an ordinary program: the names of
/// its effective capabilities, from `procRoot`/self/status, by their number.
[[nodiscard]] std::vector<std::string> effectiveCapabilities(const std::string& procRoot);

}  // namespace quillmark::sample
