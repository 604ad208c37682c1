// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace quillmark::test {

/// The first line that a program prints.
[[nodiscard]] std::string firstLineOf(const std::vector<std::string>& program);

/// The first line that the driver prints for `action` inside bubblewrap with these
/// `options`.
[[nodiscard]] std::string elsewhere(const std::vector<std::string>& options,
                                    const std::vector<std::string>& action);

}  // namespace quillmark::test
