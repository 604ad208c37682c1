// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace quillmark::sample {

/// The names of this network namespace's interfaces, from `procRoot`/net/dev,
/// in the kernel's order.
[[nodiscard]] std::vector<std::string> networkInterfaces(const std::string& procRoot);

}  // namespace quillmark::sample
