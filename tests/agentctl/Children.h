// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quillmark::test {

/// The first line that a program prints.
[[nodiscard]] std::string firstLineOf(const std::vector<std::string>& program);

/// What `action` returns in a child process that has namespaces of its own:
/// `flags` as for unshare(2). A user namespace comes with them, so that it may
/// change what is in them.
[[nodiscard]] std::string inNamespaces(int flags, const std::function<std::string()>& action);

}  // namespace quillmark::test
