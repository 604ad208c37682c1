// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace quillmark::test {

// Only for tests inside the sandbox: these are the real paths.
[[nodiscard]] std::string systemTokenPath();
[[nodiscard]] std::string homeTokenPath();

/// Writes `content` to `path`, and creates its folder.
void writeFile(const std::string& path, std::string_view content);

/// Removes both token files.
void removeTokens();

}  // namespace quillmark::test
