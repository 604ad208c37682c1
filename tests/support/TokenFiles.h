// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace quillmark::test {

// For tests inside the sandbox alone: these are the real places.
[[nodiscard]] std::string systemTokenPath();
[[nodiscard]] std::string homeTokenPath();

/// Writes `content` to `path`, making its folder.
void writeFile(const std::string& path, std::string_view content);

/// Removes both token files.
void removeTokens();

}  // namespace quillmark::test
