// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace quillmark::sample {

/// The names of the agent's effective capabilities, from `procRoot`/self/status,
/// ordered by capability number.
[[nodiscard]] std::vector<std::string> effectiveCapabilities(const std::string& procRoot);

}  // namespace quillmark::sample
